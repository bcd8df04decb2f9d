#include "core/schema.h"

#include "core/stores.h"
#include "tests/support/store.h"

#include <QFile>

using support::Desk;
using support::errorOf;

namespace {

struct StorePath {
    const char* store;
    const char* path;
};

const std::vector<StorePath> stores{{"dicword.mdb", "C:\\A_Mendori\\Main\\dicword.mdb"},
                                    {"dicword_K.mdb", "D:\\dicword_K.mdb"},
                                    {"DbScore", "C:\\A_Mendori\\Main\\DbScore_1001.mdb"},
                                    {"Pversion_2026.mdb", "C:\\A_Mendori\\Main\\Pversion_2026.mdb"},
                                    {"tovalin.mdb", "D:\\tovalin.mdb"},
                                    {"tovalin.mdb", "C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb"},
                                    {"Tovalin_Data.mdb", "D:\\Tovalin_Data.mdb"},
                                    {"testword_im.mdb", "D:\\testword_im.mdb"},
                                    {"testword_2013.mdb", "D:\\testword_2013.mdb"}};

QString fields(const char* store, const char* table, int count) {
    const core::TableDefinition* definition = core::findTable(store, table);
    QStringList names;
    for (const core::FieldShape& field : definition->fields.first(static_cast<std::size_t>(count)))
        names.append(QString::fromUtf8(field.name.data(), static_cast<qsizetype>(field.name.size())));
    return names.join(u',');
}

}  // namespace

TEST(Schema, EveryTableOfEveryStoreOpens) {
    const Desk desk;
    int opened = 0;
    for (const StorePath& place : stores)
        for (const core::TableDefinition& table : core::tableDefinitions())
            if (table.store == place.store) {
                const auto database =
                    platform::Database::open(desk.file(QLatin1String(place.path)), QLatin1String(place.path));
                const auto rows = database.openRecordset(
                    QStringLiteral("Select * from ") +
                    QString::fromUtf8(table.table.data(), static_cast<qsizetype>(table.table.size())));
                EXPECT_TRUE(rows.isEmpty());
                EXPECT_EQ(rows.fieldCount(), static_cast<int>(table.fields.size())) << table.table;
                ++opened;
            }
    EXPECT_GE(opened, 32);
}

TEST(Schema, TablesThatAreCopiedByPositionBeginAlike) {
    EXPECT_EQ(fields("tovalin.mdb", "tablework", 12), fields("tovalin.mdb", "tablework_Final", 12));
    EXPECT_TRUE(fields("tovalin.mdb", "tablework", 12).contains("quizno"));
    EXPECT_EQ(fields("tovalin.mdb", "quiz_data_New3", 17),
              fields("Tovalin_Data.mdb", "tovalin1_quiz_data", 17));
    EXPECT_EQ(fields("tovalin.mdb", "basic_Data", 8), fields("Tovalin_Data.mdb", "tovalin1_Basic_Data", 8));
    EXPECT_EQ(fields("tovalin.mdb", "gram_tip", 3), "recordno,topicno,tips");
}

TEST(Schema, TablesAreFoundInAnyCase) {
    EXPECT_NE(core::findTable("TOVALIN.MDB", "basic_data"), nullptr);
    EXPECT_EQ(core::findTable("tovalin.mdb", "score"), nullptr);
}

TEST(Stores, EachStoreLiesWhereItsProgramLooksForIt) {
    Desk desk;
    EXPECT_EQ(core::coursePath(desk.context()), "D:\\\\tovalin.mdb");
    EXPECT_EQ(core::worksheetCoursePath(), "C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb");
    EXPECT_EQ(core::scorePath(desk.session), "C:\\A_Mendori\\Main\\DbScore_1001.mdb");
    EXPECT_TRUE(core::openCourse(desk.context()).isOpen());
    EXPECT_TRUE(core::openMaster(desk.context()).isOpen());
    EXPECT_TRUE(core::openWordBook(desk.context()).isOpen());
    EXPECT_TRUE(core::openTestWords(desk.context()).isOpen());
    EXPECT_TRUE(core::openScores(desk.context()).isOpen());
}

TEST(Stores, AMissingStoreOrTableEndsInTheProgramsOwnError) {
    Desk desk;
    QFile::remove(desk.file("D:\\testword_2013.mdb"));
    QString sentence;
    EXPECT_EQ(errorOf([&] { core::openTestWords(desk.context()); }, &sentence), 3024);
    EXPECT_TRUE(sentence.contains("testword_2013.mdb"));
    desk.exec(support::courseStore, "drop table topic");
    EXPECT_EQ(errorOf([&] { core::openCourse(desk.context()).openRecordset("Select * from topic"); }), 3078);
}

TEST(Stores, AScoreRowThatIsNotThereReadsAsNotDone) {
    Desk desk;
    desk.session.recordNo = 5;
    const auto rows =
        core::openScores(desk.context())
            .openRecordset("Select * from score where " + core::learnerStepCriterion(desk.session));
    EXPECT_TRUE(rows.isEmpty());
}

TEST(Stores, TheMainScoreComparesWithTheNumberZero) {
    Desk desk;
    desk.exec(support::scoreStore, "insert into score(recordno,s4) values(1,0),(2,100),(3,NULL)");
    auto rows = core::openScores(desk.context()).openRecordset("Select * from score where S4 =0");
    EXPECT_EQ(rows.integer("recordno"), 1);
    rows.moveNext();
    EXPECT_TRUE(rows.eof());
}
