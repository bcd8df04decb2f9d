#include "tests/vocabulary/coach_desk.h"

using platform::BoxIcon;
using support::click;
using support::find;
using support::focusName;

TEST(SpellingRows, PracticeOpensTheRowsWithoutTheSoundOfAMistake) {
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

TEST(SpellingRows, RowsStandUnderOneAnotherWithTheSameLetterInOneColumn) {
    WordDesk desk(three);
    const auto* form = openCoach(desk);
    for (int i = 0; i < 18; ++i)
        for (const char* row : {"txtType2", "txtType3", "txtType4", "txtType5"})
            EXPECT_EQ(box(form, row, i).x(), box(form, "txtType1", i).x());
    EXPECT_LT(box(form, "txtType1", 0).y(), box(form, "txtType2", 0).y());
    EXPECT_LT(box(form, "txtType4", 0).y(), box(form, "txtType5", 0).y());
}

TEST(SpellingRows, AWholeWordGoesThroughTheFiveRows) {
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

TEST(SpellingRows, TheLastWordDoneInTheMethodFinishesTheStep) {
    WordDesk desk(oneWord("cat", "고양이"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "catcatactcat");
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(desk.results(), QStringLiteral("100|0|0|0.0"));
    EXPECT_FALSE(shown(form, "picBack"));
}

TEST(SpellingRows, AWrongLetterStandsSelectedSoThatTheNextKeyReplacesIt) {
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

TEST(SpellingRows, TheLetterYIsAskedForInBothRows) {
    WordDesk desk(oneWord("mystery", "수수께끼"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "mysterymystery");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("m_st_r_"));
    spell(form, "yey");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("____e__"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(SpellingRows, ACapitalIsNeverHiddenAndJudgedWithoutRegardToCase) {
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

TEST(SpellingRows, AWordWithoutVowelsLeavesOnlyTheStepBack) {
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

TEST(SpellingRows, AWordWithoutConsonantsLeavesOnlyTheStepBackFromTheFourthRow) {
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

TEST(SpellingRows, AFirstHiddenLetterBeyondTheEighthBoxGetsNoFocus) {
    WordDesk desk(oneWord("bcdfghjkla", "아"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "bcdfghjklabcdfghjkla");
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("bcdfghjkl_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(9)"));
}

TEST(SpellingRows, AFirstHiddenConsonantBeyondTheEighthBoxGetsNoFocusEither) {
    WordDesk desk(oneWord("aeaeaeaeab", "아"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "aeaeaeaeabaeaeaeaeab");
    spell(form, "aeaeaeaea");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("aeaeaeaea_"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType3(8)"));
}

TEST(SpellingRows, PracticePressedInALaterRowStartsOverWithTheWordInSight) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "leafleaf");
    EXPECT_FALSE(shown(form, "lblHint"));
    practise(form);
    EXPECT_TRUE(shown(form, "lblHint"));
    EXPECT_EQ(label(form, "lblHint").caption(), QStringLiteral("leaf"));
    EXPECT_FALSE(shown(form, "picUp"));
    EXPECT_EQ(rowText(form, "txtType1"), QStringLiteral("____"));
    EXPECT_EQ(rowText(form, "txtType3"), QStringLiteral("????"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
}

TEST(SpellingRows, TheThirdRowIsJudgedWhereSixLockedBoxesFollowThoughALaterBoxIsEmpty) {
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
    // Nor is the row right when the later box comes first.
    box(form, "txtType3", 9).setFocus();
    spell(form, "a");
    EXPECT_EQ(desk.boxes.shown.size(), 2U);
}

TEST(SpellingRows, TheFourthRowIsJudgedWhereFourLockedBoxesFollowAndEmptiedOnlyAfterTheMessage) {
    WordDesk desk(oneWord("queueing", "줄서기"));
    QWidget* form = openCoach(desk);
    practise(form);
    spell(form, "queueingqueueing");
    spell(form, "ueuei");
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ueuei__"));
    QString during;
    desk.boxes.onShow = [&](const auto&) { during = rowText(form, "txtType4"); };
    spell(form, "q");
    expectMessage(desk, "단어의 철자가 틀렸습니다(4).  다시 입력하십시오.", BoxIcon::Stop, brindle);
    EXPECT_EQ(during, QStringLiteral("queuei__"));
    EXPECT_EQ(rowText(form, "txtType4"), QStringLiteral("_ueuei__"));
    EXPECT_EQ(focusName(form), QStringLiteral("txtType4(0)"));
}

TEST(SpellingRows, AWrongVowelRowIsBuiltAgainWithoutLimitAndWithoutAMiss) {
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
    answer(form, "lief");
    EXPECT_TRUE(desk.boxes.lastText().startsWith(QStringLiteral("틀린 답을 입력하였습니다.  다시")))
        << "the second chance still stands";
}

TEST(SpellingRows, AWholeWordWithAGapIsToldAndAskedForAgain) {
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

TEST(SpellingRows, StepsBackFromEachRowToTheOneAbove) {
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

TEST(SpellingRows, BackspaceAndLeftTakeTheCaretBackOntoLockedBoxesToo) {
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

TEST(SpellingRows, RowsThatAreNotInHandJudgeNothing) {
    WordDesk desk(three);
    QWidget* form = openCoach(desk);
    practise(form);
    box(form, "txtType2", 3).setFocus();
    spell(form, "f");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType2(3)"));
    EXPECT_FALSE(shown(form, "picUp"));
}

TEST(SpellingRows, ARightWordTypedDuringTheMethodGoesOnAndLeavesTheRowsUntouched) {
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

TEST(SpellingRows, RowsLeftOverAtTheEndTakeNoMoreLetters) {
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
