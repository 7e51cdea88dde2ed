#pragma once

#include <QString>

class Listbox;

// The fixed-layout prints: the main window's accounts and transactions as two
// striped tables, and an account's transactions window. Each asks for the
// printer on the page set up in this run (Globals::ps) and prints in "Geneva" 9,
// or the font the system puts in its place; lines stand a text height apart
// from y 80, and a page holds as many as its height divided by the text height
// and 4, plus 5. A cancelled printer dialog prints nothing.

// printRequest "accounts", "transactions" or "all" (accounts first), under the
// main window's title.
void printAll(const QString& printRequest, const QString& windowTitle, const Listbox& accounts,
              const Listbox& transactions);

// The lines of an account's transactions window, with the total its label shows.
void printAccountTransactions(const Listbox& list, const QString& accountName, const QString& balanceText);
