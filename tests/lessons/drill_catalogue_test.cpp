// Walks every row of the catalogue, on paper and on its screen.

#include "catalogue/drills.h"
#include "lessons/drill_layout.h"
#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

#include <set>

using namespace lessons_test;
using catalogue::Drill;

namespace {

const QString pluralText = QString::fromUtf8(catalogue::pluralInstruction);
const QString wordText = QStringLiteral(
    "<Begin>를 클릭하어 해당 단어를 입력하십시오. 자판의 <Enter> 키를 치면 다음 단어를 입력할 수 있습니다.  "
    "전체 단어를 입력한 후에는 "
    "<Answer>을 클릭하십시오");

/// What a screen shows and where, told once more apart from the catalogue.
struct Known {
    const char* name;
    int boxes;
    int prompts;
    int rules;
    const char* picture;
    int tops[3];
    int beginTop;
    const char* headline;
    int slot;
    bool story;
};

constexpr Known known[] = {
    {"frmLesson", 28, 28, 8, "Main1.jpg", {344, 456, 560}, 344, "◈ 셀 수 있는 명사의 복수형 만들기", 4, true},
    {"frmLesson2", 28, 0, 7, "Main2.jpg", {368, 496, 600}, 368, "◈ 셀 수 없는 명사의 종류", 5, true},
    {"frmLesson2_2", 24, 0, 13, "original.jpg", {368, 496, 600}, 368, "◈ 셀 수 없는 명사 세는 법", 4, false},
    {"frmLesson3", 0, 0, 0, "Original2.jpg", {344, 456, 560}, 0, "", 4, true},
    {"frmLesson3_2",
     27,
     0,
     8,
     "original.jpg",
     {344, 456, 560},
     344,
     "◈ 정관사 (the)를 반드시 붙이는 경우",
     4,
     false},
    {"frmLesson4", 35, 35, 9, "Main1.jpg", {368, 496, 600}, 368, "◈ 인칭대명사의 격변화", 4, true},
    {"frmLesson7", 21, 21, 6, "Main2.jpg", {384, 496, 600}, 384, "◈ 일반동사의 3인칭 단수형", 4, true},
    {"frmLesson8", 28, 13, 5, "Main1.jpg", {344, 456, 560}, 344, "◈ 현재진행형 <ing> 만드는 법", 4, true},
    {"frmLesson9", 45, 0, 4, "Main2.jpg", {376, 496, 600}, 376, "◈ 형용사의 종류", 4, true},
    {"frmLesson10", 16, 0, 4, "Main10.jpg", {344, 456, 560}, 344, "◈ 부사의 형태", 4, true},
    {"frmLesson11", 26, 13, 6, "Main2.jpg", {344, 456, 560}, 336, "◈ 비교급 만들기", 4, true},
    {"frmLesson17", 30, 30, 3, "Main1.jpg", {344, 456, 560}, 344, "◈ 전치사", 4, true},
    {"frmLesson18", 12, 12, 4, "Main1.jpg", {344, 456, 560}, 344, "◈ 규칙 변화 동사의 과거형", 4, true},
    {"frmLesson18_2", 16, 16, 0, "original.jpg", {344, 456, 560}, 344, "◈ 불규칙 동사", 4, false},
    {"frmLesson24", 54, 54, 0, "Main1.jpg", {344, 456, 560}, 344, "◈ 기수", 4, true},
};

QString instructionOf(const std::string& name) {
    if (name == "frmLesson" || name == "frmLesson9")
        return pluralText;
    if (name == "frmLesson7")
        return QStringLiteral(
            "<Begin>를 클릭하여 동사의 3인칭 단수형을 입력하십시오. 자판의 <Enter> 키를 치면 다음 단어를 "
            "입력할 수 있습니다.  전체 단어를 "
            "입력한 후에는 <Answer>을 클릭하십시오");
    if (name == "frmLesson8")
        return QStringLiteral(
            "<Begin>를 클릭하여 단어의 ~ING형을 입력하십시오. 자판의 <Enter> 키를 치면 다음 단어를 입력할 수 "
            "있습니다.  전체 단어를 입력한 "
            "후에는 <Answer>을 클릭하십시오");
    if (name == "frmLesson10")
        return QStringLiteral(
            "<Begin>를 클릭하어 단어를 입력하십시오. <Enter> 키를 치면 다음 단어를 입력할 수 있습니다.  "
            "입력한 후에는 <Answer>을 "
            "클릭하십시오");
    if (name == "frmLesson17")
        return QStringLiteral("<Begin>를 클릭합니다.   빈칸에 답을 입력하거나 ");
    return wordText;
}

int countMembers(core::Screen& form, const char* array) {
    int count = 0;
    while (form.findChild<QWidget*>(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(count)) != nullptr)
        ++count;
    return count;
}

int topOf(core::Screen& form, const char* name) {
    return form.placeOf(support::find<QWidget>(&form, QLatin1String(name))).top();
}

class Catalogue : public ::testing::TestWithParam<Known> {};

}  // namespace

