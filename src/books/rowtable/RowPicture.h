#pragma once

#include <QString>

// The small pictures a row can show at its left, by the names the windows use.
enum class RowPicture : quint8 {
    None,
    BookIcon,      // row 0 of an accounts table, the Base Account
    Book_Icon32,   // a ledger in the ledger list
    accountPlus9,  // a revenue account
    accountMinus9, // every other account
};

// The resource path of a picture (":/pictures/accountPlus9.png"); "" for None.
QString rowPictureResource(RowPicture picture);
