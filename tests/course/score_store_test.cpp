#include "course/score_store.h"

#include "course/preparation.h"
#include "course/score.h"
#include "course/walk.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/recorder.h"
#include "tests/support/store.h"

#include <QFile>

#include <optional>

using support::Desk;
using support::errorOf;
using support::scoreStore;

namespace {

/// A quiz that has just been finished with 85 points.
class ScoreStoreTest : public testing::Test {
   protected:
    Desk desk;
    const QString file = desk.file(scoreStore);

    ScoreStoreTest() {
        desk.session.recordNo = 5;
        desk.session.stepType = QStringLiteral("Quiz");
        desk.session.scoreSlot = 4;
        desk.session.scoreValue = 85;
    }
    int save(QString* sentence = nullptr) {
        return errorOf([&] { course::SaveScore(desk.context()); }, sentence);
    }
    QStringList stored() const { return desk.rows(scoreStore, "select recordno,s4 from score"); }
    void refuseRows() const {
        desk.exec(scoreStore,
                  "create trigger full before insert on score begin select raise(abort, 'no room'); end");
    }
};

}  // namespace

TEST_F(ScoreStoreTest, AScoreThatCouldNotBeSavedIsKeptUntilItIs) {
    refuseRows();
    desk.boxes.answers = {true, true};
    desk.boxes.onShow = [this](const platform::Message& message) {
        EXPECT_TRUE(message.tryAgain);
        EXPECT_TRUE(message.advice.contains(scoreStore) && message.advice.contains("no room"))
            << message.advice.toStdString();
        EXPECT_EQ(desk.session.scoreValue, 85);
        if (desk.boxes.shown.size() == 2)
            desk.exec(scoreStore, "drop trigger full");
    };
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
    EXPECT_EQ(stored(), QStringList{"5|85.0"});
}

TEST_F(ScoreStoreTest, GivingUpIsTheFailureItselfAndNothingHalfIsStored) {
    refuseRows();
    QString sentence;
    EXPECT_EQ(save(&sentence), 3049);
    EXPECT_TRUE(sentence.contains(scoreStore) && sentence.contains("no room")) << sentence.toStdString();
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_TRUE(stored().isEmpty());
    desk.exec(scoreStore, "drop trigger full");
    EXPECT_EQ(save(), 0) << "the store was let go of";
}

TEST_F(ScoreStoreTest, AStoreThatWasTakenAwayIsSavedToOnceItIsBack) {
    ASSERT_TRUE(QFile::rename(file, file + ".away"));
    desk.boxes.answers = {true};
    desk.boxes.onShow = [this](const platform::Message&) { QFile::rename(file + ".away", file); };
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(stored(), QStringList{"5|85.0"});
}

TEST_F(ScoreStoreTest, AFullDiskIsToldWithItsReasonAndSavedToOnceThereIsRoom) {
    std::optional<support::FileSizeLimit> full(0);
    desk.boxes.answers = {true};
    desk.boxes.onShow = [&](const platform::Message& message) {
        full.reset();
        EXPECT_TRUE(message.advice.contains("File too large")) << message.advice.toStdString();
    };
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(stored(), QStringList{"5|85.0"});
}

TEST_F(ScoreStoreTest, WhatIsWrongWithAScoreItselfIsNotTriedAgain) {
    desk.exec(scoreStore,
              "insert into score(recordno,studentno,program,s2,s3) values(5,'1001','Tovalin1','N/A','N/A')");
    desk.session.programCode = QStringLiteral("Tovalin1");
    desk.session.scoreSlot = 3;
    EXPECT_EQ(save(), 13);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(ScoreStoreTest, AWatchedVideoIsSavedInTheSameWay) {
    support::RecordingNavigator navigator;
    const core::Context context = support::contextWith(desk, navigator);
    desk.session.useForm = QStringLiteral("frmLesson3");
    course::ShowFormByName(context);
    refuseRows();
    desk.boxes.answers = {true};
    desk.boxes.onShow = [this](const platform::Message&) { desk.exec(scoreStore, "drop trigger full"); };
    navigator.closeLast();
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(stored(), QStringList{"5|100.0"});
    EXPECT_EQ(navigator.screens().last(), "frmTable");
}

TEST_F(ScoreStoreTest, AStepWhoseScoreCouldNotBeSavedIsToldBeforeItStarts) {
    desk.exec(support::wordBookStore, "insert into word_book(word) values('of the step before')");
    for (const bool final : {false, true}) {
        desk.boxes.shown.clear();
        std::optional<support::FileSizeLimit> full(0);
        QString sentence;
        EXPECT_EQ(errorOf(
                      [&] {
                          if (final)
                              course::PrepareFinalData(desk.context());
                          else
                              course::PrepareStepData(desk.context());
                      },
                      &sentence),
                  3049);
        full.reset();
        EXPECT_TRUE(sentence.contains(scoreStore)) << sentence.toStdString();
        EXPECT_EQ(desk.boxes.shown.size(), 1U);
        EXPECT_TRUE(desk.boxes.shown.front().tryAgain);
        EXPECT_EQ(desk.row(support::wordBookStore, "select word from word_book"), "of the step before");
    }
    EXPECT_EQ(errorOf([&] { course::PrepareStepData(desk.context()); }), 0);
    EXPECT_EQ(desk.rows(support::wordBookStore, "select word from word_book").size(), 0);
}

TEST_F(ScoreStoreTest, AWorksheetNeedsNoScores) {
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(errorOf([&] { course::PrepareStepDataForSheet(desk.context()); }), 0);
    EXPECT_TRUE(desk.boxes.shown.empty());
}
