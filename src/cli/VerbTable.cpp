#include "cli/VerbTable.h"

using namespace Qt::StringLiterals;

namespace {

// The fields of the transaction dialog, typed in as options.
const QStringList kTransactionFlags{u"deposit"_s, u"withdrawal"_s};
const QStringList kTransactionValues{u"account"_s, u"amount"_s,  u"adjust"_s, u"description"_s,
                                     u"invoice"_s, u"memo"_s,    u"repeat"_s, u"date"_s};

} // namespace

const QList<Verb>& verbs()
{
    static const QList<Verb> all{
        {.name = u"list"_s,
         .usage = u"list"_s,
         .summary = u"Prints the name of every ledger in the ledger list, one a line."_s,
         .withoutLedger = &listLedgers},
        {.name = u"recalc"_s,
         .usage = u"recalc NAME"_s,
         .summary = u"Recalculates every account and the Base Account from the\n"
                    "transactions (reconciled or not) and stores both files."_s,
         .words = 1,
         .onLedger = &recalcLedger},
        {.name = u"balances"_s,
         .usage = u"balances NAME"_s,
         .summary = u"Prints each account, in table order: name, type and balance as\n"
                    "stored, tab-separated, one account a line. Writes nothing."_s,
         .words = 1,
         .onLedger = &printBalances},
        {.name = u"transactions"_s,
         .usage = u"transactions NAME"_s,
         .summary = u"Prints each transaction: its number ROW, counted from 1, then its\n"
                    "eleven cells after the first, tab-separated. Writes nothing."_s,
         .words = 1,
         .onLedger = &printTransactions},
        {.name = u"repeats"_s,
         .usage = u"repeats NAME"_s,
         .summary = u"Stores both files as they are once opened, as closing the window\n"
                    "does, without recalculating."_s,
         .words = 1,
         .onLedger = &storeRepeats},
        {.name = u"add"_s,
         .usage = u"add NAME OPTIONS [--gst]"_s,
         .summary = u"The transaction dialog on a new transaction, then OK (or, with\n"
                    "--gst, the GST button)."_s,
         .words = 1,
         .flags = kTransactionFlags + QStringList{u"gst"_s},
         .values = kTransactionValues,
         .checks = &transactionOptionsUsable,
         .onLedger = &addTransactionVerb},
        {.name = u"edit"_s,
         .usage = u"edit NAME ROW [OPTIONS]"_s,
         .summary = u"The dialog opened on transaction ROW, the options typed over it,\n"
                    "then OK."_s,
         .words = 2,
         .flags = kTransactionFlags,
         .values = kTransactionValues,
         .checks = &editOptionsUsable,
         .onLedger = &editTransactionVerb},
        {.name = u"gst"_s,
         .usage = u"gst NAME ROW [OPTIONS]"_s,
         .summary = u"The same, then the GST button (give --adjust: editing leaves the\n"
                    "adjustment empty)."_s,
         .words = 2,
         .flags = kTransactionFlags,
         .values = kTransactionValues,
         .checks = &editOptionsUsable,
         .onLedger = &gstVerb},
        {.name = u"find"_s,
         .usage = u"find NAME TEXT"_s,
         .summary = u"Selects the transactions that hold TEXT in any cell, hidden ones\n"
                    "included, ignoring case; prints them as transactions does. Writes\n"
                    "nothing."_s,
         .words = 2,
         .onLedger = &findVerb},
        {.name = u"delete"_s,
         .usage = u"delete NAME ROW..."_s,
         .summary = u"Selects those transactions and deletes them as the delete button\n"
                    "does once the deletion is confirmed."_s,
         .words = -2,
         .checks = &rowsUsable,
         .onLedger = &deleteTransactionsVerb},
        {.name = u"reconcile"_s,
         .usage = u"reconcile NAME ROW... [--off]"_s,
         .summary = u"A click on each row's reconcile box, so that it is checked (cleared\n"
                    "with --off); only the transactions are stored."_s,
         .words = -2,
         .flags = {u"off"_s},
         .checks = &rowsUsable,
         .onLedger = &reconcileVerb},
        // balances in reconcile mode, told beside reconcile.
        {.name = u"balances"_s,
         .usage = u"balances NAME --reconciled"_s,
         .summary = u"Turns reconcile mode on and recalculates, storing the figures of\n"
                    "the reconciled transactions only, then prints them."_s,
         .words = 1,
         .flags = {u"reconciled"_s},
         .onLedger = &printBalances},
        {.name = u"transfer"_s,
         .usage = u"transfer NAME --from A --to B --amount X [--date YYYY-MM-DD]"_s,
         .summary = u"The transfer window's OK: X from account A to account B. Neither\n"
                    "may be the Base Account or both the same account; X must be above 0."_s,
         .words = 1,
         .values = {u"from"_s, u"to"_s, u"amount"_s, u"date"_s},
         .checks = &transferOptionsUsable,
         .onLedger = &transferVerb},
        {.name = u"chart"_s,
         .usage = u"chart NAME --kind bar|pie --out FILE.png [--size WxH]"_s,
         .summary = u"Draws the chart window's chart as a PNG picture of the canvas, 553 by\n"
                    "432 pixels unless --size says otherwise (1 to 10000 each way): bar,\n"
                    "the accounts' transaction totals; pie, their opening amounts. For the\n"
                    "pie it prints each legend line: the account's row, its colour as\n"
                    "#RRGGBB and its name, tab-separated; or the window's notice when no\n"
                    "account has an opening amount. Writes nothing else."_s,
         .words = 1,
         .values = {u"kind"_s, u"out"_s, u"size"_s},
         .checks = &chartOptionsUsable,
         .draws = true},
        {.name = u"report"_s,
         .usage = u"report NAME [--month M | --year Y | --show-year] [--pdf FILE]"_s,
         .summary = u"The ledger report window as it opens on every month, or on month M\n"
                    "of every year (1 to 12; 0 is all), or with Y typed in its year field\n"
                    "and \"Show Year\" pressed, or \"Show Year\" pressed on the present\n"
                    "year. Prints each row of the report, its eight cells (the last the\n"
                    "hidden type word of an account's foot) tab-separated, or the line\n"
                    "\"No transactions found\". With --pdf it presses the print button\n"
                    "instead: the report, fitted to an A4 page, goes to the PDF FILE.\n"
                    "Writes nothing in the data folder."_s,
         .words = 1,
         .flags = {u"show-year"_s},
         .values = {u"month"_s, u"year"_s, u"pdf"_s},
         .checks = &reportOptionsUsable,
         .draws = true},
        {.name = u"account"_s,
         .usage = u"account NAME ACCOUNT [--from DAY] [--to DAY]"_s,
         .summary = u"The transactions window of the account ACCOUNT (not the Base\n"
                    "Account): each line of its list, columns 0 to 9 tab-separated (8 is\n"
                    "the transaction's row in transBox, counted from 0), then \"Balance:\",\n"
                    "a tab and the balance label. With --from or --to (any date form the\n"
                    "program reads; the other stays today) the range is applied: the\n"
                    "lines strictly after the first day and before the second stay, and\n"
                    "the label shows their total. Writes nothing."_s,
         .words = 2,
         .values = {u"from"_s, u"to"_s},
         .checks = &accountOptionsUsable,
         .onLedger = &accountListVerb},
        {.name = u"print"_s,
         .usage = u"print NAME --what accounts|transactions|both --pdf FILE"_s,
         .summary = u"The Print/Save item of that name, printed on the default page (A4)\n"
                    "into the PDF FILE under the main window's title \"Quillmark\".\n"
                    "Writes nothing in the data folder."_s,
         .words = 1,
         .values = {u"what"_s, u"pdf"_s},
         .checks = &printOptionsUsable,
         .draws = true},
        {.name = u"export"_s,
         .usage = u"export NAME FILE"_s,
         .summary = u"Writes every transaction to the CSV file FILE, as File > Export does:\n"
                    "the file gets \".csv\" after its name unless it ends so already."_s,
         .words = 2,
         .onLedger = &exportVerb},
        {.name = u"import"_s,
         .usage = u"import NAME FILE --map MAP [--delimiter C|tab] [--skip N] [--skip-end M]\n"
                  "       [--duplicates keep|skip]"_s,
         .summary = u"Appends the records of the delimited text FILE as transactions, all\n"
                    "or none, then recalculates and stores the ledger. MAP gives the\n"
                    "file's columns, counted from 1, comma-separated: account=N or\n"
                    "account=NAME (one account for every row), type=N (never read),\n"
                    "date=N, amount=N or debit=N,credit=N, description=N,\n"
                    "dates=ymd|dmy|mdy (ymd), decimal=auto|period|comma (auto); a key\n"
                    "left out is no column. The delimiter is \",\" unless given; the first\n"
                    "N records (1) and the last M (0) are skipped. A record that can't\n"
                    "be read refuses the whole import with \"line N: why\". Records the\n"
                    "ledger holds already (account, description, day and amount) refuse\n"
                    "it too, unless --duplicates says to keep or to skip them."_s,
         .words = 2,
         .values = {u"map"_s, u"delimiter"_s, u"skip"_s, u"skip-end"_s, u"duplicates"_s},
         .checks = &importOptionsUsable,
         .onLedger = &importVerb},
        {.name = u"new-ledger"_s,
         .usage = u"new-ledger NAME [--opening AMOUNT] [--notes TEXT]"_s,
         .summary = u"Adds the ledger NAME as the \"+\" button does, then gives it its Base\n"
                    "Account \"Balance\" as the account dialog's OK does, with AMOUNT in the\n"
                    "amount field and TEXT in the notes (else the dialog's hint)."_s,
         .words = 1,
         .values = {u"opening"_s, u"notes"_s},
         .withoutLedger = &newLedger},
        {.name = u"add-account"_s,
         .usage = u"add-account NAME ACCOUNT [--revenue] [--opening AMOUNT] [--notes TEXT]"_s,
         .summary = u"Adds the account ACCOUNT as the account dialog's OK does: an\n"
                    "expense account unless --revenue is given."_s,
         .words = 2,
         .flags = {u"revenue"_s},
         .values = {u"opening"_s, u"notes"_s},
         .onLedger = &addAccountVerb},
        {.name = u"edit-account"_s,
         .usage = u"edit-account NAME ACCOUNT [--rename NEWNAME] [--opening AMOUNT] [--notes TEXT]"_s,
         .summary = u"Edits the account ACCOUNT as the account dialog does: its fields as\n"
                    "they stand, the options typed over them, then OK. A renamed account\n"
                    "takes its transactions with it; its type never changes."_s,
         .words = 2,
         .values = {u"rename"_s, u"opening"_s, u"notes"_s},
         .onLedger = &editAccountVerb},
        {.name = u"delete-account"_s,
         .usage = u"delete-account NAME ACCOUNT"_s,
         .summary = u"Deletes the account ACCOUNT and all of its transactions, as the\n"
                    "toolbar's Delete does once the deletion is confirmed."_s,
         .words = 2,
         .onLedger = &deleteAccountVerb},
    };
    return all;
}
