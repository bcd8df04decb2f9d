#include "tests/vocabulary/word_desk.h"

#include <gtest/gtest.h>

#include <QListWidget>

using platform::BoxIcon;
using support::click;
using support::find;
using support::focusName;
using support::waitFor;

namespace {

const WordDesk::Words three{{"leaf", "나뭇잎"}, {"mystery", "수수께끼"}, {"Apple", "사과"}};
const QString brindle = QStringLiteral("Brindle English");

core::Screen* openCoach(WordDesk& desk) {
    core::Screen* form = desk.open(QStringLiteral("frmVoca2"));
    if (form == nullptr)
        throw std::runtime_error("the spelling coach did not come up: " + desk.failure().toStdString());
    return form;
}

/// Types a whole word and presses Enter.
void answer(QWidget* form, const char* word) {
    auto& entry = find<platform::TextBox>(form, QStringLiteral("txtWord"));
    entry.setFocus();
    entry.clear();
    support::type(entry, QLatin1String(word));
    QTest::keyClick(&entry, Qt::Key_Return);
}

void practise(QWidget* form) {
    click(find(form, QStringLiteral("cmdPractice")));
}

/// What stands in a row: '_' for an empty box, '?' for a locked one that is empty.
QString rowText(const QWidget* form, const char* row) {
    QString text;
    for (int i = 0; i < 18; ++i) {
        const auto& letter = box(form, row, i);
        if (letter.isHidden())
            continue;
        text += letter.text().isEmpty() ? (letter.locked() ? QStringLiteral("?") : QStringLiteral("_"))
                                        : letter.text();
    }
    return text;
}

void expectMessage(const WordDesk& desk, const char* text, BoxIcon icon, const QString& title) {
    ASSERT_FALSE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.boxes.lastText(), QString::fromUtf8(text));
    EXPECT_EQ(desk.boxes.shown.back().icon, icon);
    EXPECT_EQ(desk.boxes.shown.back().title, title);
}

}  // namespace

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
    EXPECT_EQ(find<platform::CommandButton>(form, QStringLiteral("cmdNextQuiz")).text(),
              QStringLiteral("Next Quiz "));
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

