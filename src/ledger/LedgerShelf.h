#pragma once

#include <QString>

class SummaryBooks;

// The ledger list: its file "BookList", and the choice of a ledger in it:
// opening one (which stores the one left), adding, renaming and deleting.
// The handlers of LedgerList's events; its tables are those of the books.
class LedgerShelf {
public:
    explicit LedgerShelf(SummaryBooks& books);

    // Reads "BookList" into LedgerList, as the main window is made.
    void LedgerList_Open();
    void LedgerList_Change();
    void LedgerList_CellGotFocus(int row, int column);
    void LedgerList_CellTextChange(int row, int column);
    void LedgerList_CellLostFocus(int row, int column);

    // Loads the selected ledger's two files into accountsBox and transBox.
    void openABook(const QString& name);
    // Writes the ledger list to "BookList"; false when it couldn't.
    bool saveBooks();
    // A new ledger from the name typed (without the two blanks): added to the
    // list, selected and opened. A name that can't be used is refused with a
    // message and false, and nothing changes.
    bool addLedger(const QString& typedName);
    // Deletes the selected ledger with its files after the user's confirmation.
    void deleteLedger();

    QString bookListPath() const;

private:
    SummaryBooks& books_;
    // "BookList" was there at start but couldn't be read: it isn't written over.
    bool bookListUnread_ = false;
};
