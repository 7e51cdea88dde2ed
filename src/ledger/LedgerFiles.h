#pragma once

#include "books/rowtable/ListboxManager.h"

#include <QString>
#include <QStringList>

#include <functional>

// The two files of each ledger in the folder "Books", ledger name + "AccountData"
// and ledger name + "TransData": read, stored, renamed and removed, with what
// fails told to the user by the ledger's name and the system's reason.
class LedgerFiles {
public:
    enum class Table { Accounts, Transactions };

    // programDataFolder is the folder "Books"; empty when none could be made.
    explicit LedgerFiles(const QString& programDataFolder);

    ListboxManager manager;

    // Fills the table from its file. A file that can't be read is remembered, and
    // that table is not written over until the ledger is opened again: the table
    // holds nothing of it, and storing it would empty the user's books.
    void load(Listbox& table, const QString& ledger, Table kind);
    void forgetUnreadFiles() { unread_.clear(); }
    bool anyUnread() const { return !unread_.isEmpty(); }

    // Stores one table; false when it couldn't (the old file stays as it was).
    bool store(const Listbox& table, const QString& ledger, Table kind);
    // Stores both, the accounts first.
    bool storeBoth(const Listbox& accounts, const Listbox& transactions, const QString& ledger);

    // Whether either file of the ledger is on disk.
    bool exist(const QString& ledger) const;
    // Deletes both files of a ledger; a link goes itself, not what it points to.
    void remove(const QString& ledger);

    // Moves a ledger's books from one name to another: the tables that have rows
    // are written under `to`, then saveList writes the ledger list. Only when all
    // of it reached the disk do the old files go; otherwise what was written under
    // `to` goes and the ledger stays under `from`, so a half-done rename never
    // loses or doubles it. Names equal but for case are the same files on a
    // system that ignores case, so then nothing is removed. Returns whether the
    // ledger now lives under `to`.
    bool rename(const Listbox& accounts, const Listbox& transactions, const QString& from, const QString& to,
                const std::function<bool()>& saveList);

    static QString fileName(const QString& ledger, Table kind);

private:
    QStringList unread_;
};
