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
    int groupOf(QStringView name);

    std::vector<std::vector<int>> groups_;
    QHash<QStringView, int> exact_;  // account names as written
    QHash<QString, int> folded_;     // account names case-folded
    QHash<QStringView, int> spellings_; // other spellings met in transactions; -1: no account
};
