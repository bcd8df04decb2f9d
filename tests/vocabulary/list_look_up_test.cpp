#include "tests/vocabulary/coach_desk.h"

#include <QListWidget>

using platform::BoxIcon;
using support::find;
using support::focusName;

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
