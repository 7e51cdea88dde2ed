#pragma once

#include <QByteArray>
#include <QString>

class Listbox;

// The transactions of the open ledger as a CSV file: a header, then one record
// a row in table order, five fields joined by commas and never quoted:
//     Account,Transaction Type,Date Posted,Transaction Amount,Description\r
//     Office,DEBIT,20140305,-12.50,Paper
// The header ends in a carriage return before the line end; the records don't.

inline const QString kExportHeader = QStringLiteral("Account,Transaction Type,Date Posted,Transaction Amount,Description");

QByteArray exportRecords(const Listbox& transactions);

// The name the export ends under: the one chosen, with ".csv" after it unless it
// ends so already, in any case ("untitled" becomes "untitled.csv").
QString exportFileName(const QString& chosenPath);

// Writes the export to the file chosen, then gives it its ".csv" name. A file
// already there under that name is never written over: the export then keeps
// the name chosen. Returns what went wrong for the user, "" when all went well.
QString exportData(const Listbox& transactions, const QString& chosenPath);