TEST(DrillCatalogue, HoldsTheFifteenDrillsUnderNamesOfTheirOwn) {
    std::set<std::string> names;
    for (const Drill& drill : catalogue::drillCatalogue())
        names.insert(drill.name);
    EXPECT_EQ(names.size(), 15U);
    EXPECT_EQ(catalogue::drillCatalogue().size(), 15U);
    for (const Known& screen : known)
        EXPECT_NE(catalogue::findDrill(screen.name), nullptr) << screen.name;
    EXPECT_EQ(catalogue::findDrill("frmLesson5"), nullptr);
}

TEST(DrillCatalogue, AgreesWithItsLayouts) {
    for (const Drill& drill : catalogue::drillCatalogue()) {
        const int spare = drill.name == std::string("frmLesson2_2") ? 1 : 0;
        EXPECT_EQ(lessons::boxTotal(lessons::layoutOf(drill.name)), drill.boxes + spare) << drill.name;
        EXPECT_EQ(lessons::promptTotal(lessons::layoutOf(drill.name)), drill.prompts) << drill.name;
        EXPECT_TRUE(drill.fixedPrompts.empty() ||
                    static_cast<int>(drill.fixedPrompts.size()) == drill.prompts);
    }
}

TEST(DrillCatalogue, ThePluralBoxesAre1200By300TwipsAndHoldTheirAnswersWhole) {
    DrillDesk desk(QStringLiteral("frmLesson"));
    ASSERT_NE(desk.open(), nullptr);
    for (int i = 0; i < 28; ++i)
        EXPECT_EQ(desk.form().placeOf(desk.box(i)).size(), QSize(80, 20)) << i;
    // The longest plurals of the starter course, beside the sign of right and wrong.
    for (const char* word : {"countries", "tomatoes", "students", "children", "watches", "strawberries"})
        for (const BoxMark mark : {BoxMark::None, BoxMark::Right, BoxMark::Wrong}) {
            desk.box(0).setText(QLatin1String(word));
            desk.box(0).setMark(mark);
            EXPECT_LE(QFontMetrics(desk.box(0).font()).horizontalAdvance(QLatin1String(word)),
                      desk.box(0).textRoom())
                << word;
        }
}

TEST(DrillCatalogue, AnswersStandInBoldTahomaAndPhrasesSmaller) {
    for (const Drill& drill : catalogue::drillCatalogue()) {
        if (drill.boxes == 0)
            continue;
        DrillDesk desk(QString::fromUtf8(drill.name));
        ASSERT_NE(desk.open(), nullptr) << drill.name;
        const QFont font = desk.box(0).font();
        EXPECT_EQ(font.family(), QStringLiteral("Tahoma")) << drill.name;
        EXPECT_TRUE(font.bold()) << drill.name;
        // 9.75 and 8.25 points.
        EXPECT_EQ(font.pixelSize(), drill.name == std::string("frmLesson17") ? 11 : 13) << drill.name;
    }
}

