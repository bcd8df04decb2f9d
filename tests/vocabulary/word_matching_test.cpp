#include "vocabulary/word_matching.h"

#include "tests/vocabulary/word_desk.h"

#include <gtest/gtest.h>

#include <QSet>

using platform::BoxIcon;
using platform::Label;
using support::click;
using support::find;
using support::hover;
using support::testWordStore;

namespace {

core::Screen* openMatching(WordDesk& desk) {
    core::Screen* form = desk.open(QStringLiteral("frmVoca3"));
    if (form == nullptr)
        throw std::runtime_error("word matching did not come up: " + desk.failure().toStdString());
    return form;
}

Label& word(const QWidget* form, int index) {
    return find<Label>(form, QStringLiteral("lblWord(%1)").arg(index));
}

Label& definition(const QWidget* form, int index) {
    return find<Label>(form, QStringLiteral("lblDefinition(%1)").arg(index));
}

int shownPairs(const QWidget* form) {
    int words = 0;
    int definitions = 0;
    for (int i = 0; i < 10; ++i) {
        words += word(form, i).isHidden() ? 0 : 1;
        definitions += definition(form, i).isHidden() ? 0 : 1;
    }
    return words == definitions ? words : -1;
}

/// The place of the meaning of the word chosen last.
int rightPlace(const QWidget* form) {
    const QString meaning = label(form, "lblAnswer").caption();
    for (int i = 0; i < 10; ++i)
        if (!definition(form, i).isHidden() && definition(form, i).caption() == meaning)
            return i;
    return -1;
}

void choose(QWidget* form, int index) {
    click(word(form, index));
}

/// Clicks a meaning that does not belong to the chosen word.
void miss(QWidget* form) {
    const int right = rightPlace(form);
    for (int i = 0; i < 10; ++i)
        if (i != right && !definition(form, i).isHidden()) {
            click(definition(form, i));
            return;
        }
}

void match(QWidget* form, int index) {
    choose(form, index);
    click(definition(form, rightPlace(form)));
}

/// Matches every pair on show, missing before the first ones.
void matchPage(QWidget* form, int missedFirst = 0) {
    const int pairs = shownPairs(form);
    for (int i = 0; i < pairs; ++i) {
        choose(form, i);
        if (i < missedFirst)
            miss(form);
        click(definition(form, rightPlace(form)));
    }
}

}  // namespace

TEST(WordMatching, ShowsTenWordsAndTheirMeaningsInOrdersOfTheirOwn) {
    WordDesk desk(manyWords(10));
    const QWidget* form = openMatching(desk);
    EXPECT_EQ(shownPairs(form), 10);
    EXPECT_EQ(label(form, "lblCurrent").caption(), QStringLiteral("1"));
    EXPECT_EQ(label(form, "lblTotal").caption(), QStringLiteral("10"));
    EXPECT_EQ(label(form, "lblTitle2").caption(), QStringLiteral("명사 3"));
    EXPECT_EQ(desk.session.scoreSlot, 2);
    EXPECT_TRUE(shown(form, "picNext"));
    EXPECT_FALSE(shown(form, "lblAnswer"));
    EXPECT_EQ(form->property("picture").toString().section(u'\\', -1), QStringLiteral("original.jpg"));
    for (const char* field : {"orderno", "orderno2"}) {
        QSet<QString> numbers;
        for (const QString& row :
             desk.rows(testWordStore, std::string("select ") + field + " from testword6"))
            numbers.insert(row);
        EXPECT_EQ(numbers.size(), 10) << field;
    }
    EXPECT_NE(desk.rows(testWordStore, "select orderno from testword6"),
              desk.rows(testWordStore, "select orderno2 from testword6"));
    const QStringList byOrder = desk.rows(testWordStore, "select word from testword6 order by orderno");
    const QStringList byOrder2 =
        desk.rows(testWordStore, "select definition from testword6 order by orderno2");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(word(form, i).caption(), byOrder[i]);
        EXPECT_EQ(definition(form, i).caption(), byOrder2[i]);
    }
}

TEST(WordMatching, ShowsNothingButItsFrameUntilTheListHasCome) {
    WordDesk desk(manyWords(10));
    const vocabulary::WordMatching form(desk.context());
    EXPECT_FALSE(shown(&form, "picNext"));
    EXPECT_EQ(shownPairs(&form), 0);
    EXPECT_EQ(standsAt(&form, "picNext"), QPoint(872, 456));
    EXPECT_EQ(standsAt(&form, "picPre"), QPoint(872, 560));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(word(&form, i).caption() + definition(&form, i).caption(), QString());
        EXPECT_EQ(word(&form, i).cursor().shape(), Qt::BitmapCursor);
        EXPECT_EQ(definition(&form, i).cursor().shape(), Qt::BitmapCursor);
    }
}

