#include "engine/AccountIndex.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"

AccountIndex::AccountIndex(const Listbox& accounts)
{
    for (int r = 1; r < accounts.ListCount(); ++r) {
        const QStringView name = accounts.CellView(r, AccountCol::Name);
        const QString folded = name.toString().toCaseFolded();
        auto found = folded_.constFind(folded);
        int group;
        if (found == folded_.constEnd()) {
            group = int(groups_.size());
            groups_.emplace_back();
            folded_.insert(folded, group);
        } else {
            group = found.value();
        }
        groups_[group].push_back(r);
        exact_.insert(name, group);
    }
}

int AccountIndex::groupOf(QStringView name)
{
    if (auto found = exact_.constFind(name); found != exact_.constEnd())
        return found.value();
    if (auto seen = spellings_.constFind(name); seen != spellings_.constEnd())
        return seen.value();
    const int group = folded_.value(name.toString().toCaseFolded(), -1);
    spellings_.insert(name, group);
    return group;
}

std::span<const int> AccountIndex::rowsNamed(QStringView name)
{
    const int group = groupOf(name);
    if (group < 0)
        return {};
    return groups_[size_t(group)];
}
