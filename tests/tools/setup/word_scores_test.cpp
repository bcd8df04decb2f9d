// Learners who finished a step before it got words: what the set-up does to their rows.

#include "tools/setup/word_scores.h"

#include "course/score.h"
#include "tests/support/store.h"
#include "tools/setup/install.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using support::errorOf;
using support::scoreStore;

namespace {

class WordScores : public testing::Test {
   protected:
    WordScores() { desk.session.programCode = QStringLiteral("Tovalin1"); }
    void addScore(int recordNo, const std::string& words, const char* s4,
                  const char* program = "Tovalin1") const {
        desk.exec(scoreStore,
                  "insert into score(recordno,page2,s1,s2,s3,s4,vDate,studentno,program) values(" +
                      std::to_string(recordNo) + "," + std::to_string(recordNo) + "," + words + "," + s4 +
                      ",'2026-03-01','1001','" + program + "')");
    }
    QStringList scores() const {
        return desk.rows(scoreStore, "select recordno,s1,s2,s3,s4,vDate from score order by recordno,rowid");
    }
    void openWords() const { tools::openWordParts(QDir(desk.root()), steps); }
    int save(int slot, int score) {
        desk.session.recordNo = 105;
        desk.session.wordNo = 12;
        desk.session.stepType = QStringLiteral("Quiz");
        desk.session.scoreSlot = slot;
        desk.session.scoreValue = score;
        return errorOf([this] { course::SaveScore(desk.context()); });
    }

    support::Desk desk;
    const tools::BuiltTable steps{QStringLiteral("tovalin.mdb"),
                                  QStringLiteral("tablework"),
                                  {QStringLiteral("recordno"), QStringLiteral("wordno")},
                                  {{{104, 0}, {}}, {{105, 12}, {}}, {{106, 10}, {}}}};
};

}  // namespace

TEST_F(WordScores, AStepThatGotWordsTakesTheirResultsAndKeepsItsOwn) {
    addScore(105, "'N/A','N/A','N/A'", "85");
    ASSERT_EQ(save(2, 90), 13) << "as it stands the row holds no number";
    openWords();
    EXPECT_EQ(scores(), QStringList{"105|0|0|0|85.0|2026-03-01"});
    EXPECT_EQ(save(1, 0), 0);
    EXPECT_EQ(save(2, 90), 0);
    EXPECT_EQ(save(3, 70), 0);
    EXPECT_EQ(desk.row(scoreStore, "select s1,s2,s3,s4 from score"), "100|90|80|85.0");
}

TEST_F(WordScores, NoResultIsTouchedAndNoStepWithoutWordsEither) {
    addScore(104, "'N/A','N/A','N/A'", "70");
    addScore(105, "'100','90','67.5'", "0");
    addScore(106, "'100','N/A','N/A'", "60");
    addScore(107, "'N/A','N/A','N/A'", "50");
    const QStringList opened{"104|N/A|N/A|N/A|70.0|2026-03-01", "105|100|90|67.5|0.0|2026-03-01",
                             "106|100|0|0|60.0|2026-03-01", "107|N/A|N/A|N/A|50.0|2026-03-01"};
    openWords();
    EXPECT_EQ(scores(), opened);
    openWords();
    EXPECT_EQ(scores(), opened);
}

TEST_F(WordScores, AVideoWatchedWithoutItsWordsLeavesThemOpenToo) {
    addScore(105, "'','',NULL", "100");
    openWords();
    EXPECT_EQ(scores(), QStringList{"105|0|0|0|100.0|2026-03-01"});
}

TEST_F(WordScores, RowsOfAnotherProgramStayAsTheyAre) {
    addScore(105, "'N/A','N/A','N/A'", "85", "Other");
    openWords();
    EXPECT_EQ(scores(), QStringList{"105|N/A|N/A|N/A|85.0|2026-03-01"});
}

TEST_F(WordScores, ADamagedStoreIsLeftAsItIsAndKeepsNoOtherWaiting) {
    const QString damaged = desk.file(QStringLiteral("C:\\A_Mendori\\Main\\DbScore_1000.mdb"));
    ASSERT_TRUE(QFile::copy(desk.file(scoreStore), damaged));
    QFile store(damaged);
    ASSERT_TRUE(store.resize(1500));
    addScore(105, "'N/A','N/A','N/A'", "85");
    openWords();
    EXPECT_EQ(scores(), QStringList{"105|0|0|0|85.0|2026-03-01"});
    EXPECT_EQ(store.size(), 1500);
}