TEST(WordMatching, CarriesItsFixedCaptionsToTheCharacter) {
    WordDesk desk(manyWords(3));
    const QWidget* form = openMatching(desk);
    struct Case {
        const char* name;
        const char* text;
    };
    for (const Case& c :
         {Case{"lblMemo", "단어를 클릭하고 해당 단어의 뜻을 클릭하십시오. "}, Case{"Label8", "Current No."},
          Case{"Label2", "Pre Quiz"}, Case{"Label1", "Next Quiz"}, Case{"Label3", "Word "},
          Case{"Label4", "Definition in Korean"}})
        EXPECT_EQ(label(form, c.name).caption(), QString::fromUtf8(c.text));
}

TEST(WordMatching, AListIsCutToTenOnOnePageOrToTwentyOnTwo) {
    struct Case {
        int words;
        int pairs;
        int firstPage;
        bool twoPages;
    };
    for (const Case& c :
         {Case{1, 1, 1, false}, Case{9, 9, 9, false}, Case{10, 10, 10, false}, Case{11, 10, 10, false},
          Case{13, 10, 10, false}, Case{14, 14, 10, true}, Case{20, 20, 10, true}, Case{25, 20, 10, true}}) {
        WordDesk desk(manyWords(c.words));
        const QWidget* form = openMatching(desk);
        EXPECT_EQ(label(form, "lblTotal").caption(), QString::number(c.pairs)) << c.words;
        EXPECT_EQ(desk.rows(testWordStore, "select word from testword6").size(), c.pairs) << c.words;
        EXPECT_EQ(shownPairs(form), c.firstPage) << c.words;
        EXPECT_EQ(shown(form, "picNo"), c.twoPages) << c.words;
        EXPECT_FALSE(shown(form, "picNo2")) << c.words;
    }
}

TEST(WordMatching, FourteenWordsArePlayedOnTwoPagesOfTenAndFour) {
    WordDesk desk(manyWords(14));
    QWidget* form = openMatching(desk);
    matchPage(form);
    EXPECT_EQ(label(form, "lblCurrent").caption(), QStringLiteral("11"));
    EXPECT_EQ(shownPairs(form), 4);
    EXPECT_FALSE(shown(form, "picNo"));
    EXPECT_TRUE(shown(form, "picNo2"));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(word(form, i).foreColor(), platform::colour::black);
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.rows(testWordStore, "select word from testword6 where orderno<=10 and orderno2<>0").size(),
              0);
    EXPECT_TRUE(form->findChildren<QWidget*>(QStringLiteral("fading")).isEmpty())
        << "nothing of the first page fades over the second";
    matchPage(form);
    EXPECT_EQ(
        desk.boxes.lastText(),
        QStringLiteral("수고하였습니다.  점수는 100 입니다.\n\n<Next>를 클릭하여 다음으로 진행하십시오"));
    EXPECT_EQ(desk.boxes.shown.back().icon, BoxIcon::Information);
    EXPECT_EQ(shownPairs(form), 0);
}

TEST(WordMatching, TenWordsEndAtTheTenthPairWithoutASecondPage) {
    WordDesk desk(manyWords(10));
    QWidget* form = openMatching(desk);
    matchPage(form);
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.results(), QStringLiteral("0|100|50|0.0"));
    EXPECT_EQ(desk.session.partDone[1], QStringLiteral("YES"));
    EXPECT_EQ(desk.sound.names().count(QStringLiteral("correct.wav")), 10);
    EXPECT_EQ(desk.sound.names().last(), QStringLiteral("finishsong.wav"));
    EXPECT_FALSE(shown(form, "picNo2"));
    EXPECT_EQ(desk.top(), form);
}

TEST(WordMatching, AMeaningBeforeAnyWordIsToldAndPlaysNothing) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    click(definition(form, 2));
    EXPECT_EQ(desk.boxes.texts(), QStringList{QStringLiteral("단어를 먼저 선택하십시오.")});
    EXPECT_EQ(desk.boxes.shown.back().icon, BoxIcon::Information);
    EXPECT_TRUE(desk.sound.played.empty());
}

