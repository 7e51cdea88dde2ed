#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

#include <span>
#include <vector>

class Listbox;

// The accounts of a ledger by name, ignoring case, for one pass over its
// transactions. Row 0, the Base Account, is left out: it has no transactions of
// its own. Names are read in place, so neither table may change while it lives.
class AccountIndex {
public:
    explicit AccountIndex(const Listbox& accounts);

    // The account rows whose name equals this one, ignoring case, in table order;
    // usually one, none for a name no account has (a GST row), several when a
    // file holds the same name twice.
    std::span<const int> rowsNamed(QStringView name);

private:
    // Names as they are written, to the group of rows they belong to (-1: none).
    // A small open-addressing table: a transaction's name is almost always
    // found here at the first probe.
    class SpellingTable {
    public:
        int find(QStringView name) const;
        void insert(QStringView name, int group);

    private:
        struct Slot {
            QStringView name;
            int group = -1;
            bool used = false;
        };
        void grow();
        std::vector<Slot> slots_ = std::vector<Slot>(64);
        size_t used_ = 0;
    };

    int groupOf(QStringView name);

    std::vector<std::vector<int>> groups_;
    QHash<QString, int> folded_; // case-folded account name to group
    SpellingTable spellings_;    // account names, then other spellings met in transactions
};
