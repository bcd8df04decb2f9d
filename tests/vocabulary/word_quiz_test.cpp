#include "tests/vocabulary/word_desk.h"

#include <gtest/gtest.h>

using platform::BoxIcon;
using support::click;
using support::find;
using support::focusName;
using support::testWordStore;
using support::waitFor;

namespace {

core::Screen* openQuiz(WordDesk& desk) {
    core::Screen* form = desk.open(QStringLiteral("frmVoca4"));
    if (form == nullptr)
        throw std::runtime_error("the vocabulary quiz did not come up: " + desk.failure().toStdString());
    return form;
}

core::Screen* beginQuiz(WordDesk& desk) {
    core::Screen* form = openQuiz(desk);
    click(find(form, QStringLiteral("picBegin")));
    return form;
}

/// The word on show, looked up by the number that the screen counts.
QString wordOnShow(const WordDesk& desk, const QWidget* form) {
    return desk.rows(testWordStore, "select word from testword2 order by orderno")
        .value(label(form, "lblNow").caption().toInt() - 1);
}

/// Types the word on show and waits for the next one, or for the screen to go.
void typeRight(const WordDesk& desk, core::Screen* form) {
    const QString number = label(form, "lblNow").caption();
    const bool last = number == label(form, "lblTotal").caption();
    spell(form, wordOnShow(desk, form).toLatin1().constData());
    if (!last) {
        ASSERT_TRUE(waitFor([&] { return label(form, "lblNow").caption() != number; }));
    }
}

void missOnce(QWidget* form) {
    spell(form, "q");
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
}

int shownBoxes(const QWidget* form) {
    int count = 0;
    for (int i = 0; i < 18; ++i)
        count += box(form, "txtType1", i).isHidden() ? 0 : 1;
    return count;
}

const WordDesk::Words two{{"leaf", "나뭇잎"}, {"knife", "칼"}};

}  // namespace

TEST(VocabularyQuiz, WaitsForBeginUnderATitleOfItsOwn) {
    WordDesk desk(two);
    const QWidget* form = openQuiz(desk);
    EXPECT_EQ(label(form, "lblTitle2").caption(), QStringLiteral("Vocabulary - Part 1"));
    EXPECT_TRUE(shown(form, "picBegin"));
    EXPECT_FALSE(shown(form, "picRight"));
    EXPECT_EQ(shownBoxes(form), 0);
    EXPECT_EQ(desk.session.scoreSlot, 3);
    EXPECT_EQ(form->property("picture").toString().section(u'\\', -1), QStringLiteral("diary.jpg"));
    struct Case {
        const char* name;
        const char* text;
    };
    for (const Case& c :
         {Case{"lblMemo(0)", "<Begin>을 클릭한 후 한국어 뜻에 해당하는 철자를 입력하십시오"},
          Case{"lblMemo(1)",
               "단어를 입력한 후 자판의 <Enter>를 누르거나 전체 단어를 입력한 후에는 자동으로 다음 단어가 "
               "출제됩니다"},
          Case{"Label2", "Current No."}, Case{"Label3", "Total No."}, Case{"Label6", "Missed No"},
          Case{"Label4", "Pre Quiz"}, Case{"Label1", "Next Lesson"}})
        EXPECT_EQ(label(form, c.name).caption(), QString::fromUtf8(c.text));
}

TEST(VocabularyQuiz, AsksForAWordByItsMeaningAndFirstLetterAndABoxForEachLetter) {
    WordDesk desk(oneWord("Korea", "한국"));
    const QWidget* form = beginQuiz(desk);
    EXPECT_EQ(label(form, "lblWord").caption(), QStringLiteral("한국"));
    EXPECT_EQ(label(form, "lblLetter").caption(), QStringLiteral("K"));
    EXPECT_EQ(shownBoxes(form), 5);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(label(form, "lblTotal").caption(), QStringLiteral("1"));
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("0"));
    EXPECT_FALSE(shown(form, "picBegin"));
    EXPECT_TRUE(shown(form, "picRight"));
    EXPECT_EQ(
        desk.row(testWordStore, "select * from testword2"),
        QStringLiteral("Korea|한국|1|Blank|Blank|NO|0|Blank|Blank|Blank|Blank|Blank|Blank|Blank|Blank"));
}