TEST(WordMatching, TheChosenWordIsRedAndStaysChosenAfterAMiss) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    choose(form, 1);
    choose(form, 2);
    EXPECT_EQ(word(form, 1).foreColor(), platform::colour::black);
    EXPECT_EQ(word(form, 2).foreColor(), platform::colour::red);
    miss(form);
    EXPECT_EQ(desk.sound.names(), QStringList{QStringLiteral("wrongit.wav")});
    EXPECT_EQ(word(form, 2).foreColor(), platform::colour::red);
    EXPECT_EQ(label(form, "lblCurrent").caption(), QStringLiteral("1"));
    click(definition(form, rightPlace(form)));
    EXPECT_EQ(shownPairs(form), 3);
    EXPECT_TRUE(word(form, 2).isHidden());
    click(definition(form, definition(form, 0).isHidden() ? 1 : 0));
    EXPECT_EQ(desk.boxes.lastText(), QStringLiteral("단어를 먼저 선택하십시오."));
}

TEST(WordMatching, ACleanMatchBelongsToTheNextMatchAndNotToAWord) {
    WordDesk desk(manyWords(2));
    QWidget* form = openMatching(desk);
    const QString missedWord = word(form, 0).caption();
    const QString otherWord = word(form, 1).caption();
    choose(form, 0);
    miss(form);
    match(form, 1);
    match(form, 0);
    EXPECT_EQ(
        desk.row(testWordStore, "select correct from testword6 where word='" + otherWord.toStdString() + "'"),
        QStringLiteral("NO"));
    EXPECT_EQ(desk.row(testWordStore,
                       "select correct from testword6 where word='" + missedWord.toStdString() + "'"),
              QStringLiteral("YES"));
    EXPECT_EQ(desk.session.scoreValue, 50);
}

TEST(WordMatching, ManyMissesBeforeAMatchCostThatOnePairAlone) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    choose(form, 0);
    for (int i = 0; i < 5; ++i)
        miss(form);
    click(definition(form, rightPlace(form)));
    for (int i = 1; i < 4; ++i)
        match(form, i);
    EXPECT_EQ(desk.session.scoreValue, 75);
    EXPECT_EQ(desk.results(), QStringLiteral("0|75|37.5|0.0"));
}

TEST(WordMatching, HalvesOfAScoreGoToTheEvenNumber) {
    for (const auto& [missed, score] :
         {std::pair{7, 12}, std::pair{5, 38}, std::pair{3, 62}, std::pair{1, 88}}) {
        WordDesk desk(manyWords(8));
        matchPage(openMatching(desk), missed);
        EXPECT_EQ(desk.session.scoreValue, score) << missed;
    }
}

TEST(WordMatching, AMoveOverAMeaningTurnsItRedAndTheOthersBlack) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    hover(*form);
    hover(definition(form, 1));
    EXPECT_EQ(definition(form, 1).foreColor(), platform::colour::red);
    hover(definition(form, 3));
    EXPECT_EQ(definition(form, 1).foreColor(), platform::colour::black);
    EXPECT_EQ(definition(form, 3).foreColor(), platform::colour::red);
    EXPECT_TRUE(desk.sound.played.empty());
}

TEST(WordMatching, AMeaningNeitherClosesTheHoverStateNorTurnsRedWhileAButtonIsLit) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    hover(*form);
    hover(definition(form, 1));
    hover(find(form, QStringLiteral("picNext")));
    EXPECT_EQ(desk.sound.names(), QStringList{QStringLiteral("touchit.wav")});
    hover(definition(form, 2));
    EXPECT_EQ(definition(form, 1).foreColor(), platform::colour::red);
    EXPECT_EQ(definition(form, 2).foreColor(), platform::colour::black);
}

TEST(WordMatching, OfTwoWordsWithOneMeaningEachBelongsToItsOwnPlace) {
    WordDesk desk({{"big", "큰"}, {"large", "큰"}});
    QWidget* form = openMatching(desk);
    const int own = desk.row(testWordStore, "select orderno2 from testword6 where orderno=1").toInt() - 1;
    choose(form, 0);
    click(definition(form, 1 - own));
    EXPECT_EQ(desk.sound.names(), QStringList{QStringLiteral("wrongit.wav")});
    click(definition(form, own));
    EXPECT_EQ(shownPairs(form), 1);
}