TEST(SpellingCoach, PracticeOpensTheRowsWithoutTheSoundOfAMistake) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    EXPECT_EQ(desk.sound.names(), (QStringList{QStringLiteral("leaf"), QStringLiteral("leaf")}));
    EXPECT_TRUE(shown(form, "picBack"));
    EXPECT_FALSE(shown(form, "cmdAnswer"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("leaf"));
    EXPECT_EQ(rowText(form, "txtType1"), QStringLiteral("____"));
    EXPECT_EQ(rowText(form, "txtType2"), QStringLiteral("____"));
    for (const char* row : {"txtType3", "txtType4", "txtType5"})
        EXPECT_EQ(rowText(form, row), QStringLiteral("????"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
}

TEST(SpellingCoach, RowsStandUnderOneAnotherWithTheSameLetterInOneColumn) {
    WordDesk desk(three);
    const auto* form = openCoach(desk);
    for (int i = 0; i < 18; ++i)
        for (const char* row : {"txtType2", "txtType3", "txtType4", "txtType5"})
            EXPECT_EQ(box(form, row, i).x(), box(form, "txtType1", i).x());
    EXPECT_LT(box(form, "txtType1", 0).y(), box(form, "txtType2", 0).y());
    EXPECT_LT(box(form, "txtType4", 0).y(), box(form, "txtType5", 0).y());
}

TEST(SpellingCoach, AWholeWordGoesThroughTheFiveRows) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "LEAF");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(0)"));
    EXPECT_EQ(desk.sound.played.size(), 3U);
    spell(form, "leaf");
    EXPECT_EQ(desk.sound.played.size(), 4U);
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("l__f"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(1)"));
    EXPECT_FALSE(shown(form, "lblHint"));
    EXPECT_TRUE(shown(form, "picUp"));
    spell(form, "ea");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("????"));
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ea_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType4(0)"));
    EXPECT_TRUE(shown(form, "picUp2"));
    EXPECT_FALSE(shown(form, "picUp"));
    spell(form, "lf");
    EXPECT_EQ(rowText(form, "txtType5"), QStringLiteral("____"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType5(0)"));
    EXPECT_TRUE(shown(form, "picUp3"));
    EXPECT_FALSE(shown(form, "picUp2"));
    spell(form, "leaf");
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("m□□□□□□"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtWord"));
    for (const char* hidden : {"picBack", "picUp3", "txtType1(0)", "txtType5(3)"})
        EXPECT_FALSE(shown(form, hidden)) << hidden;
    EXPECT_TRUE(shown(form, "cmdAnswer"));
    EXPECT_TRUE(shown(form, "lblHint"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(SpellingCoach, TheLastWordDoneInTheMethodFinishesTheStep) {
    WordDesk desk(oneWord("cat", "고양이"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "catcatactcat");
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(desk.results(), QStringLiteral("100|0|0|0.0"));
    EXPECT_FALSE(shown(form, "picBack"));
}

TEST(SpellingCoach, AWrongLetterStandsSelectedSoThatTheNextKeyReplacesIt) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "lx");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(1)"));
    EXPECT_EQ(box(form, "txtType1", 1).selectedText(), QStringLiteral("x"));
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.sound.played.size(), 2U);
    spell(form, "e");
    EXPECT_EQ(box(form, "txtType1", 1).text(), QStringLiteral("e"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(2)"));
}

TEST(SpellingCoach, TheLetterYIsAskedForInBothRows) {
    WordDesk desk(oneWord("mystery", "수수께끼"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "mysterymystery");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("m_st_r_"));
    spell(form, "yey");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("____e__"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(SpellingCoach, ACapitalIsNeverHiddenAndJudgedWithoutRegardToCase) {
    WordDesk desk(oneWord("Apple", "사과"));
    QWidget* form = openCoach(desk);
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("A□□□□"));
    practise(form);
    spell(form, "appleapple");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("Appl_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(4)"));
    spell(form, "E");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("A___e"));
    spell(form, "PPL");
    spell(form, "apple");
    EXPECT_EQ(desk.results(), QStringLiteral("100|0|0|0.0"));
}

TEST(SpellingCoach, AWordWithoutVowelsLeavesOnlyTheStepBack) {
    WordDesk desk(oneWord("hmm", "흠"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "hmmhmm");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("hmm"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(2)"));
    spell(form, "x");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("hmm"));
    click(find(form, QStringLiteral("picUp")));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(0)"));
    EXPECT_EQ(rowText(form, "txtType2"), QStringLiteral("___"));
}

TEST(SpellingCoach, AWordWithoutConsonantsLeavesOnlyTheStepBackFromTheFourthRow) {
    WordDesk desk(oneWord("eau", "물"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "eaueau");
    spell(form, "eau");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("eau"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(2)"));
    click(find(form, QStringLiteral("picUp2")));
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("___"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(0)"));
}

TEST(SpellingCoach, AFirstHiddenLetterBeyondTheEighthBoxGetsNoFocus) {
    WordDesk desk(oneWord("bcdfghjkla", "아"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "bcdfghjklabcdfghjkla");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("bcdfghjkl_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(9)"));
}

TEST(SpellingCoach, TheThirdRowIsJudgedWhereSixLockedBoxesFollowThoughALaterBoxIsEmpty) {
    WordDesk desk(oneWord("abcdfghjka", "아"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "abcdfghjkaabcdfghjka");
    QString during;
    desk.boxes.onShow = [&](const auto&) { during = rowText(form, "txtType3"); };
    spell(form, "a");
    expectMessage(desk, "단어의 철자가 틀렸습니다(3).  다시 입력하십시오.", BoxIcon::Stop, brindle);
    EXPECT_EQ(during, QStringLiteral("_????????_"));
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("_bcdfghjk_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(0)"));
    // With the later box filled first, the row is right.
    box(form, "txtType3", 9).setFocus();
    spell(form, "a");
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
}

TEST(SpellingCoach, TheFourthRowIsJudgedWhereFourLockedBoxesFollowAndEmptiedOnlyAfterTheMessage) {
    WordDesk desk(oneWord("queueing", "줄서기"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "queueingqueueing");
    spell(form, "ueuei");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ueuei__"));
    QString during;
    desk.boxes.onShow = [&](const auto&) { during = rowText(form, "txtType4"); };
    spell(form, "q");
    EXPECT_TRUE(desk.boxes.shown.empty() || desk.boxes.shown.size() == 1U);
    expectMessage(desk, "단어의 철자가 틀렸습니다(4).  다시 입력하십시오.", BoxIcon::Stop, brindle);
    EXPECT_EQ(during, QStringLiteral("queuei__"));
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ueuei__"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType4(0)"));
}

TEST(SpellingCoach, AWrongVowelRowIsBuiltAgainWithoutLimitAndWithoutAMiss) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "leafleaf");
    for (int i = 1; i <= 3; ++i) {
        spell(form, "ee");
        EXPECT_EQ(desk.boxes.shown.size(), static_cast<std::size_t>(i));
        EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("l__f"));
        EXPECT_EQ(focusName(form), QStringLiteral("txtType3(1)"));
    }
    spell(form, "ea");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ea_"));
}

TEST(SpellingCoach, AWholeWordWithAGapIsToldAndAskedForAgain) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "leafleaf");
    spell(form, "ea");
    spell(form, "lf");
    spell(form, "le");
    click(box(form, "txtType5", 3));
    spell(form, "f");
    expectMessage(desk, "단어의 철자가 틀렸습니다.  다시 입력하십시오.", BoxIcon::Information, {});
    EXPECT_EQ(rowText(form, "txtType5"), QStringLiteral("____"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType5(0)"));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("0"));
}

TEST(SpellingCoach, StepsBackFromEachRowToTheOneAbove) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "leafleaf");
    spell(form, "ea");
    spell(form, "lf");
    spell(form, "le");
    click(find(form, QStringLiteral("picUp3")));
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ea_"));
    EXPECT_EQ(rowText(form, "txtType5"), QStringLiteral("????"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType4(0)"));
    click(find(form, QStringLiteral("picUp2")));
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("l__f"));
    EXPECT_FALSE(shown(form, "lblHint"));
    click(find(form, QStringLiteral("picUp")));
    EXPECT_EQ(rowText(form, "txtType2"), QStringLiteral("____"));
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("????"));
    EXPECT_TRUE(shown(form, "lblHint"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("leaf"));
    EXPECT_FALSE(shown(form, "picUp"));
    spell(form, "leaf");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("l__f"));
}

TEST(SpellingCoach, BackspaceAndLeftTakeTheCaretBackOntoLockedBoxesToo) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "le");
    QTest::keyClick(form->focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(1)"));
    EXPECT_EQ(box(form, "txtType1", 1).selectedText(), QStringLiteral("e"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
    spell(form, "leafleaf");
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(0)"));
    EXPECT_TRUE(box(form, "txtType3", 0).locked());
    spell(form, "x");
    EXPECT_EQ(box(form, "txtType3", 0).text(), QStringLiteral("l"));
}

TEST(SpellingCoach, RowsThatAreNotInHandJudgeNothing) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    box(form, "txtType2", 3).setFocus();
    spell(form, "f");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(3)"));
    EXPECT_FALSE(shown(form, "picUp"));
}

TEST(SpellingCoach, ARightWordTypedDuringTheMethodGoesOnAndLeavesTheRowsUntouched) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "le");
    answer(form, "leaf");
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(rowText(form, "txtType1"), QStringLiteral("le__"));
    EXPECT_TRUE(shown(form, "cmdAnswer"));
    EXPECT_FALSE(shown(form, "picBack"));
}

TEST(SpellingCoach, RowsLeftOverAtTheEndTakeNoMoreLetters) {
    WordDesk desk(oneWord("cat", "고양이"));
    QWidget* form = openCoach(desk);
    practise(form);
    answer(form, "cat");
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    box(form, "txtType1", 2).setFocus();
    spell(form, "t");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(2)"));
    EXPECT_EQ(desk.failure(), QString());
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

namespace {

/// Shows the list with an entry and clicks on it.
void lookUp(QWidget* form, const QString& word) {
    auto& list = find<QListWidget>(form, QStringLiteral("List1"));
    list.clear();
    list.addItem(word);
    list.show();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.item(0)).center());
    support::settle();
}

const QString dictionaryStore = QStringLiteral("C:\\A_Mendori\\Main\\dicword.mdb");

}  // namespace

