#pragma once

#include "support/Testing.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

// A temporary application data folder for one test: XDG_DATA_HOME points at it
// while the object lives, so nothing touches the user's real data.
class TempDataHome {
public:
    TempDataHome();
    ~TempDataHome();
    TempDataHome(const TempDataHome&) = delete;
    TempDataHome& operator=(const TempDataHome&) = delete;

    QString path() const { return dir.path(); }
    QString quillmark() const { return dir.path() + QStringLiteral("/Quillmark"); }
    QString books() const { return quillmark() + QStringLiteral("/Books"); }
    // Creates "Quillmark/Books" as the start of the application does.
    void makeFolders() const;
    // The folders, the list of ledgers and the two files of "  Shop", as a user
    // left them; true, to be written before the books that read them are made.
    bool writeShop(const QByteArray& bookList, const QByteArray& accounts, const QByteArray& transactions) const;
    // A file of "  Shop"; kind: "Account" or "Trans".
    QString shop(const char* kind) const;

private:
    QTemporaryDir dir;
    QByteArray previous;
};

// Whole-file helpers for checking what reached the disk, byte for byte.
QByteArray readBytes(const QString& path);
void writeBytes(const QString& path, const QByteArray& bytes);
bool fileExists(const QString& path);
// Every entry below folder by its path: a file's bytes, a link's target, "(entry)"
// for anything else (nothing is opened that could wait, as a pipe would).
QMap<QString, QByteArray> entriesUnder(const QString& folder);
