#include "tests/tools/import/fake.h"

#include "tools/import/scores.h"

#include <gtest/gtest.h>

namespace {

using namespace tools;

struct Scores {
    SQLite::Database store{":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};

    explicit Scores(const std::vector<const char*>& rows) {
        for (const QString& statement : core::createStatements(*core::findTable("DbScore", "score")))
            store.exec(statement.toStdString());
        for (const char* row : rows)
            store.exec(std::string("INSERT INTO score (studentno, program, recordno, s4, vDate) VALUES (") +
                       row + ")");
    }

    QString rows() {
        SQLite::Statement query(store,
                                "SELECT studentno, program, recordno, s4, vDate FROM score ORDER BY rowid");
        QStringList lines;
        while (query.executeStep()) {
            QStringList fields;
            for (int i = 0; i < 5; ++i)
                fields.append(query.getColumn(i).isNull() ? QStringLiteral("-")
                                                          : QString::fromUtf8(query.getColumn(i).getText()));
            lines.append(fields.join(u' '));
        }
        return lines.join(u';');
    }
};

TEST(ScoreMerge, AddsTheStepsThatTheLearnerHasNoRowOf) {
    Scores old({"'1001','Tovalin1',2,80,'2026-01-02'"});
    Scores used({"'1001','Tovalin1',1,100,'2026-01-01'"});
    const ScoreMerge merge = mergeScores(old.store, used.store);
    EXPECT_EQ(merge.added, 1);
    EXPECT_EQ(used.rows(),
              QStringLiteral("1001 Tovalin1 1 100.0 2026-01-01;1001 Tovalin1 2 80.0 2026-01-02"));
}

TEST(ScoreMerge, TakesTheRowOfTheNewerDate) {
    Scores old({"'1001','Tovalin1',1,70,'2026-02-01'"});
    Scores used({"'1001','Tovalin1',1,100,'2026-01-01'"});
    const ScoreMerge merge = mergeScores(old.store, used.store);
    EXPECT_EQ(merge.renewed, 1);
    EXPECT_EQ(used.rows(), QStringLiteral("1001 Tovalin1 1 70.0 2026-02-01"));
    EXPECT_EQ(merge.details,
              QStringList{QStringLiteral(
                  "student 1001, Tovalin1, step 1: taken, 2026-02-01 is newer than 2026-01-01.")});
}

TEST(ScoreMerge, KeepsTheRowInUseWhereItIsNewerOrOfTheSameDay) {
    Scores old({"'1001','Tovalin1',1,70,'2026-01-01'", "'1001','Tovalin1',2,70,'2025-01-01'"});
    Scores used({"'1001','Tovalin1',1,100,'2026-01-01'", "'1001','Tovalin1',2,90,'2026-01-01'"});
    const ScoreMerge merge = mergeScores(old.store, used.store);
    EXPECT_EQ(merge.kept, 2);
    EXPECT_EQ(merge.details.size(), 2);
    EXPECT_EQ(used.rows(),
              QStringLiteral("1001 Tovalin1 1 100.0 2026-01-01;1001 Tovalin1 2 90.0 2026-01-01"));
}

TEST(ScoreMerge, TakesADateForNewerThanNoDate) {
    Scores old({"'1001','Tovalin1',1,70,'1999-01-01'", "'1001','Tovalin1',2,70,NULL"});
    Scores used({"'1001','Tovalin1',1,100,NULL", "'1001','Tovalin1',2,90,'1999-01-01'"});
    mergeScores(old.store, used.store);
    EXPECT_EQ(used.rows(), QStringLiteral("1001 Tovalin1 1 70.0 1999-01-01;1001 Tovalin1 2 90.0 1999-01-01"));
}

TEST(ScoreMerge, TellsLearnersAndProgramsApart) {
    Scores old({"'1002','Tovalin1',1,70,'2026-02-01'", "'1001','Other',1,60,'2026-02-01'"});
    Scores used({"'1001','Tovalin1',1,100,'2026-01-01'"});
    EXPECT_EQ(mergeScores(old.store, used.store).added, 2);
}

TEST(ScoreMerge, ChangesNothingTheSecondTime) {
    Scores old({"'1001','Tovalin1',1,70,'2026-02-01'", "NULL,NULL,22,NULL,NULL"});
    Scores used({});
    mergeScores(old.store, used.store);
    const QString rows = used.rows();
    const ScoreMerge again = mergeScores(old.store, used.store);
    EXPECT_EQ(again.alike, 2);
    EXPECT_EQ(again.added + again.renewed + again.kept, 0);
    EXPECT_EQ(used.rows(), rows);
}

TEST(ScoreMerge, TakesAllRowsOrNone) {
    Scores old({"'1001','Tovalin1',1,70,'2026-02-01'"});
    old.store.exec("ALTER TABLE score ADD COLUMN remark TEXT");
    Scores used({"'1001','Tovalin1',1,100,'2026-01-01'"});
    EXPECT_THROW(mergeScores(old.store, used.store), ReadError);
    EXPECT_EQ(used.rows(), QStringLiteral("1001 Tovalin1 1 100.0 2026-01-01"));
}

}  // namespace
