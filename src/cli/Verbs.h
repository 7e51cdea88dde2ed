#pragma once

#include "ledger/AccountOperations.h"
#include "ledger/SummaryBooks.h"
#include "ledger/TransactionOperations.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>

// The verbs of quillmark-cli, each the same calls of the books that a window
// makes. A verb returns the exit status: 0 done, 1 refused (one line on
// stderr, nothing written).

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

// The books of the data folder with the ledger named by the verb's first word
// open, as a click on its row opens it (its repeat pass included). When there
// is no such ledger, `open` is false and the refusal is printed.
class OpenLedger {
public:
    explicit OpenLedger(const Invocation& call);
    SummaryBooks books;
    bool open = false;
};

// The account named by the verb's second word (ignoring case, the first row of
// that name), selected as a click selects it; -1 (refusal printed) when the
// ledger has none of that name.
int selectAccount(const Invocation& call, SummaryBooks& books);

// A transBox row given as ROW, counted from 1, or -1 (refusal printed) when the
// table has none such. ROW is a number: that was checked with the options.
int transactionRow(const Invocation& call, const SummaryBooks& books, const QString& row);

int listLedgers(const Invocation& call);
int recalcLedger(const Invocation& call);
int printBalances(const Invocation& call);
int storeRepeats(const Invocation& call);
int printTransactions(const Invocation& call);
// A transaction as transactions prints it: ROW, then its cells after the first.
void printTransaction(const Invocation& call, const Listbox& transactions, int row);

int newLedger(const Invocation& call);
int addAccountVerb(const Invocation& call);
int editAccountVerb(const Invocation& call);
int deleteAccountVerb(const Invocation& call);

int addTransactionVerb(const Invocation& call);
int editTransactionVerb(const Invocation& call);
int gstVerb(const Invocation& call);

int findVerb(const Invocation& call);
int deleteTransactionsVerb(const Invocation& call);
int reconcileVerb(const Invocation& call);
int transferVerb(const Invocation& call);

// --kind bar|pie, --out and a --size that is one.
bool chartOptionsUsable(const QCommandLineParser& parser);
int chartVerb(const Invocation& call);

// At most one of --month M (0 to 12), --year Y and --show-year.
bool reportOptionsUsable(const QCommandLineParser& parser);
int reportVerb(const Invocation& call);

// --from and --to, when given, are dates ParseDate reads.
bool accountOptionsUsable(const QCommandLineParser& parser);
int accountListVerb(const Invocation& call);
// --what accounts|transactions|both and --pdf.
bool printOptionsUsable(const QCommandLineParser& parser);
int printVerb(const Invocation& call);

int exportVerb(const Invocation& call);
// --map and the other options of import read as they should.
bool importOptionsUsable(const QCommandLineParser& parser);
int importVerb(const Invocation& call);
