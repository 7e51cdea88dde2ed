#include "books/WindowMemory.h"

#include "books/AppFolders.h"
#include "books/LedgerNames.h"
#include "books/TextFiles.h"
#include "platform/FileProblems.h"
#include "platform/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

void tellIfFailed(const FileProblem& problem)
{
    if (problem.failed())
        tellFileProblem(u"Quillmark couldn't save the places of its windows: %1."_s.arg(problem.reason));
}

} // namespace

namespace smartWindowsGlobals {

namespace {

windowSpecsClass* entryOf(const QString& title)
{
    for (windowSpecsClass& entry : windowSpecs()) {
        if (!entry.theName.isEmpty() && entry.theName == title)
            return &entry;
    }
    return nullptr;
}

} // namespace

std::vector<windowSpecsClass>& windowSpecs()
{
    static std::vector<windowSpecsClass> remembered;
    return remembered;
}

QRect getMySpecs(const QString& title, const QRect& present)
{
    if (const windowSpecsClass* entry = entryOf(title))
        return QRect(entry->theLeft, entry->theTop, entry->theWidth, entry->theHeight);
    windowSpecs().push_back({title, present.left(), present.top(), present.width(), present.height()});
    return present;
}

void saveMySpecs(const QString& title, const QRect& present)
{
    windowSpecsClass* entry = entryOf(title);
    if (!entry)
        return;
    entry->theLeft = present.left();
    entry->theTop = present.top();
    entry->theWidth = present.width();
    entry->theHeight = present.height();
    saveWindowSpecs();
}

void saveWindowSpecs()
{
    const QString folder = AppFolders::applicationData();
    if (folder.isEmpty())
        return;
    QString text;
    for (const windowSpecsClass& entry : windowSpecs()) {
        if (entry.theName.isEmpty())
            continue;
        text += entry.theName + u';' + Str(entry.theLeft) + u';' + Str(entry.theTop) + u';'
            + Str(entry.theWidth) + u';' + Str(entry.theHeight) + u'\n';
    }
    tellIfFailed(writeTextFile(folder + u"/Quillmark_WindowData"_s, text));
}

} // namespace smartWindowsGlobals

void writeWindowData(const QString& folder, const QRect& geometry)
{
    if (folder.isEmpty())
        return;
    const QString text = Str(geometry.top()) + u'\n' + Str(geometry.left()) + u'\n' + Str(geometry.width())
        + u'\n' + Str(geometry.height()) + u'\n';
    tellIfFailed(writeTextFile(bookFilePath(folder, u"WindowData"_s).path, text));
}
