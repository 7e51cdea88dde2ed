#pragma once

#include "cli/Verbs.h"

#include <QList>
#include <QString>
#include <QStringList>

// One entry of quillmark-cli's table of verbs: all the command line knows of a
// verb (its words, options and checks, whether it opens a ledger, its text in
// the help), so that adding a verb takes its entry and its function.
struct Verb {
    QString name;
    // The verb with its words and options as the help shows them (lines after
    // the first indented as they continue it), and what it does, a line each.
    QString usage;
    QString summary;
    int words = 0; // after the verb; -n: n or more
    QStringList flags{};  // options without a value
    QStringList values{}; // options that take one
    // Whatever else its words and options must be, beyond their number and names.
    bool (*checks)(const QCommandLineParser& parser, const QStringList& words) = nullptr;
    // A verb on a ledger is handed the books with that ledger open; the
    // command line opens it, or refuses when the data folder has none of its name.
    int (*onLedger)(const Invocation& call, SummaryBooks& books) = nullptr;
    int (*withoutLedger)(const Invocation& call) = nullptr;
    // A verb that draws (a picture, a PDF) works on a ledger too, but needs
    // fonts and so the GUI's libraries, which take longer to load than most
    // commands run: its function is quillmark-draw's (DrawingVerbs.h), and
    // quillmark-cli hands such a command over to it whole.
    bool draws = false;

    bool opensLedger() const { return onLedger != nullptr || draws; }
};

// Every verb, in the order of the help. A verb with two forms has an entry for
// each; the first whose words and options fit the command runs.
const QList<Verb>& verbs();
