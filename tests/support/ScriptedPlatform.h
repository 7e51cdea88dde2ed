#pragma once

#include "support/Testing.h"

#include "platform/BlockingServices.h"
#include "platform/Clock.h"

#include <QDateTime>
#include <QStringList>

#include <deque>

// Replaces the blocking services for the life of a test: records every message,
// confirmation, beep, address and quit, and answers confirmations from a script
// (Cancel once the script runs out). The page setup dialog is confirmed unless
// the test says otherwise; the printer dialog is cancelled until the test names
// a PDF file for the pages.
class ScriptedPlatform {
public:
    ScriptedPlatform();
    ~ScriptedPlatform();
    ScriptedPlatform(const ScriptedPlatform&) = delete;
    ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

    void answerNextDialog(MessageDialog::Button answer) { answers.push_back(answer); }
    // The file dialogs answer with this path (empty: they are cancelled).
    void answerFileDialogs(const QString& path) { filePath = path; }
    // The printer dialog answers with a PDF at path (empty: it is cancelled).
    void printToPdf(const QString& path) { pdfPath = path; }

    bool confirmPageSetup = true;
    int pageSetups = 0;                    // page setup dialogs shown
    int printerDialogs = 0;                // printer dialogs shown
    std::vector<FileDialogRequest> fileDialogs; // save and open dialogs shown, in order

    QStringList messages;                  // MsgBox texts, in order
    std::vector<MessageDialog> dialogs;    // confirmations shown, in order
    QStringList urls;                      // ShowURL addresses
    int beeps = 0;
    int quits = 0;

private:
    std::deque<MessageDialog::Button> answers;
    QString pdfPath;
    QString filePath;
    BlockingServiceHooks previous;
};

// Fixes "now" for the life of a test.
class FixedClock {
public:
    explicit FixedClock(const QDateTime& now);
    ~FixedClock();
    void set(const QDateTime& now) { current = now; }

private:
    QDateTime current;
    std::function<QDateTime()> previous;
};
