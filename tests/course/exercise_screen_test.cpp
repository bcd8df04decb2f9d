#include "course/exercise_screen.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "platform/desktop/timer.h"
#include "platform/desktop/waiting.h"
#include "tests/support/assistive.h"
#include "tests/support/course_rows.h"
#include "tests/support/recorder.h"
#include "tools/media/wave.h"

#include <QDir>
#include <QFile>
#include <QPointer>

#include <gtest/gtest.h>

using course::ChromeLayout;
using support::Desk;
using support::find;

namespace {

/// The least screen that wears the chrome.
class TinyScreen final : public course::ExerciseScreen {
   public:
    TinyScreen(core::Context& context, const ChromeLayout& layout)
        : ExerciseScreen(context, QStringLiteral("frmTiny"), layout) {}

    QStringList log;
    bool dataOpen() const { return contentDb.isOpen() || rows_.isOpen(); }
    bool stay = false;
    QString word;

   protected:
    void firstTick() override {
        log.append(isVisible() ? QStringLiteral("tick on view") : QStringLiteral("tick"));
        contentDb = core::openCourse(context());
        rows_ = contentDb.openRecordset(QStringLiteral("Select * from tablework"));
        showPreByWords();
        if (!word.isEmpty())
            core::PlaySound(context(), word, core::WordAndWait);
        if (stay)
            keepTimerRunning();
    }
    void closeRecordsets() override {
        log.append(QStringLiteral("close, content %1, dictionary %2")
                       .arg(contentDb.isOpen() ? "open" : "closed",
                            session().dictionaryDb.isOpen() ? "open" : "closed"));
        rows_.close();
    }
    void beginClicked() override {
        showBegin(false);
        showQuizButton(true);
    }
    void quizClicked() override { log.append(QStringLiteral("check")); }
    void restoreHover() override { log.append(QStringLiteral("restore")); }

   private:
    platform::Recordset rows_;
};

class ExerciseChrome : public testing::Test {
   protected:
    Desk desk;
    support::RecordingNavigator navigator;
    support::SoundHook hook;
    core::Context context = support::contextWith(desk, navigator);
    core::Session& session = desk.session;
    QPointer<TinyScreen> screen;

    void open(const ChromeLayout& layout = {}) { openIn(context, layout); }
    void openIn(core::Context& where, const ChromeLayout& layout = {}) {
        session.stepTitle = "명사 3";
        screen = new TinyScreen(where, layout);
        screen->show();
        const auto& timer = find<platform::Timer>(screen, QStringLiteral("TimerGo"));
        support::waitFor([&] { return !timer.enabled() || !desk.failure().isEmpty(); });
    }
    platform::PictureButton& button(const char* name) const {
        return find<platform::PictureButton>(screen, QLatin1String(name));
    }
    QString pictureOf(const char* name) const { return button(name).property("picture").toString(); }
    QString placeOf(const char* name) const {
        const QPoint place = screen->placeOf(button(name)).topLeft();
        return QStringLiteral("%1,%2").arg(place.x()).arg(place.y());
    }
    void press(const char* name) const { support::click(button(name)); }
    void begunStep() const {
        desk.exec(support::scoreStore,
                  "insert into score(recordno,page2,vtitle,s4,studentno,program) "
                  "values(9,9,'',0,'1001','Tovalin1')");
    }
};

}  // namespace

TEST_F(ExerciseChrome, HasTheSizeTheTitleAndTheBackgroundOfItsLoadStep) {
    open({.picture = "Main1.jpg"});
    EXPECT_EQ(screen->size(), QSize(993, 718));
    EXPECT_EQ(screen->property("picture").toString(), "Main1.jpg");
    EXPECT_EQ(find<platform::Label>(screen, "lblTopic").caption(), "명사 3");
    EXPECT_EQ(screen->accessibleName(), "명사 3");
}

TEST_F(ExerciseChrome, TheButtonsStandAtTheirPlacesInTheUpperLayout) {
    open();
    EXPECT_EQ(placeOf("picExit"), "832,16");
    EXPECT_EQ(placeOf("picTable"), "688,16");
    EXPECT_EQ(placeOf("picQuiz"), "872,344");
    EXPECT_EQ(placeOf("picBegin"), "872,344");
    EXPECT_EQ(placeOf("picNext"), "872,456");
    EXPECT_EQ(placeOf("picPre"), "872,560");
}