TEST_P(Catalogue, StandsOnItsScreenAsTold) {
    const Known& told = GetParam();
    DrillDesk desk(QString::fromUtf8(told.name));
    ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
    core::Screen& form = desk.form();
    EXPECT_EQ(form.designSize(), QSize(993, 718));
    EXPECT_EQ(countMembers(form, "txtWord"), told.boxes);
    EXPECT_EQ(countMembers(form, desk.drill().promptName), told.prompts);
    EXPECT_EQ(countMembers(form, "lblTopic3"), told.rules);
    EXPECT_TRUE(form.property("picture").toString().endsWith(QString::fromUtf8(told.picture)));
    EXPECT_EQ(topOf(form, "picQuiz"), told.tops[0]);
    EXPECT_EQ(topOf(form, "picNext"), told.tops[1]);
    EXPECT_EQ(topOf(form, "picPre"), told.tops[2]);
    if (told.beginTop != 0) {
        EXPECT_EQ(topOf(form, "picBegin"), told.beginTop);
        EXPECT_EQ(desk.caption("lblTopic2"), QString::fromUtf8(told.headline));
        EXPECT_EQ(desk.caption(desk.drill().instructionName), instructionOf(told.name));
    } else {
        EXPECT_EQ(form.findChild<QWidget*>(QStringLiteral("picBegin")), nullptr);
    }
    EXPECT_EQ(desk.session.scoreSlot, told.slot);
    EXPECT_EQ(form.findChild<platform::StoryBox*>() != nullptr, told.story);
    EXPECT_TRUE(desk.isShown("picNext"));
    EXPECT_FALSE(desk.isShown("picQuiz"));
    EXPECT_EQ(desk.failure(), QString());
}

TEST_P(Catalogue, PaintsTheBoxesInItsColoursAndKeepsThemOutOfTheTabOrder) {
    const std::string name = GetParam().name;
    DrillDesk desk(QString::fromStdString(name));
    ASSERT_NE(desk.open(), nullptr);
    const std::set<std::string> cyan{"frmLesson",   "frmLesson7",    "frmLesson8",
                                     "frmLesson18", "frmLesson18_2", "frmLesson24"};
    for (int i = 0; i < GetParam().boxes; ++i) {
        const QRgb expected = name == "frmLesson11" ? (i < 13 ? colour::lightOrange : colour::paleCyan)
                              : cyan.contains(name) ? colour::paleCyan
                                                    : colour::white;
        EXPECT_EQ(desk.box(i).backColor(), expected) << i;
        EXPECT_EQ(desk.box(i).focusPolicy() & Qt::TabFocus, 0) << i;
        EXPECT_FALSE(desk.box(i).accessibleName().isEmpty());
    }
}

TEST_P(Catalogue, KeepsAllControlsOnTheCardApartAndLargeEnough) {
    DrillDesk desk(QString::fromUtf8(GetParam().name));
    ASSERT_NE(desk.open(), nullptr);
    core::Screen& form = desk.form();
    const QRect card(26, 85, 829, 621);
    std::vector<QWidget*> onCard;
    for (QWidget* control : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!control->isWindow() && form.placeOf(*control).left() < 858 && form.placeOf(*control).top() > 80)
            onCard.push_back(control);
    for (std::size_t i = 0; i < onCard.size(); ++i) {
        const QRect place = form.placeOf(*onCard[i]);
        EXPECT_TRUE(card.contains(place)) << onCard[i]->objectName().toStdString();
        const bool isBox = qobject_cast<TextBox*>(onCard[i]) != nullptr;
        EXPECT_TRUE(!isBox || (place.width() >= 80 && place.height() >= 20))
            << onCard[i]->objectName().toStdString();
        for (std::size_t k = i + 1; k < onCard.size(); ++k)
            EXPECT_FALSE(place.intersects(form.placeOf(*onCard[k])))
                << onCard[i]->objectName().toStdString() << " and " << onCard[k]->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, Catalogue, ::testing::ValuesIn(known),
                         [](const auto& screen) { return std::string(screen.param.name); });