TEST(WordMatching, AWordIsChosenAndMatchedFromTheKeyboardToo) {
    WordDesk desk(manyWords(3));
    QWidget* form = openMatching(desk);
    word(form, 0).setFocus();
    QTest::keyClick(&word(form, 0), Qt::Key_Space);
    auto& meaning = definition(form, rightPlace(form));
    meaning.setFocus();
    QTest::keyClick(&meaning, Qt::Key_Return);
    EXPECT_EQ(shownPairs(form), 2);
}

TEST(WordMatching, ALongMeaningIsSetSmallerRatherThanCut) {
    const QString meaning =
        QStringLiteral("자랑스러워하는, 자랑으로 여기는, 자존심이 강한, 당당하고 위풍이 있는 모양");
    WordDesk desk({{"leaf", "나뭇잎"}, {"proud", meaning.toStdString()}});
    QWidget* form = openMatching(desk);
    choose(form, word(form, 0).caption() == QStringLiteral("proud") ? 0 : 1);
    const Label& large = definition(form, rightPlace(form));
    const Label& other = definition(form, 1 - rightPlace(form));
    EXPECT_LT(large.font().pixelSize(), other.font().pixelSize());
    EXPECT_LE(large.fontMetrics().boundingRect(large.contentsRect(), Qt::TextWordWrap, meaning).height(),
              large.height());
}

TEST(WordMatching, NothingWaitsForAPairToFade) {
    WordDesk desk(manyWords(3));
    QWidget* form = openMatching(desk);
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(&word(form, i), Qt::LeftButton);
        QTest::mouseClick(&definition(form, rightPlace(form)), Qt::LeftButton);
    }
    EXPECT_EQ(desk.session.scoreValue, 100);
}

TEST(WordMatching, LeavesForTheQuizTheCoachOrTheTableAtAnyTimeWithoutARecord) {
    for (const auto& [button, screen] : {std::pair{"picNext", "frmVoca4"}, std::pair{"picPre", "frmVoca2"},
                                         std::pair{"picTable", "frmTable"}}) {
        WordDesk desk(manyWords(4));
        click(find(openMatching(desk), QLatin1String(button)));
        EXPECT_NE(desk.awaitScreen(QLatin1String(screen)), nullptr) << screen << desk.failure().toStdString();
        EXPECT_EQ(desk.rows(support::scoreStore, "select * from score").size(), 0);
    }
}

TEST(WordMatching, ExitEndsTheProgramWithoutAQuestionOrARecord) {
    WordDesk desk(manyWords(4));
    QWidget* form = openMatching(desk);
    match(form, 0);
    click(find(form, QStringLiteral("picExit")));
    EXPECT_TRUE(desk.screens().ended());
    EXPECT_TRUE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.rows(support::scoreStore, "select * from score").size(), 0);
}

TEST(WordMatching, AnEmptyWordBookIsToldInASentenceAndTheTableOpens) {
    WordDesk desk({});
    desk.screens().open(QStringLiteral("frmVoca3"));
    EXPECT_NE(desk.awaitScreen(QStringLiteral("frmTable")), nullptr) << desk.failure().toStdString();
    EXPECT_EQ(desk.boxes.shown.size(), 1U);
}

TEST(WordMatching, ShufflesByDrawingAgainForANumberThatIsTaken) {
    WordDesk desk(manyWords(3));
    // Words take 2, 1 and, after two draws that are refused, 3; meanings keep 1, 2, 3.
    desk.random.queueNumbers({2, 1, 1, 2, 3, 1, 2, 3}, 3);
    openMatching(desk);
    EXPECT_EQ(desk.rows(testWordStore, "select orderno from testword6"),
              (QStringList{QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("3")}));
    EXPECT_EQ(desk.random.reseeds, 8);
}

TEST(WordMatching, ARowThatHoldsNoNumberForItsWordsEndsTheRunAtTheSaveAndStaysAsItWas) {
    for (const char* none : {"N/A", ""}) {
        WordDesk desk(manyWords(10));
        desk.session.programCode = QStringLiteral("Tovalin1");
        const std::string text = std::string("'") + none + "'";
        desk.exec(support::scoreStore, "insert into score(recordno,s1,s2,s3,s4,studentno,program) values(7," +
                                           text + "," + text + "," + text + ",85,'1001','Tovalin1')");
        const QString before = desk.results();
        matchPage(openMatching(desk));
        EXPECT_TRUE(desk.failure().contains("field 's3' of table 'score'")) << desk.failure().toStdString();
        EXPECT_EQ(desk.results(), before);
    }
}
