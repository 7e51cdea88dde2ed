#pragma once

#include <QStringView>

#include <vector>

class Listbox;

// The rows of a table with the text in any of their columns, the hidden
// columns of a transaction (memo, repeat word, seconds) included, ignoring case
// and read as plain text, in table order. An empty text is in no cell.
std::vector<int> findRows(const Listbox& table, QStringView text);