TEST(VocabularyQuiz, AWordTypedWholeIsJudgedByItselfSpokenAndFollowedByTheNext) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    const QString first = wordOnShow(desk, form);
    typeRight(desk, form);
    EXPECT_EQ(desk.sound.names(),
              (QStringList{QStringLiteral("correct.wav"), first + QStringLiteral(".wav")}));
    EXPECT_EQ(find<QObject>(form, QStringLiteral("Web1")).property("url").toString(),
              QStringLiteral("D:\\A_Mendori\\ABCSound\\%1.wav").arg(first));
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("2"));
    EXPECT_NE(wordOnShow(desk, form), first);
    EXPECT_EQ(label(form, "lblLetter").caption(), wordOnShow(desk, form).left(1));
    EXPECT_EQ(shownBoxes(form), wordOnShow(desk, form).size());
    EXPECT_EQ(box(form, "txtType1", 0).text(), QString());
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
}

TEST(VocabularyQuiz, ARightWordStaysInItsBoxesUntilTheNextOneComes) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    const QString first = wordOnShow(desk, form);
    spell(form, first.toLatin1().constData());
    EXPECT_EQ(label(form, "lblNow").caption(), QStringLiteral("1"));
    EXPECT_EQ(box(form, "txtType1", 0).text(), first.left(1));
    EXPECT_TRUE(waitFor([&] { return label(form, "lblNow").caption() == QStringLiteral("2"); }));
}

TEST(VocabularyQuiz, AllWordsAtFirstTryGiveAHundredAndTheScreenHandsOverByItself) {
    WordDesk desk(two);
    desk.session.useForm = QStringLiteral("frmNone");
    core::Screen* form = beginQuiz(desk);
    desk.boxes.onShow = [&](const auto&) {
        EXPECT_EQ(label(form, "lblWord").caption(), QString());
        EXPECT_EQ(box(form, "txtType1", 0).text(), QString());
        EXPECT_TRUE(shown(form, "picBegin"));
        EXPECT_EQ(desk.results(), QString());
    };
    typeRight(desk, form);
    typeRight(desk, form);
    EXPECT_EQ(desk.boxes.texts(),
              QStringList{QStringLiteral("Vocabulary Quiz 2가 완료되었습니다.\n\n퀴즈 점수는 100 입니다.")});
    EXPECT_EQ(desk.boxes.shown.back().icon, BoxIcon::Information);
    EXPECT_EQ(desk.sound.names().last(), QStringLiteral("finishsong.wav"));
    EXPECT_EQ(desk.session.partDone[2], QStringLiteral("YES"));
    EXPECT_EQ(desk.results(), QStringLiteral("0|100|50|0.0"));
    EXPECT_TRUE(waitFor([&] { return desk.top() == nullptr; }));
}

TEST(VocabularyQuiz, AWordFirstMissedAndThenTypedScoresNothing) {
    for (const auto& [missed, score] : {std::pair{0, 100}, std::pair{1, 50}, std::pair{2, 0}}) {
        WordDesk desk(two);
        core::Screen* form = beginQuiz(desk);
        for (int i = 0; i < 2; ++i) {
            if (i < missed)
                missOnce(form);
            typeRight(desk, form);
        }
        EXPECT_EQ(desk.session.scoreValue, score);
    }
}

TEST(VocabularyQuiz, HalvesOfAScoreGoToTheEvenNumber) {
    WordDesk desk(manyWords(8));
    core::Screen* form = beginQuiz(desk);
    for (int i = 0; i < 8; ++i) {
        if (i < 7)
            missOnce(form);
        typeRight(desk, form);
    }
    EXPECT_EQ(desk.session.scoreValue, 12);
}

TEST(VocabularyQuiz, MissesEmptyTheBoxesAndShowTheWordFromTheThirdOn) {
    WordDesk desk(oneWord("leaf", "나뭇잎"));
    core::Screen* form = beginQuiz(desk);
    for (int i = 1; i <= 5; ++i) {
        spell(form, "lief");
        EXPECT_EQ(label(form, "lblMiss").caption(), QString::number(i));
        EXPECT_EQ(box(form, "txtType1", 0).text(), QString());
        EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
        EXPECT_EQ(desk.boxes.shown.size(), i < 3 ? 0U : static_cast<std::size_t>(i - 2));
    }
    EXPECT_EQ(desk.boxes.lastText(), QStringLiteral("Correct Answer Word: leaf"));
    EXPECT_EQ(desk.boxes.shown.back().icon, BoxIcon::None);
    EXPECT_EQ(desk.sound.names().count(QStringLiteral("wrongit.wav")), 5);
    typeRight(desk, form);
    EXPECT_EQ(desk.session.scoreValue, 0);
}