TEST_F(ExerciseChrome, TheButtonsStandAtTheirPlacesInTheLowerLayout) {
    open({.quizTop = 384, .beginTop = 384, .nextTop = 496, .preTop = 600});
    EXPECT_EQ(placeOf("picExit"), "832,16");
    EXPECT_EQ(placeOf("picTable"), "688,16");
    EXPECT_EQ(placeOf("picQuiz"), "872,384");
    EXPECT_EQ(placeOf("picBegin"), "872,384");
    EXPECT_EQ(placeOf("picNext"), "872,496");
    EXPECT_EQ(placeOf("picPre"), "872,600");
}

TEST_F(ExerciseChrome, OnlyOneOfBeginAndQuizIsVisibleAtATime) {
    open();
    EXPECT_FALSE(button("picBegin").isHidden());
    EXPECT_TRUE(button("picQuiz").isHidden());
    EXPECT_TRUE(find(screen, "lblAnswer").isHidden());
    press("picBegin");
    EXPECT_TRUE(button("picBegin").isHidden());
    EXPECT_FALSE(button("picQuiz").isHidden());
    EXPECT_EQ(find<platform::Label>(screen, "lblAnswer").caption(), "Answer");
    press("picQuiz");
    EXPECT_TRUE(screen->log.contains("check"));
}

TEST_F(ExerciseChrome, TheTimerRunsTheDataWorkOnceBehindAVisibleForm) {
    open();
    const auto& timer = find<platform::Timer>(screen, "TimerGo");
    EXPECT_FALSE(timer.enabled());
    QTest::qWait(5);
    EXPECT_EQ(screen->log.filter("tick"), QStringList{"tick on view"});
    timer.onTick();
    EXPECT_EQ(screen->log.filter("tick").size(), 1) << "a tick of a disabled timer does nothing";
}

TEST_F(ExerciseChrome, PicPreShowsOnlyOnAStepWithWordsAndItsCaptionAlways) {
    session.hasWords = "NO";
    open();
    EXPECT_TRUE(button("picPre").isHidden());
    EXPECT_EQ(find<platform::Label>(screen, "lblPreCaption").caption(), "Voca Quiz");
    EXPECT_FALSE(find(screen, "lblPreCaption").isHidden());
    screen->unload();
    support::settle();
    session.hasWords = "YES";
    open({.preCaption = "Pre Lesson"});
    EXPECT_FALSE(button("picPre").isHidden());
    EXPECT_EQ(find<platform::Label>(screen, "lblPreCaption").caption(), "Pre Lesson");
    EXPECT_EQ(find<platform::Label>(screen, "lblNextCaption").caption(), "Next Lesson");
}

struct ChromeCase {
    const char* button;
    const char* atRest;
    const char* lit;
    bool pictureFirst;
};

class ExerciseButton : public ExerciseChrome, public testing::WithParamInterface<ChromeCase> {};

