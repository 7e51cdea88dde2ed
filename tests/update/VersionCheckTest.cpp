#include "support/DataFolder.h"
#include "update/Server.h"
#include "update/VersionCheck.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(VersionCheck, ComparisonNumbersJoinTheDigits)
{
    const struct {
        QString version;
        double number;
    } cases[] = {
        {u"2.4.4"_s, 244}, {u"2.5"_s, 250}, {u"3"_s, 300}, {u"2.4.10"_s, 2410}, {u"1.9.9"_s, 199},
        {u"2.10"_s, 210},  {u""_s, 0},      {u"2.x"_s, 2},  {u"x"_s, 0},         {u"99999999999999999999"_s, 1e20},
    };
    for (const auto& c : cases)
        EXPECT_EQ(VersionCheck::comparisonNumber(c.version), c.number) << c.version.toStdString();
}

TEST(VersionCheck, TheFileOffersOnlyAGreaterVersionAndIsKeptOnlyWhenItsFirstLineIsEmpty)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"Temporary Version File"_s);
    const QString offer = u"There is a newer version of Quillmark Pro available. Would you like to download it now?"_s;
    const struct {
        QByteArray file;
        bool keep;
        QString offer;
    } cases[] = {
        {"Quillmark Pro\n2.4.5\n", false, offer},
        {"Quillmark Pro\r\n2.10\r\n", false, {}},
        {"Quillmark Pro\r3\r", false, offer},
        {"Quillmark Pro\n2.4.4\n", false, {}},
        {"Quillmark Pro\n99999999999999999999", false, offer},
        {"Quillmark Pro", false, {}},
        {"\n9.9.9\n", true, {}},
        {"", true, {}},
        {"\x89PNG\r\n\x1a\n\0\0\xff", false, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file.toStdString());
        writeBytes(path, c.file);
        const VersionCheck::Verdict verdict = VersionCheck::readVersionFile(path, u"2.4.4"_s);
        EXPECT_EQ(verdict.keepFile, c.keep);
        EXPECT_EQ(verdict.offer, c.offer);
    }
    EXPECT_EQ(VersionCheck::theAppName, u"\uFFFDPNG"_s);
    const VersionCheck::Verdict missing = VersionCheck::readVersionFile(folder.filePath(u"none"_s), u"2.4.4"_s);
    EXPECT_FALSE(missing.keepFile);
    EXPECT_TRUE(missing.offer.isEmpty());
}

TEST(VersionCheck, TheEnvironmentNamesAnotherServerWithItsPath)
{
    qputenv("QUILLMARK_SERVER", "http://mirror.example/qm/");
    EXPECT_EQ(serverAddress(u"/VersionInfo/QuillmarkVersion.txt"),
              u"http://mirror.example/qm/VersionInfo/QuillmarkVersion.txt"_s);
    qputenv("QUILLMARK_SERVER", "");
    EXPECT_FALSE(serverAddress(u"/fernwright.zip").startsWith(u"http://mirror.example"_s));
    qunsetenv("QUILLMARK_SERVER");
}
