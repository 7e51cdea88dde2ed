// Every step of a save failing, for every kind of file the program writes: the
// old file stays byte for byte, nothing is left beside it, and the user is told
// once, with the system's reason.
#include "books/WindowMemory.h"
#include "books/prefsDictionary.h"
#include "engine/RowLayouts.h"
#include "ledger/SummaryBooks.h"
#include "reference/GeneratedLedger.h"
#include "support/Cells.h"
#include "support/DataFolder.h"
#include "support/FailingSaves.h"
#include "support/ScriptedPlatform.h"

#include <QDir>
#include <QFile>
#include <QRect>

#include <functional>

using Step = FailingSaves::Step;

namespace {

// One piece of a table save is this long; a write beyond it is the last piece.
constexpr qint64 kPiece = 256 * 1024;
const QString kLedgerKept = u" It stays as it was before this change."_s;

class SaveFailuresTest : public ::testing::Test {
protected:
    SaveFailuresTest()
    {
        home.makeFolders();
        // Large enough that a table is written in more than one piece.
        writeGeneratedLedger(home.books(), u"  Shop"_s, LedgerShape{20, 3000, 3, false});
    }

    // The books with "  Shop" open.
    std::unique_ptr<SummaryBooks> openShop() const
    {
        auto books = std::make_unique<SummaryBooks>(home.books());
        books->LedgerList.SetListIndex(0);
        return books;
    }

    TempDataHome home;
    ScriptedPlatform platform;
};

} // namespace

TEST_F(SaveFailuresTest, EveryFailingStepKeepsEveryKindOfFileAsItWas)
{
    const struct {
        Step step;
        qint64 bytes;
        QString reason;
        bool largeFilesOnly = false;
    } failures[] = {
        {Step::Create, 0, u"Permission denied"_s},
        {Step::Write, 0, u"No space left on device"_s},
        {Step::Write, 5, u"No space left on device"_s},
        {Step::Write, kPiece + 100, u"No space left on device"_s, true}, // the last piece: the flush
        {Step::Sync, 0, u"Input/output error"_s},
        {Step::Close, 0, u"Input/output error"_s},
        {Step::Rename, 0, u"Invalid cross-device link"_s},
    };
    std::unique_ptr<SummaryBooks> books;
    const struct {
        const char* name;
        bool large;
        QString message; // how the user is told, around the reason
        QString note;
        std::function<void()> prepare;
        std::function<void()> save;
    } kinds[] = {
        // A click on a reconcile box stores the transactions alone.
        {"ledger table", true, u"Quillmark couldn't save the ledger \"Shop\": "_s, kLedgerKept,
         [&] { books = openShop(); }, [&] { books->transBox.userToggledCheck(0, TransCol::Account); }},
        {"ledger list", false, u"Quillmark couldn't save the list of ledgers: "_s, kLedgerKept,
         [&] { books = std::make_unique<SummaryBooks>(home.books()); },
         [&] {
             books->LedgerList.AddRow(u"  Garden"_s);
             books->shelf.saveBooks();
         }},
        {"preferences", false, u"Quillmark couldn't save its preferences: "_s, u" They stay as they were before."_s,
         [&] {
             writeBytes(home.path() + u"/Quillmark Preferences"_s, "\x04" "1234");
             prefsDictionary::getPreferences();
         },
         [&] {
             prefsDictionary::prefsDict().insert(u"AccountNumber"_s, u"9999-8888"_s);
             prefsDictionary::savePreferences();
         }},
        {"window data", false, u"Quillmark couldn't save the places of its windows: "_s, {},
         [&] { writeWindowData(home.books(), QRect(1, 2, 3, 4)); },
         [&] { writeWindowData(home.books(), QRect(10, 20, 990, 712)); }},
    };

    for (const auto& kind : kinds) {
        for (const auto& failure : failures) {
            if (failure.largeFilesOnly && !kind.large)
                continue;
            SCOPED_TRACE(std::string(kind.name) + ", " + stepName(failure.step) + " after "
                         + std::to_string(failure.bytes) + " bytes");
            kind.prepare();
            platform.messages.clear();
            const QMap<QString, QByteArray> before = entriesUnder(home.path());
            {
                const FailingSaves failing(failure.step, failure.bytes);
                kind.save();
            }
            EXPECT_EQ(entriesUnder(home.path()), before) << "the old file stays, nothing is left beside it";
            EXPECT_EQ(platform.messages, QStringList{kind.message + failure.reason + u"."_s + kind.note});
        }
    }
}

TEST_F(SaveFailuresTest, AFullWriteGoesThroughAndAFailingFolderSyncIsToldWithoutClaimingTheOldFile)
{
    const auto books = openShop();
    const QString transactions = home.shop("Trans");
    books->transBox.userToggledCheck(0, TransCol::Account);
    const QByteArray saved = readBytes(transactions);
    ASSERT_GT(saved.size(), kPiece + 100) << "the ledger is written in more than one piece";
    books->transBox.userToggledCheck(0, TransCol::Account);
    {
        // The disk takes exactly the new file: the save goes through.
        const FailingSaves failing(Step::Write, saved.size());
        books->transBox.userToggledCheck(0, TransCol::Account);
        EXPECT_EQ(failing.written(), saved.size());
    }
    EXPECT_EQ(readBytes(transactions), saved);
    EXPECT_TRUE(platform.messages.isEmpty());
    {
        const FailingSaves failing(Step::FolderSync);
        books->transBox.userToggledCheck(0, TransCol::Account);
    }
    EXPECT_NE(readBytes(transactions), saved) << "the new file is in place";
    EXPECT_EQ(platform.messages, QStringList{u"Quillmark couldn't save the ledger \"Shop\": Input/output error."_s});
}

TEST_F(SaveFailuresTest, OneOperationTellsOnceThoughBothFilesFailAndARenameKeepsTheOldName)
{
    const auto books = openShop();
    const QMap<QString, QByteArray> before = entriesUnder(home.path());
    {
        const FailingSaves failing(Step::Write, 0);
        books->calcAll();
        typeInto(books->LedgerList, 0, 0, u"Store"_s);
    }
    EXPECT_EQ(books->LedgerList.Cell(0, 0), u"  Shop");
    EXPECT_EQ(books->theLedger, u"  Shop");
    EXPECT_EQ(entriesUnder(home.path()), before) << "the files of the old name stay, none of the new";
    ASSERT_EQ(platform.messages.size(), 2);
    EXPECT_EQ(platform.messages[0],
              u"Quillmark couldn't save the ledger \"Shop\": No space left on device."_s + kLedgerKept);
}

TEST_F(SaveFailuresTest, ARenameWhoseListCantBeSavedTakesBackTheFilesOfTheNewName)
{
    const auto books = openShop();
    const QString list = home.quillmark() + u"/BookList"_s;
    ASSERT_TRUE(QFile::remove(list) && QDir().mkdir(list)); // a folder where the list should be written
    typeInto(books->LedgerList, 0, 0, u"Store"_s);
    EXPECT_EQ(books->LedgerList.Cell(0, 0), u"  Shop");
    EXPECT_TRUE(fileExists(home.shop("Trans")));
    EXPECT_FALSE(fileExists(home.books() + u"/  StoreTransData"_s));
    EXPECT_FALSE(fileExists(home.books() + u"/  StoreAccountData"_s));
}