TEST_P(ExerciseButton, LightsWithOneSoundForTwoMovesAndRestsWhenTheMouseCrossesTheForm) {
    const ChromeCase& one = GetParam();
    session.hasWords = "YES";
    core::Context hooked = support::contextWith(desk, navigator, &hook);
    openIn(hooked);
    button(one.button).show();
    support::hover(*screen);
    QStringList seen;
    hook.onPlay = [&](const QString& file) {
        seen.append(QFileInfo(file).fileName() + " " + pictureOf(one.button));
    };
    support::hover(button(one.button));
    support::hover(button(one.button));
    EXPECT_EQ(seen, QStringList{QStringLiteral("touchit.wav ") +
                                QLatin1String(one.pictureFirst ? one.lit : one.atRest)});
    EXPECT_EQ(pictureOf(one.button), one.lit);
    support::hover(*screen);
    EXPECT_EQ(pictureOf(one.button), one.atRest);
    EXPECT_EQ(seen.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Buttons, ExerciseButton,
                         testing::Values(ChromeCase{"picBegin", "begin1.jpg", "begin2.jpg", false},
                                         ChromeCase{"picQuiz", "quiz1.jpg", "quiz2.jpg", false},
                                         ChromeCase{"picNext", "next1.jpg", "next2.jpg", false},
                                         ChromeCase{"picPre", "pre1.jpg", "pre2.jpg", false},
                                         ChromeCase{"picTable", "backs1.jpg", "backs2.jpg", false},
                                         ChromeCase{"picExit", "exits1.jpg", "exits2.jpg", true}),
                         [](const auto& row) { return std::string(row.param.button); });

TEST_F(ExerciseChrome, TheFirstMoveOverTheFormRestoresOnceAndWithoutASound) {
    open();
    support::hover(*screen);
    support::hover(*screen);
    EXPECT_EQ(screen->log.filter("restore").size(), 1);
    EXPECT_TRUE(desk.sound.played.empty());
}

TEST_F(ExerciseChrome, FromOneButtonStraightToAnotherThereIsNoSecondEffect) {
    open();
    support::hover(button("picNext"));
    support::hover(button("picTable"));
    EXPECT_EQ(pictureOf("picTable"), "backs1.jpg");
    EXPECT_EQ(pictureOf("picNext"), "next2.jpg");
    EXPECT_EQ(desk.sound.names(), QStringList{"touchit.wav"});
}

TEST_F(ExerciseChrome, AHiddenButtonTakesNoMovesAndIsRestoredAllTheSame) {
    open();
    EXPECT_TRUE(button("picPre").isHidden());
    EXPECT_NE(screen->childAt(button("picPre").geometry().center()), &button("picPre"));
    button("picPre").setPicture(QPixmap(1, 1), "something else");
    support::hover(button("picNext"));
    support::hover(*screen);
    EXPECT_EQ(pictureOf("picPre"), "pre1.jpg");
    EXPECT_EQ(pictureOf("picQuiz"), "quiz1.jpg");
}

TEST_F(ExerciseChrome, AScreenWithoutBeginOrQuizRestoresTheOthers) {
    open({.hasBegin = false, .hasQuiz = false});
    EXPECT_EQ(screen->findChild<QWidget*>("picBegin"), nullptr);
    EXPECT_EQ(screen->findChild<QWidget*>("picQuiz"), nullptr);
    support::hover(button("picExit"));
    support::hover(*screen);
    EXPECT_EQ(pictureOf("picExit"), "exits1.jpg");
    EXPECT_EQ(desk.failure(), "");
}

TEST_F(ExerciseChrome, AMissingPictureEndsTheRunOnTheFirstMove) {
    open();
    const QString folder = desk.root() + "/D/button";
    QFile::remove(folder);
    support::hover(button("picNext"));
    EXPECT_TRUE(desk.failure().contains("'53'") && desk.failure().contains("next2.jpg"))
        << desk.failure().toStdString();
}

TEST_F(ExerciseChrome, WithoutTheFilesOfItsRestingPicturesItComesUpAndEndsOnTheFirstMove) {
    QFile::remove(desk.root() + "/D/button");
    open();
    EXPECT_EQ(desk.failure(), "");
    EXPECT_EQ(pictureOf("picNext"), "next1.jpg");
    support::hover(*screen);
    EXPECT_TRUE(desk.failure().contains("'53'") && desk.failure().contains("exits1.jpg"))
        << desk.failure().toStdString();
}

TEST_F(ExerciseChrome, PicExitClosesSetsThenContentThenDictionaryAndEndsAtOnceWithoutASave) {
    session.dictionaryDb = core::openStore(context, "C:\\A_Mendori\\Main\\dicword.mdb");
    session.allwordRs = session.dictionaryDb.openRecordset("Select * from allword order by word");
    open();
    press("picExit");
    EXPECT_EQ(screen->log.last(), "close, content open, dictionary open");
    EXPECT_FALSE(screen->dataOpen());
    EXPECT_FALSE(session.allwordRs.isOpen() || session.dictionaryDb.isOpen());
    EXPECT_TRUE(navigator.ended);
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_TRUE(desk.boxes.shown.empty()) << "nothing is asked";
    EXPECT_TRUE(desk.rows(support::scoreStore, "select * from score").isEmpty());
}

TEST_F(ExerciseChrome, PicTableClosesItsDataAndGoesBackToTheTable) {
    open();
    press("picTable");
    EXPECT_TRUE(screen.isNull());
    EXPECT_EQ(navigator.screens(), QStringList{"frmTable"});
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(ExerciseChrome, PicPreGoesBackToTheWords) {
    session.hasWords = "YES";
    open();
    press("picPre");
    EXPECT_TRUE(screen.isNull());
    EXPECT_EQ(navigator.screens(), QStringList{"frmVoca2"});
}

TEST_F(ExerciseChrome, ClosingTheWindowEndsTheProgram) {
    open();
    screen->close();
    EXPECT_TRUE(navigator.ended);
}

namespace {

class PicNext : public ExerciseChrome {
   protected:
    PicNext() {
        support::addSteps(desk, {{.recordNo = 4}, {.recordNo = 5, .useForm = "frmQuiz8"}});
        session.recordNo = 4;
        session.stepType = "Quiz";
    }
};

}  // namespace

TEST_F(PicNext, AsksWithAQuestionUnderItsTitle) {
    desk.boxes.answers = {false};
    open();
    press("picNext");
    ASSERT_EQ(desk.boxes.texts(), QStringList{"다음 레슨을 학습하시겠습니까?"});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Question);
    EXPECT_EQ(desk.boxes.shown[0].title, "Tovalin");
    EXPECT_TRUE(desk.boxes.shown[0].yesNo);
}

TEST_F(PicNext, NoGoesToTheTableAndNotBackToTheScreen) {
    desk.boxes.answers = {false};
    open();
    press("picNext");
    EXPECT_TRUE(screen.isNull());
    EXPECT_EQ(navigator.screens(), QStringList{"frmTable"});
    EXPECT_EQ(session.recordNo, 4);
}

TEST_F(PicNext, YesMovesOnThoughTheScreenItselfIsUnfinished) {
    open();
    press("picNext");
    EXPECT_TRUE(screen.isNull());
    EXPECT_EQ(session.quizzesComplete, "YES");
    EXPECT_EQ(session.recordNo, 5);
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz8"});
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}

TEST_F(PicNext, WithAnUnfinishedStepALearnerSeesTwoMessagesAndStaysWithAllDataOpen) {
    begunStep();
    open();
    press("picNext");
    ASSERT_EQ(desk.boxes.texts(),
              (QStringList{"다음 레슨을 학습하시겠습니까?",
                           "의 퀴즈가 끝나지 않은 데이타가 있습니다.\n\n Quiz completion Required",
                           "현재 학습이 끝나지 않은 데이타가 있습니다.\n\n"
                           "<Back to Table>을 클릭하여 학습이 끝나지 않은 레슨을 학습하십시오."}));
    EXPECT_EQ(desk.boxes.shown[2].icon, platform::BoxIcon::Information);
    EXPECT_EQ(desk.boxes.shown[2].title, "Tovalin");
    EXPECT_FALSE(screen.isNull());
    EXPECT_TRUE(screen->dataOpen());
    EXPECT_EQ(session.quizzesComplete, "NO");
    EXPECT_EQ(session.recordNo, 4);
    EXPECT_TRUE(navigator.asked.empty());
}

TEST_F(PicNext, ATeacherWithAnUnfinishedStepGoesOnUnasked) {
    begunStep();
    session.teacherMode = "Teacher";
    open();
    press("picNext");
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz8"});
    EXPECT_EQ(session.quizzesComplete, "");
}

TEST_F(PicNext, TheRoleThatNothingSetsWouldGoOnToo) {
    begunStep();
    session.userRole = "Branch";
    open();
    press("picNext");
    EXPECT_EQ(navigator.screens(), QStringList{"frmQuiz8"});
}

TEST_F(PicNext, AtTheLastStepOnlyTheFrameRemains) {
    session.recordNo = 5;
    open();
    press("picNext");
    EXPECT_EQ(desk.boxes.lastText(), "Grammar의 마지막 레슨입니다.");
    EXPECT_TRUE(screen.isNull());
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_FALSE(navigator.ended);
}

TEST_F(ExerciseChrome, APressWhileAWordIsSpokenDoesNothingAndOneAfterItCounts) {
    tools::Wave wave{22050, {}};
    wave.samples.resize(8000);
    ASSERT_TRUE(tools::writeWave(desk.file(session.mediaSoundDir + "leaf.wav"), wave));
    platform::DeviceSound device;
    core::Context speaking = support::contextWith(desk, navigator, &device);
    screen = new TinyScreen(speaking, {});
    screen->word = "leaf";
    bool pressed = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (!platform::Waiting::anywhere())
            return;
        poll.stop();
        pressed = true;
        for (const char* name : {"picTable", "picNext", "picPre", "picExit"}) {
            support::pressAssistively(button(name));
            QTest::mouseClick(&button(name), Qt::LeftButton);
        }
        support::settle();
    });
    poll.start(1);
    screen->show();
    EXPECT_TRUE(support::waitFor([&] {
        return screen.isNull() || !find<platform::Timer>(screen, QStringLiteral("TimerGo")).enabled();
    }));
    EXPECT_TRUE(pressed);
    ASSERT_FALSE(screen.isNull());
    EXPECT_FALSE(screen->isUnloaded());
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_FALSE(navigator.ended);
    support::pressAssistively(button("picTable"));
    EXPECT_TRUE(support::waitFor([&] { return navigator.screens() == QStringList{"frmTable"}; }));
}
