#include "engine/AccountIndex.h"

#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"

namespace {

constexpr int kNotFound = -2;

size_t hashOf(QStringView name)
{
    // FNV-1a: cheap, and names are short.
    size_t hash = 14695981039346656037ull;
    for (const QChar c : name) {
        hash ^= c.unicode();
        hash *= 1099511628211ull;
    }
    return hash;
}

} // namespace

int AccountIndex::SpellingTable::find(QStringView name) const
{
    const size_t mask = slots_.size() - 1;
    for (size_t i = hashOf(name) & mask;; i = (i + 1) & mask) {
        const Slot& slot = slots_[i];
        if (!slot.used)
            return kNotFound;
        if (slot.name == name)
            return slot.group;
    }
}

void AccountIndex::SpellingTable::insert(QStringView name, int group)
{
    if (2 * (used_ + 1) > slots_.size())
        grow();
    const size_t mask = slots_.size() - 1;
    for (size_t i = hashOf(name) & mask;; i = (i + 1) & mask) {
        Slot& slot = slots_[i];
        if (!slot.used) {
            slot = {name, group, true};
            ++used_;
            return;
        }
        if (slot.name == name)
            return; // the first row of a name keeps it
    }
}

void AccountIndex::SpellingTable::grow()
{
    std::vector<Slot> old(slots_.size() * 2);
    old.swap(slots_);
    used_ = 0;
    for (const Slot& slot : old) {
        if (slot.used)
            insert(slot.name, slot.group);
    }
}

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
        groups_[size_t(group)].push_back(r);
        spellings_.insert(name, group);
    }
}

int AccountIndex::groupOf(QStringView name)
{
    int group = spellings_.find(name);
    if (group == kNotFound) {
        group = folded_.value(name.toString().toCaseFolded(), -1);
        spellings_.insert(name, group);
    }
    return group;
}

std::span<const int> AccountIndex::rowsNamed(QStringView name)
{
    const int group = groupOf(name);
    if (group < 0)
        return {};
    return groups_[size_t(group)];
}
