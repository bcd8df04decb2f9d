#include "tests/tools/import/fake.h"

#include "tools/import/isolated.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <unistd.h>
#include <csignal>
#include <cstdlib>

namespace {

using namespace tools;
using namespace import_test;

/// Does something terrible before a row.
class TerribleReader final : public AccessReader {
   public:
    explicit TerribleReader(std::function<void()> terror) : terror_(std::move(terror)) {}
    QStringList tables() override { return {QStringLiteral("good"), QStringLiteral("bad")}; }
    SourceTable openTable(const QString& name) override {
        bad_ = name == QStringLiteral("bad");
        given_ = 0;
        return {name, {{QStringLiteral("word"), SourceType::Text, 10}}, 2};
    }
    bool nextRow(SourceRow& row) override {
        if (bad_ && given_ == 1)
            terror_();
        row = import_test::row({QStringLiteral("row")});
        return given_++ < 2;
    }
    int codePage() const override { return 949; }

   private:
    std::function<void()> terror_;
    bool bad_ = false;
    int given_ = 0;
};

std::unique_ptr<AccessReader> isolated(std::function<void()> terror, int patienceMs = 30000) {
    return isolatedMaker([terror](const QString&, int) { return std::make_unique<TerribleReader>(terror); },
                         patienceMs)(QStringLiteral("file"), unknownPage);
}

int countRows(AccessReader& reader, const QString& table) {
    reader.openTable(table);
    SourceRow row;
    int count = 0;
    while (reader.nextRow(row))
        ++count;
    return count;
}

QString failureOf(AccessReader& reader) {
    try {
        countRows(reader, QStringLiteral("bad"));
    } catch (const ReadError& error) {
        return error.sentence();
    }
    return {};
}

TEST(IsolatedReader, GivesWhatTheReaderGives) {
    const auto reader = isolatedMaker([](const QString&, int) {
        FakeTable table = newWords();
        table.rows[0].problems.push_back({QStringLiteral("word"), QStringLiteral("odd"), true});
        return std::make_unique<FakeReader>(std::vector{table});
    })(QStringLiteral("file"), unknownPage);
    EXPECT_EQ(reader->tables(), QStringList{QStringLiteral("newword")});
    const SourceTable table = reader->openTable(QStringLiteral("newword"));
    ASSERT_EQ(table.columns.size(), 4U);
    EXPECT_EQ(table.columns[0].type, SourceType::Integer);
    EXPECT_EQ(table.columns[1].typeCode, 10);
    EXPECT_EQ(table.declaredRows, 2);
    SourceRow row;
    ASSERT_TRUE(reader->nextRow(row));
    EXPECT_EQ(row.values[0], QVariant(qlonglong{2}));
    EXPECT_EQ(row.values[2], QVariant(QStringLiteral("등불")));
    EXPECT_FALSE(row.values[3].isValid());
    ASSERT_EQ(row.problems.size(), 1U);
    EXPECT_TRUE(row.problems[0].ofTable);
    ASSERT_TRUE(reader->nextRow(row));
    EXPECT_TRUE(row.values[3].isValid());
    EXPECT_FALSE(reader->nextRow(row));
}

TEST(IsolatedReader, TellsTheCodePageThatTheReaderFound) {
    const auto reader = isolated([] {});
    reader->tables();
    EXPECT_EQ(reader->codePage(), 949);
}

TEST(IsolatedReader, OutlivesAReaderThatCrashes) {
    const auto reader = isolated([] { std::raise(SIGSEGV); });
    EXPECT_EQ(failureOf(*reader), QStringLiteral("the file is damaged: reading it broke down"));
    EXPECT_EQ(countRows(*reader, QStringLiteral("good")), 2);
}

TEST(IsolatedReader, OutlivesAReaderThatEndsTheProcess) {
    EXPECT_EQ(failureOf(*isolated([] { std::_Exit(0); })),
              QStringLiteral("the file is damaged: reading it broke down"));
}

TEST(IsolatedReader, DoesNotWaitForAReaderThatCircles) {
    EXPECT_EQ(failureOf(*isolated([] { pause(); }, 100)),
              QStringLiteral("the file is damaged: reading it came to no end"));
}

TEST(IsolatedReader, PassesSentencesOn) {
    EXPECT_EQ(failureOf(*isolated([] { throw ReadError(QStringLiteral("page 7 is damaged")); })),
              QStringLiteral("page 7 is damaged"));
}

TEST(IsolatedReader, TakesARowOfAnyLength) {
    const QString tips(300000, QChar(0xc12c));
    const auto reader = isolatedMaker([&](const QString&, int) {
        FakeTable table;
        table.shape = {QStringLiteral("t"), {{QStringLiteral("tips"), SourceType::Text, 12}}, 1};
        table.rows = {row({tips})};
        return std::make_unique<FakeReader>(std::vector{table});
    })(QStringLiteral("file"), unknownPage);
    reader->openTable(QStringLiteral("t"));
    SourceRow row;
    ASSERT_TRUE(reader->nextRow(row));
    EXPECT_EQ(row.values[0].toString(), tips);
}

TEST(IsolatedReader, WaitsForAllRowsOfAFileNoLongerThanForAFewOfThem) {
    QElapsedTimer time;
    time.start();
    const auto reader = isolated([] { pause(); }, 100);
    QStringList sentences;
    for (int table = 0; table < 20; ++table)
        sentences.append(failureOf(*reader));
    EXPECT_EQ(sentences.first(), QStringLiteral("the file is damaged: reading it came to no end"));
    EXPECT_EQ(sentences.last(), QStringLiteral("the file is damaged: reading it took longer than 0 seconds"));
    EXPECT_LT(time.elapsed(), 20 * 100);
}

#if !defined(__SANITIZE_ADDRESS__)

TEST(IsolatedReader, RefusesAFileThatAsksForTooMuchMemory) {
    const QString expected =
        QStringLiteral("the file is damaged: reading it took more than 512 MB of memory");
    EXPECT_EQ(failureOf(*isolated([] { std::vector<char>(std::size_t{600} << 20).front() = 'x'; })),
              expected);
    EXPECT_EQ(failureOf(*isolated([] { std::raise(SIGTRAP); })), expected);
    // As a library does that uses the last of it and breaks down over the next.
    EXPECT_EQ(failureOf(*isolated([] {
                  std::vector<char> most(std::size_t{470} << 20, 'x');
                  std::raise(most.back() == 'x' ? SIGSEGV : SIGINT);
              })),
              expected);
}

#endif

TEST(IsolatedReader, RefusesARowThatIsLongerThanAnyOfACourse) {
    const auto reader = isolatedMaker([&](const QString&, int) {
        FakeTable table;
        table.shape = {QStringLiteral("t"), {{QStringLiteral("tips"), SourceType::Text, 12}}, 1};
        table.rows = {row({QString(40 << 20, u'x')})};
        return std::make_unique<FakeReader>(std::vector{table});
    })(QStringLiteral("file"), unknownPage);
    reader->openTable(QStringLiteral("t"));
    SourceRow row;
    try {
        reader->nextRow(row);
        FAIL();
    } catch (const ReadError& error) {
        EXPECT_EQ(error.sentence(), QStringLiteral("the file is damaged: a row is longer than 64 MB"));
    }
}

}  // namespace
