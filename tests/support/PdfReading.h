#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>

// What a printed PDF holds, read back with poppler's tools: each word with the
// page it is on (from 1) and its box in points from the page's top left, the
// number of pages, and a page as pixels.
struct Word {
    int page = 0;
    QRectF box;
    QString text;
};

QList<Word> wordsOf(const QString& pdf);
// Pages of the file, empty ones too.
int pageCountOf(const QString& pdf);
// The last page that holds a word.
int pagesOf(const QList<Word>& words);
QList<Word> named(const QList<Word>& words, const QString& text);
// A page as a picture, at 72 dots an inch (a pixel a point) unless said
// otherwise; folder holds the picture.
QImage pageImage(const QString& pdf, int page, const QString& folder, int dotsPerInch = 72);
