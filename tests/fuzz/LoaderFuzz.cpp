// Bytes as a ledger's two files: opened as the main window opens a ledger,
// recalculated and stored; the stored files, loaded into fresh tables and
// stored again, must come out byte for byte the same.
#include "books/FileCalls.h"
#include "books/rowtable/Listbox.h"
#include "engine/RowLayouts.h"
#include "fuzz/FuzzCheck.h"
#include "ledger/SummaryBooks.h"
#include "platform/BlockingServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void putFile(const QString& path, const char* data, size_t size)
{
    QFile file(path);
    fuzzCheck(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "the test folder takes files");
    file.write(data, qint64(size));
}

struct Setting {
    Setting()
    {
        // Messages go nowhere, and the disk isn't asked to sync: the rules are
        // about content, and syncing would slow every run a thousandfold.
        BlockingServiceHooks quiet;
        quiet.msgBox = [](const QString&) {};
        installBlockingServices(quiet);
        FileCalls noSync;
        noSync.fsync = [](int) { return 0; };
        installFileCalls(noSync);
        QDir().mkpath(books());
        putFile(folder.path() + u"/BookList"_s, "  Fuzz\n", 7);
    }
    QString books() const { return folder.path() + u"/Books"_s; }
    // In memory where the system has such a folder: a rename over a file on disk
    // flushes it, and the target renames four files a run.
    QTemporaryDir folder{QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/quillmark-fuzz-XXXXXX"_s
                                                      : QDir::tempPath() + u"/quillmark-fuzz-XXXXXX"_s};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const Setting setting;
    if (size == 0)
        return 0;
    // The first byte splits the rest between the two files.
    const char* bytes = reinterpret_cast<const char*>(data) + 1;
    const size_t rest = size - 1;
    const size_t cut = rest * data[0] / 255;
    const QString books = setting.books();
    putFile(books + u"/  FuzzAccountData"_s, bytes, cut);
    putFile(books + u"/  FuzzTransData"_s, bytes + cut, rest - cut);

    {
        SummaryBooks ledger(books);
        ledger.LedgerList.SetListIndex(0);
        ledger.calcAll();
    }
    const QByteArray accounts = fileBytes(books + u"/  FuzzAccountData"_s);
    const QByteArray transactions = fileBytes(books + u"/  FuzzTransData"_s);

    ListboxManager manager;
    manager.ProgramDataFolder = books;
    Listbox accountsBox(u"accountsBox"_s, AccountCol::Count);
    Listbox transBox(u"transBox"_s, TransCol::Count, Listbox::SelectionType::Multiple);
    fuzzCheck(!manager.loadListBox(accountsBox, u"  FuzzAccountData"_s).failed(), "the stored accounts load");
    fuzzCheck(!manager.loadListBox(transBox, u"  FuzzTransData"_s).failed(), "the stored transactions load");
    fuzzCheck(!manager.saveListBox(accountsBox, u"  CopyAccountData"_s).failed(), "the accounts store again");
    fuzzCheck(!manager.saveListBox(transBox, u"  CopyTransData"_s).failed(), "the transactions store again");
    fuzzCheck(fileBytes(books + u"/  CopyAccountData"_s) == accounts, "stored accounts reload unchanged");
    fuzzCheck(fileBytes(books + u"/  CopyTransData"_s) == transactions, "stored transactions reload unchanged");
    return 0;
}
