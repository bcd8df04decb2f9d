#include "catalogue/dispatch.h"

#include "course/walk.h"
#include "tests/support/recorder.h"
#include "tests/support/store.h"

#include <QFile>

using support::Desk;
using support::errorOf;
using support::scoreStore;

namespace {

class DispatchTest : public testing::Test {
   protected:
    Desk desk;
    support::RecordingNavigator navigator;
    core::Context context = support::contextWith(desk, navigator);
    core::Session& session = desk.session;

    void show(const QString& useForm, int recordNo = 50) {
        session.useForm = useForm;
        session.recordNo = recordNo;
        session.topicNo = 4;
        session.pageNo = 1;
        session.stepType = "Lesson";
        session.stepTitle = "be동사 1";
        course::ShowFormByName(context);
    }
};

}  // namespace

struct ScreenCase {
    const char* useForm;
    bool videoFirst;
};

class ScreenOfAName : public DispatchTest, public testing::WithParamInterface<ScreenCase> {};

TEST_P(ScreenOfAName, OpensAfterItsVideoWhereItHasOne) {
    show(GetParam().useForm);
    if (GetParam().videoFirst) {
        ASSERT_EQ(navigator.screens(), QStringList{"frmVideo_2014"});
        navigator.closeLast();
        EXPECT_EQ(navigator.screens(), (QStringList{"frmVideo_2014", GetParam().useForm}));
    } else {
        EXPECT_EQ(navigator.screens(), QStringList{GetParam().useForm});
    }
}

INSTANTIATE_TEST_SUITE_P(Names, ScreenOfAName,
                         testing::Values(ScreenCase{"frmQuiz", false}, ScreenCase{"frmQuiz2", false},
                                         ScreenCase{"frmQuiz3", false}, ScreenCase{"frmQuiz4", false},
                                         ScreenCase{"frmQuiz5", false}, ScreenCase{"frmQuiz6", false},
                                         ScreenCase{"frmQuiz7", false}, ScreenCase{"frmQuiz8", false},
                                         ScreenCase{"frmQuiz9", false}, ScreenCase{"frmQuiz10", false},
                                         ScreenCase{"frmQuiz11", false}, ScreenCase{"frmQuiz12", false},
                                         ScreenCase{"frmLesson", true}, ScreenCase{"frmLesson2", true},
                                         ScreenCase{"frmLesson3_2", true}, ScreenCase{"frmLesson4", true},
                                         ScreenCase{"frmLesson7", true}, ScreenCase{"frmLesson8", true},
                                         ScreenCase{"frmLesson9", true}, ScreenCase{"frmLesson10", true},
                                         ScreenCase{"frmLesson11", true}, ScreenCase{"frmLesson17", true},
                                         ScreenCase{"frmLesson18", false}, ScreenCase{"frmLesson18_2", false},
                                         ScreenCase{"frmLesson24", false}),
                         [](const auto& row) { return std::string(row.param.useForm); });

TEST_F(DispatchTest, NoOtherNameShowsAnything) {
    for (const char* name : {"", "frmTable", "frmLesson5", "frmLesson2_2", "frmQuiz13", "frmVoca2", "FRMQUIZ",
                             "frmquiz", " frmQuiz", "frmLesson03"}) {
        show(name);
        EXPECT_TRUE(navigator.asked.empty()) << name;
    }
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(catalogue::dispatchRows().size(), 26U);
}

TEST_F(DispatchTest, FrmLesson18HasItsVideoAtStep183Only) {
    show("frmLesson18", 183);
    EXPECT_EQ(navigator.screens(), QStringList{"frmVideo_2014"});
    navigator.closeLast();
    EXPECT_EQ(navigator.screens().last(), "frmLesson18");
    show("frmLesson18", 184);
    EXPECT_EQ(navigator.asked.size(), 3U);
    EXPECT_EQ(navigator.screens().last(), "frmLesson18");
}

TEST_F(DispatchTest, TheVideoOfStep21GoesOnIntoTheClozeAndStoresNothing) {
    show("frmLesson3", 21);
    navigator.closeLast();
    EXPECT_EQ(navigator.screens(), (QStringList{"frmVideo_2014", "frmLesson3_2"}));
    EXPECT_TRUE(desk.rows(scoreStore, "select * from score").isEmpty());
}

TEST_F(DispatchTest, AVideoStepIsFullMarksAsSoonAsItsVideoHasEndedAndLeadsBackToTheTable) {
    session.wordNo = 3;
    show("frmLesson3", 45);
    EXPECT_TRUE(desk.rows(scoreStore, "select * from score").isEmpty()) << "nothing while the video runs";
    navigator.closeLast();
    EXPECT_EQ(navigator.screens(), (QStringList{"frmVideo_2014", "frmTable"}));
    EXPECT_EQ(
        desk.rows(scoreStore,
                  "select recordno,page2,datapage,lessontype,vtitle,s1,s2,s3,s4,s5,s6,s7,S8,s9,s10,s11,s12 "
                  "from score"),
        QStringList{"45|45|4|Lesson|be동사 1||||100.0||||||||"});
    EXPECT_EQ(
        desk.rows(scoreStore,
                  "select st1,st2,st3,st4,st5,st6,st7,st8,dayno,vDate,studentno,program,studentname,bookno "
                  "from score"),
        QStringList{"NO|NO|NO|NO|NO|NO|NO|NO|1|2026-03-14|1001|Tovalin1|김하늘|0"});
    EXPECT_FALSE(session.scoreDb.isOpen());
}

TEST_F(DispatchTest, AVideoWatchedAgainRenewsDateAndMarksAlone) {
    desk.exec(scoreStore,
              "insert into score(recordno,page2,studentno,program,vtitle,s1,s3,s4,vDate) values"
              "(45,45,'1001','Tovalin1','old','100','70',0,'2025-01-01'),"
              "(45,45,'1002','Tovalin1','other','','',0,'2025-01-01')");
    show("frmLesson3", 45);
    navigator.closeLast();
    EXPECT_EQ(desk.rows(scoreStore, "select studentno,vtitle,s1,s3,s4,vDate from score order by studentno"),
              (QStringList{"1001|old|100|70|100.0|2026-03-14", "1002|other|||0.0|2025-01-01"}));
}

TEST_F(DispatchTest, AFinishedVideoStepHoldsNobodyBack) {
    desk.exec(scoreStore, "insert into score(recordno,studentno,program,s4) values(45,'1001','Tovalin1',0)");
    course::CheckQuizCompleted(context);
    EXPECT_EQ(session.quizzesComplete, "NO");
    show("frmLesson3", 45);
    navigator.closeLast();
    course::CheckQuizCompleted(context);
    EXPECT_EQ(session.quizzesComplete, "YES");
}

TEST_F(DispatchTest, AMissingScoreStoreEndsTheRunAfterTheVideo) {
    QFile::remove(desk.file(scoreStore));
    show("frmLesson3", 45);
    EXPECT_EQ(errorOf([&] { navigator.closeLast(); }), 3024);
}
