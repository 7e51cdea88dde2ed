#pragma once

#include <QString>
#include <QStringView>

// The text helpers every part of the program uses, with the platform's counting:
// positions and field numbers start at 1.

// The n-th field of text split at separator, counted from 1; "" beyond the last
// field. NthField("a@#@b", "@#@", 2) is "b", NthField("a", "@#@", 2) is "".
QString NthField(QStringView text, QStringView separator, int n);

// Position of find in text from position start (counted from 1), ignoring case;
// 0 when it isn't there. An empty find is never found.
int InStr(int start, QStringView text, QStringView find);
int InStr(QStringView text, QStringView find);

// The first n characters of text (all of it when shorter, "" for n below 1).
QString Left(QStringView text, int n);
