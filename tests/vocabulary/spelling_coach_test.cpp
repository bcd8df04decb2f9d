#include "tests/vocabulary/coach_desk.h"

using platform::BoxIcon;
using support::click;
using support::find;
using support::focusName;
using support::waitFor;

TEST(SpellingCoach, OpensOnTheFirstWordWithItsMeaningHintAndSound) {
    WordDesk desk(three);
    const QWidget* form = openCoach(desk);
    EXPECT_EQ(label(form, "lblTitle").caption(), QStringLiteral("명사 3"));
    EXPECT_EQ(label(form, "lblDef2").caption(), QStringLiteral("나뭇잎"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("l□□□"));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("0"));
    EXPECT_EQ(label(form, "lblTotal").caption(), QStringLiteral("3"));
    EXPECT_EQ(desk.sound.names(), QStringList{QStringLiteral("leaf")});
    EXPECT_TRUE(desk.sound.played.back().waited);
    EXPECT_EQ(desk.session.scoreSlot, 1);
    EXPECT_EQ(form->property("picture").toString().section(u'\\', -1), QStringLiteral("diary.jpg"));
    for (const char* hidden : {"picBack", "picUp", "picUp2", "picUp3", "cmdMakeQuiz", "cmdNextQuiz",
                               "cmdNextQuiz2", "List1", "lblDef", "txtType1(0)"})
        EXPECT_FALSE(shown(form, hidden)) << hidden;
    for (const char* visible : {"picNext", "picPre", "picTable", "picExit", "cmdAnswer", "cmdPractice"})
        EXPECT_TRUE(shown(form, visible)) << visible;
    EXPECT_EQ(standsAt(form, "picNext"), QPoint(872, 456));
    EXPECT_EQ(standsAt(form, "picPre"), QPoint(872, 560));
}

TEST(SpellingCoach, CarriesItsFixedCaptionsToTheCharacter) {
    WordDesk desk(three);
    const QWidget* form = openCoach(desk);
    struct Case {
        const char* name;
        const char* text;
    };
    for (const Case& c :
         {Case{"lblMemo",
               "단어의 뜻에 해당하는 단어를 입력한 후 자판의 Enter 키를 누르거나 <Next Quiz>를 클릭하세요 "},
          Case{"Label2", "틀린 단어를 입력하거나 "},
          Case{"Label1", "단어를 모르는 경우에는 <Practice>를 클릭하여 브린들 단어음절학습법으로 학습합니다"},
          Case{"Label5", "Current No."}, Case{"Label3", "Total No."}, Case{"Label4", "Next Quiz"},
          Case{"Label6", "Back to Table"}})
        EXPECT_EQ(label(form, c.name).caption(), QString::fromUtf8(c.text));
    for (const Case& c :
         {Case{"cmdAnswer", "Next Quiz"}, Case{"cmdPractice", "Practice"}, Case{"cmdMakeQuiz", "Make Quiz"},
          Case{"cmdNextQuiz", "Next Quiz "}, Case{"cmdNextQuiz2", "Next Quiz 2"}})
        EXPECT_EQ(find<platform::CommandButton>(form, QLatin1String(c.name)).text(), QLatin1String(c.text));
}