TEST(VocabularyQuiz, TheMissesOfTheLastMissedWordStandUntilTheNextMiss) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    missOnce(form);
    missOnce(form);
    typeRight(desk, form);
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("2"));
    missOnce(form);
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("1"));
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(VocabularyQuiz, CaseDoesNotMatter) {
    WordDesk desk(oneWord("Korea", "한국"));
    core::Screen* form = beginQuiz(desk);
    spell(form, "kOREA");
    EXPECT_EQ(desk.session.scoreValue, 100);
}

TEST(VocabularyQuiz, NoLetterIsJudgedBeforeTheWordIs) {
    WordDesk desk(oneWord("leaf", "나뭇잎"));
    core::Screen* form = beginQuiz(desk);
    spell(form, "xyz");
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(3)"));
    EXPECT_TRUE(desk.sound.played.empty());
}

TEST(VocabularyQuiz, EnterAndTheAnswerButtonJudgeWhatStandsInTheBoxes) {
    WordDesk desk(oneWord("leaf", "나뭇잎"));
    core::Screen* form = beginQuiz(desk);
    spell(form, "le");
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("1"));
    click(find(form, QStringLiteral("picRight")));
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("2"));
}

TEST(VocabularyQuiz, AnEmptyBoxInTheMiddleAddsNothingToTheWord) {
    WordDesk desk(oneWord("leaf", "나뭇잎"));
    core::Screen* form = beginQuiz(desk);
    spell(form, "le");
    click(box(form, "txtType1", 3));
    spell(form, "f");
    EXPECT_EQ(label(form, "lblMiss").caption(), QStringLiteral("1"));
}

TEST(VocabularyQuiz, BackspaceAndLeftTakeTheCaretBack) {
    WordDesk desk(oneWord("leaf", "나뭇잎"));
    core::Screen* form = beginQuiz(desk);
    spell(form, "lx");
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(1)"));
    EXPECT_EQ(box(form, "txtType1", 1).selectedText(), QStringLiteral("x"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    QTest::keyClick(form->focusWidget(), Qt::Key_Left);
    EXPECT_EQ(focusName(form), QStringLiteral("txtType1(0)"));
    spell(form, "leaf");
    EXPECT_EQ(desk.session.scoreValue, 100);
}

TEST(VocabularyQuiz, AsksAtMostTwentyWordsInAQuizStepAndAllInALesson) {
    for (const auto& [type, words] :
         {std::pair{"Quiz", 20}, std::pair{"Final", 20}, std::pair{"Lesson", 21}}) {
        WordDesk desk(manyWords(21), QLatin1String(type));
        const QWidget* form = beginQuiz(desk);
        EXPECT_EQ(label(form, "lblTotal").caption(), QString::number(words)) << type;
        EXPECT_EQ(desk.rows(testWordStore, "select word from testword2").size(), words) << type;
    }
}

TEST(VocabularyQuiz, HasNoLengthFilter) {
    WordDesk desk({{"a", "하나의"}, {"abcdefghijklmnopqr", "열여덟 글자"}});
    core::Screen* form = beginQuiz(desk);
    typeRight(desk, form);
    typeRight(desk, form);
    EXPECT_EQ(desk.session.scoreValue, 100);
}

TEST(VocabularyQuiz, AWordLongerThanTheBoxesIsToldBeforeTheQuizBeginsAndTheTableOpens) {
    WordDesk desk({{"leaf", "나뭇잎"}, {"abcdefghijklmnopqrs", "열아홉 글자"}});
    click(find(openQuiz(desk), QStringLiteral("picBegin")));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_TRUE(desk.boxes.lastText().contains(QStringLiteral("abcdefghijklmnopqrs")));
}

TEST(VocabularyQuiz, AnEmptyWordBookIsToldAndTheScreenStaysAtBegin) {
    WordDesk desk({});
    const QWidget* form = beginQuiz(desk);
    EXPECT_EQ(desk.boxes.lastText(),
              QStringLiteral("Data Error입니다.  단어 퀴즈 1 데이타가 없습니다.\n\n"
                             "프로그램을 재설치하십시오.  계속 문제가 발생시 브린들본사로 연락하십시오"));
    EXPECT_EQ(desk.boxes.shown.back().title, QStringLiteral("Brindle English"));
    EXPECT_EQ(desk.boxes.shown.back().icon, BoxIcon::Information);
    EXPECT_TRUE(shown(form, "picBegin"));
    EXPECT_FALSE(shown(form, "picRight"));
    click(find(form, QStringLiteral("picTable")));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr);
}

TEST(VocabularyQuiz, NextLeavesForTheStepsOwnScreenWithoutAQuestionOrAScore) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    typeRight(desk, form);
    click(find(form, QStringLiteral("picNext")));
    EXPECT_TRUE(waitFor([&] { return desk.top() == nullptr; }));
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.results(), QString());
}