TEST(ListLookUp, TakesAWordFromTheDictionaryIntoTheMethodAndSpeaksItsSound) {
    WordDesk desk(three);
    desk.exec(dictionaryStore,
              "insert into dicword (word,scode,defsen) values ('shelf','s0042','a flat board')");
    QWidget* form = openCoach(desk);
    lookUp(form, QStringLiteral("Shelf"));
    EXPECT_EQ(find<platform::TextBox>(form, QStringLiteral("txtdef")).text(), QStringLiteral("a flat board"));
    EXPECT_EQ(label(form, "lblDef").caption(), QStringLiteral("shelf"));
    EXPECT_EQ(find<QObject>(form, QStringLiteral("Web1")).property("url").toString(),
              QStringLiteral("D:\\A_Mendori\\ABCSound\\s0042.wav"));
    EXPECT_EQ(desk.sound.names(), (QStringList{QStringLiteral("leaf"), QStringLiteral("s0042.wav")}));
    EXPECT_FALSE(desk.sound.played.back().waited);
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("Shelf"));
    EXPECT_EQ(rowText(form, "txtType1"), QStringLiteral("_____"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
}

TEST(ListLookUp, IsBlockedOnceAWordIsPractised) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    lookUp(form, QStringLiteral("shelf"));
    expectMessage(desk, "단어 철자를 입력하여야 합니다", BoxIcon::Information, brindle);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
    EXPECT_EQ(rowText(form, "txtType1"), QStringLiteral("____"));
}

TEST(ListLookUp, AWordThatTheDictionaryCannotGiveIsPractisedAllTheSame) {
    for (const char* word : {"o'clock", "unknown", "averyveryveryverylongword"}) {
        WordDesk desk(three);
        QWidget* form = openCoach(desk);
        lookUp(form, QLatin1String(word));
        EXPECT_EQ(desk.failure(), QString());
        EXPECT_EQ(label(form, "lblHint").caption(), QLatin1String(word));
        EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
    }
}