TEST(SpellingCoach, WordsOfTwoOrOfSeventeenLettersAreDroppedSilently) {
    WordDesk desk(
        {{"go", "가다"}, {"cat", "고양이"}, {"abcdefghijklmnop", "열여섯"}, {"abcdefghijklmnopq", "열일곱"}});
    const QWidget* form = openCoach(desk);
    EXPECT_EQ(label(form, "lblTotal").caption(), QStringLiteral("2"));
    EXPECT_EQ(desk.rows(support::testWordStore, "select word,definition from testword"),
              (QStringList{QStringLiteral("cat|고양이"), QStringLiteral("abcdefghijklmnop|열여섯")}));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(SpellingCoach, TheListOfAnEarlierStepIsReplaced) {
    WordDesk desk(three);
    desk.exec(support::testWordStore, "insert into testword (word,definition) values ('old','옛')");
    openCoach(desk);
    EXPECT_EQ(desk.rows(support::testWordStore, "select word from testword").size(), 3);
}

TEST(SpellingCoach, RightAnswersWalkTheListAndStoreTheStep) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    answer(form, "LEAF");
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(label(form, "lblDef2").caption(), QStringLiteral("수수께끼"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("m□□□□□□"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtWord"));
    EXPECT_EQ(find<platform::TextBox>(form, QStringLiteral("txtWord")).text(), QString());
    answer(form, "mystery");
    find<platform::TextBox>(form, QStringLiteral("txtWord")).setText(QStringLiteral("apple"));
    click(find(form, QStringLiteral("cmdAnswer")));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("3"));
    expectMessage(desk, "단어 학습하기가 완료되었습니다.\n\nNext 버튼을 클릭하십시오.", BoxIcon::Information,
                  {});
    EXPECT_EQ(desk.results(), QStringLiteral("100|0|0|0.0"));
    EXPECT_EQ(desk.session.partDone[0], QStringLiteral("YES"));
    EXPECT_EQ(desk.sound.names(),
              (QStringList{QStringLiteral("leaf"), QStringLiteral("mystery"), QStringLiteral("Apple")}));
    EXPECT_FALSE(shown(form, "cmdAnswer"));
    EXPECT_FALSE(shown(form, "cmdPractice"));
    EXPECT_TRUE(find<platform::TextBox>(form, QStringLiteral("txtWord")).locked());
    EXPECT_EQ(label(form, "lblHint").caption(), QString());
    QTest::keyClick(&find(form, QStringLiteral("txtWord")), Qt::Key_Return);
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}

TEST(SpellingCoach, AnEmptyAnswerIsToldAndCountsAsNoMiss) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    answer(form, "");
    expectMessage(desk, "단어를 입력하세요", BoxIcon::Information, {});
    EXPECT_EQ(focusName(form), QStringLiteral("txtWord"));
    answer(form, "lief");
    EXPECT_FALSE(shown(form, "picBack"));
}

TEST(SpellingCoach, TheFirstWrongAnswerOfEachWordGetsASecondChanceAndTheSecondTheMethod) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    answer(form, "lief");
    expectMessage(
        desk, "틀린 답을 입력하였습니다.  다시 입력하십시오\n\n다시 틀리면 브린들 단어음절법으로 진행됩니다",
        BoxIcon::Information, {});
    EXPECT_EQ(find<platform::TextBox>(form, QStringLiteral("txtWord")).text(), QString());
    EXPECT_EQ(desk.sound.played.size(), 1U);
    answer(form, "leaf");
    answer(form, "mistery");
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
    EXPECT_FALSE(shown(form, "picBack"));
    answer(form, "mistery");
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
    EXPECT_TRUE(shown(form, "picBack"));
    EXPECT_EQ(desk.sound.names().mid(2),
              (QStringList{QStringLiteral("wrongit.wav"), QStringLiteral("mystery")}));
    EXPECT_FALSE(desk.sound.played[2].waited);
}

TEST(SpellingCoach, LeavesForWordMatchingFromTheFirstMomentWithoutARecord) {
    WordDesk desk(three);
    desk.screens().open(QStringLiteral("frmVoca2"));
    ASSERT_TRUE(waitFor([&] { return desk.top() != nullptr; }));
    click(find(desk.top(), QStringLiteral("picNext")));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmVoca3")), nullptr);
    EXPECT_EQ(desk.rows(support::scoreStore, "select * from score").size(), 0);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(SpellingCoach, GoesBackToTheTableByBothItsButtons) {
    for (const char* button : {"picPre", "picTable"}) {
        WordDesk desk(three);
        click(find(openCoach(desk), QLatin1String(button)));
        EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr)
            << button << desk.failure().toStdString();
        EXPECT_EQ(desk.rows(support::scoreStore, "select * from score").size(), 0);
    }
}

TEST(SpellingCoach, ExitEndsTheProgramWithoutAQuestionOrARecord) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    answer(form, "leaf");
    click(find(form, QStringLiteral("picExit")));
    EXPECT_TRUE(desk.screens().ended());
    EXPECT_FALSE(desk.session.allwordRs.isOpen() || desk.session.dictionaryDb.isOpen());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.rows(support::scoreStore, "select * from score").size(), 0);
}

TEST(SpellingCoach, NothingPressedBeforeTheListHasComeDisturbsIt) {
    WordDesk desk(three);
    desk.screens().open(QStringLiteral("frmVoca2"));
    ASSERT_TRUE(waitFor([&] { return desk.top() != nullptr; }));
    QWidget* form = desk.top();
    practise(form);
    answer(form, "leaf");
    EXPECT_TRUE(desk.boxes.shown.empty());
    ASSERT_TRUE(waitFor([&] { return label(form, "lblTotal").caption() == QStringLiteral("3"); }));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("0"));
    EXPECT_TRUE(shown(form, "cmdAnswer"));
    EXPECT_FALSE(shown(form, "picBack"));
}

TEST(SpellingCoach, AnEmptyWordBookIsToldAtEachTickAndTheTableStillOpens) {
    WordDesk desk({});
    int open = 0;
    int most = 0;
    desk.boxes.onShow = [&](const auto&) {
        most = qMax(most, ++open);
        QTest::qWait(1);
        --open;
    };
    desk.screens().open(QStringLiteral("frmVoca2"));
    ASSERT_TRUE(waitFor([&] { return desk.boxes.shown.size() >= 2; }));
    expectMessage(desk, "Data Not Found", BoxIcon::Information, {});
    EXPECT_EQ(most, 1);
    click(find(desk.top(), QStringLiteral("picTable")));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
}

TEST(SpellingCoach, AListOfWordsThatAreAllTooShortIsToldInASentenceAndTheTableOpens) {
    WordDesk desk({{"go", "가다"}, {"up", "위로"}});
    desk.screens().open(QStringLiteral("frmVoca2"));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}