TEST(VocabularyQuiz, GoesBackToMatchingOrTheTable) {
    for (const auto& [button, screen] :
         {std::pair{"picPre", "frmVoca3"}, std::pair{"picTable", "frmTable"}}) {
        WordDesk desk(two);
        click(find(openQuiz(desk), QLatin1String(button)));
        EXPECT_NE(desk.awaitScreen(QLatin1String(screen)), nullptr) << screen << desk.failure().toStdString();
    }
}

TEST(VocabularyQuiz, ExitEndsTheProgramWithoutAQuestionOrARecord) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    typeRight(desk, form);
    click(find(form, QStringLiteral("picExit")));
    EXPECT_TRUE(desk.screens().ended());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.results(), QString());
}

TEST(VocabularyQuiz, TheFirstShuffleChoosesTheWordsAndTheSecondTheirOrder) {
    WordDesk desk({{"one", "하나"}, {"two", "둘"}, {"six", "여섯"}});
    desk.random.queueNumbers({3, 1, 2, 2, 2, 3, 1}, 3);
    const QWidget* form = beginQuiz(desk);
    EXPECT_EQ(desk.rows(testWordStore, "select word,orderno from testword"),
              (QStringList{QStringLiteral("one|3"), QStringLiteral("two|1"), QStringLiteral("six|2")}));
    EXPECT_EQ(desk.rows(testWordStore, "select word,orderno from testword2"),
              (QStringList{QStringLiteral("two|2"), QStringLiteral("six|3"), QStringLiteral("one|1")}));
    EXPECT_EQ(label(form, "lblWord").caption(), QStringLiteral("하나"));
    EXPECT_EQ(desk.random.reseeds, 7);
}

TEST(VocabularyQuiz, TheAnswerButtonLightsUpLikeTheOthers) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    auto& button = find(form, QStringLiteral("picRight"));
    const auto picture = [&] { return button.property("picture").toString().section(u'\\', -1); };
    support::hover(*form);
    support::hover(button);
    EXPECT_EQ(picture(), QStringLiteral("right2.jpg"));
    support::hover(*form);
    EXPECT_EQ(picture(), QStringLiteral("right1.jpg"));
    EXPECT_EQ(desk.sound.names().count(QStringLiteral("touchit.wav")), 1);
}

TEST(VocabularyQuiz, AWordThatIsJudgedAgainBeforeTheNextOneComesCountsOnce) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    spell(form, wordOnShow(desk, form).toLatin1().constData());
    // The timer of the next word has not ticked yet: the boxes stand as they were and are live.
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return label(form, "lblNow").caption() == QStringLiteral("2"); }));
    typeRight(desk, form);
    EXPECT_EQ(desk.boxes.lastText(),
              QStringLiteral("Vocabulary Quiz 2가 완료되었습니다.\n\n퀴즈 점수는 100 입니다."));
    // The column keeps the mean of this part and the one before, which was not done.
    EXPECT_EQ(desk.results().section(u'|', 2, 2), QStringLiteral("50"));
}

TEST(VocabularyQuiz, AWordMissedFirstIsNotCountedByJudgingItAgain) {
    WordDesk desk(two);
    core::Screen* form = beginQuiz(desk);
    missOnce(form);
    spell(form, wordOnShow(desk, form).toLatin1().constData());
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return label(form, "lblNow").caption() == QStringLiteral("2"); }));
    typeRight(desk, form);
    EXPECT_TRUE(desk.boxes.lastText().endsWith(QStringLiteral("점수는 50 입니다.")));
    EXPECT_EQ(desk.results().section(u'|', 2, 2), QStringLiteral("25"));
}
