#pragma once

#include "ledger/AccountOperations.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"

#include <QCommandLineParser>
#include <QSize>
#include <QStringList>
#include <QTextStream>

#include <optional>

// The verbs of quillmark-cli and the checks of their words and options, each
// verb the same calls of the books that a window makes. A verb returns the
// exit status: 0 done, 1 refused (one line on stderr, nothing written). Each
// has its entry in VerbTable.cpp.

// One run of the command line: the verb's words (the verb first), its options,
// the data folder, and where it prints.
struct Invocation {
    const QCommandLineParser& parser;
    QStringList words;
    QString dataFolder;
    QTextStream& out;
    QTextStream& err;

    bool isSet(const QString& option) const { return parser.isSet(option); }
    QString value(const QString& option) const { return parser.value(option); }
};

// Prints why an input is refused, and gives the status for it.
int refused(const Invocation& call, const QString& problem);

// The account named by the verb's second word (ignoring case, the first row of
// that name), selected as a click selects it; -1 (refusal printed) when the
// ledger has none of that name.
int selectAccount(const Invocation& call, SummaryBooks& books);

// A transBox row given as ROW, counted from 1, or -1 (refusal printed) when the
// table has none such. ROW is a number: that was checked with the options.
int transactionRow(const Invocation& call, const SummaryBooks& books, const QString& row);

// The verbs that open no ledger.
int listLedgers(const Invocation& call);
int newLedger(const Invocation& call);

// The verbs on a ledger: the command line has opened the ledger their first
// word names, as a click on its row opens it (its repeat pass included), and
// hands them its books.
int recalcLedger(const Invocation& call, SummaryBooks& books);
int printBalances(const Invocation& call, SummaryBooks& books);
int storeRepeats(const Invocation& call, SummaryBooks& books);
int printTransactions(const Invocation& call, SummaryBooks& books);
// A transaction as transactions prints it: ROW, then its cells after the first.
void printTransaction(const Invocation& call, const Listbox& transactions, int row);

int addAccountVerb(const Invocation& call, SummaryBooks& books);
int editAccountVerb(const Invocation& call, SummaryBooks& books);
int deleteAccountVerb(const Invocation& call, SummaryBooks& books);

// Not both --deposit and --withdrawal, and a --repeat word of the menu.
bool transactionOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
// Those of the transaction options, and a ROW that is a number.
bool editOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
int addTransactionVerb(const Invocation& call, SummaryBooks& books);
int editTransactionVerb(const Invocation& call, SummaryBooks& books);
int gstVerb(const Invocation& call, SummaryBooks& books);

// Every ROW after the ledger's name is a whole number.
bool rowsUsable(const QCommandLineParser& parser, const QStringList& words);
int findVerb(const Invocation& call, SummaryBooks& books);
int deleteTransactionsVerb(const Invocation& call, SummaryBooks& books);
int reconcileVerb(const Invocation& call, SummaryBooks& books);
// A transfer names both its accounts and its amount.
bool transferOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
int transferVerb(const Invocation& call, SummaryBooks& books);

// The verbs that draw: their checks here, their functions in quillmark-draw
// (DrawingVerbs.h).
// --kind bar|pie, --out and a --size that is one.
bool chartOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
// --size WxH, or the chart window's canvas; nothing when the text is no such size.
std::optional<QSize> chartCanvas(const QCommandLineParser& parser);
// At most one of --month M (0 to 12), --year Y and --show-year.
bool reportOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
// --what accounts|transactions|both and --pdf.
bool printOptionsUsable(const QCommandLineParser& parser, const QStringList& words);

// --from and --to, when given, are dates ParseDate reads.
bool accountOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
int accountListVerb(const Invocation& call, SummaryBooks& books);

int exportVerb(const Invocation& call, SummaryBooks& books);
// --map and the other options of import read as they should.
bool importOptionsUsable(const QCommandLineParser& parser, const QStringList& words);
int importVerb(const Invocation& call, SummaryBooks& books);
