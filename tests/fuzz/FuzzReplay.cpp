// Runs a fuzz target over every file of its corpus, as part of the ordinary
// tests: an input that once broke a rule keeps being checked.
#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

TEST(FuzzReplay, EveryInputOfTheCorpusKeepsTheRules)
{
    const QDir corpus(QStringLiteral(QUILLMARK_FUZZ_CORPUS));
    const QStringList inputs = corpus.entryList(QDir::Files);
    ASSERT_FALSE(inputs.isEmpty()) << "no corpus at " << corpus.path().toStdString();
    for (const QString& name : inputs) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        // A broken rule aborts the run; the name before it says which input.
        std::fprintf(stderr, "%s\n", qPrintable(name));
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
    }
}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
