#include "platform/ui/TextCommands.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

// QTextEdit and QPlainTextEdit share these slots without a common base.
template <typename Edit>
void runOnTextArea(Edit* edit, TextCommand command)
{
    switch (command) {
    case TextCommand::Undo: edit->undo(); break;
    case TextCommand::Cut: edit->cut(); break;
    case TextCommand::Copy: edit->copy(); break;
    case TextCommand::Paste: edit->paste(); break;
    case TextCommand::Clear: edit->textCursor().removeSelectedText(); break;
    case TextCommand::SelectAll: edit->selectAll(); break;
    }
}

} // namespace

void runOnFocusedText(TextCommand command)
{
    QWidget* focused = QApplication::focusWidget();
    if (auto* line = qobject_cast<QLineEdit*>(focused)) {
        switch (command) {
        case TextCommand::Undo: line->undo(); break;
        case TextCommand::Cut: line->cut(); break;
        case TextCommand::Copy: line->copy(); break;
        case TextCommand::Paste: line->paste(); break;
        case TextCommand::Clear: line->del(); break;
        case TextCommand::SelectAll: line->selectAll(); break;
        }
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(focused)) {
        runOnTextArea(area, command);
    } else if (auto* rich = qobject_cast<QTextEdit*>(focused)) {
        runOnTextArea(rich, command);
    }
}
