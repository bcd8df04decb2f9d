#include "tools/coursefiles/screens.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace tools::check {

namespace {

constexpr Need none = Need::None;
constexpr Need wanted = Need::Wanted;
constexpr Need demanded = Need::Demanded;

// Screens with a guard go on without rule lines; the others end the program.
constexpr std::array drills{
    DrillShape{"frmLesson", 28, 28, 8, demanded, demanded, 2, 1},
    DrillShape{"frmLesson2", 28, 28, 7, demanded, demanded, 1, 0, 0, 0, false},
    DrillShape{"frmLesson2_2", 23, 23, 13, demanded, none, 1, 0, 0, 0, false},
    DrillShape{"frmLesson3_2", 27, 27, 8, demanded, wanted, 1, 0, 0, 0, false},
    DrillShape{"frmLesson4", 35, 35, 9, demanded, demanded, 1, 0, 0, 0, false},
    DrillShape{"frmLesson7", 21, 21, 6, demanded, demanded, 2, 1},
    DrillShape{"frmLesson8", 28, 28, 5, demanded, demanded, 2, 1, 13, 14},
    DrillShape{"frmLesson9", 45, 45, 4, wanted, wanted, 1, 0, 0, 1, false},
    DrillShape{"frmLesson10", 16, 16, 4, wanted, wanted, 1, 0, 0, 1, false},
    DrillShape{"frmLesson11", 26, 26, 6, demanded, demanded, 2},
    DrillShape{"frmLesson17", 30, 30, 3, wanted, demanded, 2, 1},
    DrillShape{"frmLesson18", 12, 12, 4, wanted, demanded, 2, 1},
    DrillShape{"frmLesson18_2", 1, 16, 0, none, none, 2, 1},
    DrillShape{"frmLesson24", 54, 54, 0, none, demanded, 2, 1},
};

constexpr std::array quizzes{
    QuizShape{"frmQuiz", true, "123", "23", "", false, true, 34, 16, 16},
    QuizShape{"frmQuiz2", true, "1", "", "", false, false, 44, 0, 24},
    QuizShape{"frmQuiz3", false, "1234567", "45", "67", true, true, 110, 22, 22, true},
    QuizShape{"frmQuiz4", false, "1", "", "", false, false, 110, 0, 22},
    QuizShape{"frmQuiz5", false, "1", "", "", false, true, 110, 0, 0},
    QuizShape{"frmQuiz6", false, "12", "", "", false, true, 110, 0, 60},
    QuizShape{"frmQuiz7", false, "123", "23", "", false, false, 110, 26, 26, true},
    QuizShape{"frmQuiz8", false, "12345", "2345", "", false, false, 110, 26, 26, true},
    QuizShape{"frmQuiz9", true, "1", "", "", true, false, 24, 0, 24},
    QuizShape{"frmQuiz10", false, "123", "", "", false, false, 110, 0, 40, true},
    QuizShape{"frmQuiz11", true, "1", "", "", false, true, 40, 0, 16, true},
    QuizShape{"frmQuiz12", true, "1", "", "", false, true, 40, 0, 16, true},
};

struct Range {
    int first;
    int last;
    int value;
};

constexpr std::array wrongWords{Range{18, 19, 2},   Range{34, 35, 1},   Range{63, 64, 1},
                                Range{72, 72, 1},   Range{85, 86, 1},   Range{201, 204, 1},
                                Range{213, 214, 1}, Range{238, 239, 1}, Range{250, 251, 12}};

struct SheetRange {
    int first;
    int last;
    Sheet sheet;
};

// The first range that holds a number counts; refusals are asked before anything else.
constexpr std::array refused{29,  56,  67,  95,  101, 107, 115, 127, 133, 146,
                             152, 162, 170, 206, 216, 220, 223, 230, 241, 253};
constexpr std::array sheets{
    SheetRange{1, 1, Sheet::DrillTwoUp},         SheetRange{74, 74, Sheet::DrillTwoUp},
    SheetRange{2, 7, Sheet::Questions},          SheetRange{8, 13, Sheet::TwoUp},
    SheetRange{14, 14, Sheet::FinalOfFirstUnit}, SheetRange{15, 15, Sheet::Sentences},
    SheetRange{21, 21, Sheet::Sentences},        SheetRange{45, 45, Sheet::Sentences},
    SheetRange{20, 20, Sheet::FinalOfFirstUnit}, SheetRange{16, 28, Sheet::Columns},
    SheetRange{165, 166, Sheet::WithSecondLine}, SheetRange{208, 208, Sheet::WithSecondLine},
    SheetRange{256, 257, Sheet::WithSecondLine}, SheetRange{94, 94, Sheet::Final},
    SheetRange{126, 126, Sheet::Final},          SheetRange{145, 145, Sheet::Final},
    SheetRange{169, 169, Sheet::Final},          SheetRange{205, 205, Sheet::Final},
    SheetRange{215, 215, Sheet::Final},          SheetRange{252, 252, Sheet::Final},
    SheetRange{121, 123, Sheet::Swapped},        SheetRange{128, 132, Sheet::Swapped},
    SheetRange{134, 136, Sheet::Swapped},        SheetRange{147, 151, Sheet::Swapped},
    SheetRange{75, 110, Sheet::TwoUp},           SheetRange{96, 97, Sheet::TwoUp},
    SheetRange{102, 103, Sheet::TwoUp},          SheetRange{171, 182, Sheet::WordBank},
    SheetRange{183, 186, Sheet::DrillTwoUp},     SheetRange{187, 196, Sheet::TwoUp},
    SheetRange{242, 248, Sheet::Brackets},       SheetRange{30, 73, Sheet::Columns},
    SheetRange{77, 93, Sheet::Columns},          SheetRange{98, 100, Sheet::Columns},
    SheetRange{104, 106, Sheet::Columns},        SheetRange{108, 120, Sheet::Columns},
    SheetRange{125, 125, Sheet::Columns},        SheetRange{137, 143, Sheet::Columns},
    SheetRange{153, 161, Sheet::Columns},        SheetRange{163, 164, Sheet::Columns},
    SheetRange{197, 240, Sheet::Columns},        SheetRange{250, 251, Sheet::Columns},
    SheetRange{254, 255, Sheet::Columns},
};

template <typename Shapes>
auto findShape(const Shapes& shapes, const QString& form) -> decltype(shapes.data()) {
    const auto found = std::find_if(shapes.begin(), shapes.end(), [&](const auto& shape) {
        return form == QLatin1String(shape.form.data(), static_cast<qsizetype>(shape.form.size()));
    });
    return found == shapes.end() ? nullptr : &*found;
}

bool within(int record, int first, int last) {
    return record >= first && record <= last;
}

}  // namespace

std::span<const DrillShape> drillShapes() {
    return drills;
}

const DrillShape* findDrillShape(const QString& form) {
    return findShape(drills, form);
}

const DrillShape* drillOfStep(const QString& form, int record) {
    if (form == QStringLiteral("frmLesson3") && record == clozeRecord)
        return findDrillShape(QStringLiteral("frmLesson3_2"));
    return findDrillShape(form);
}

std::span<const QuizShape> quizShapes() {
    return quizzes;
}

const QuizShape* findQuizShape(const QString& form) {
    return findShape(quizzes, form);
}

QStringList buttonAnswers(int record) {
    if (within(record, 110, 111))
        return {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                QStringLiteral("5")};
    if (within(record, 137, 140))
        return {QStringLiteral("is"), QStringLiteral("are"), QStringLiteral("do"), QStringLiteral("does")};
    if (within(record, 153, 160))
        return {QStringLiteral("and"), QStringLiteral("or"), QStringLiteral("but")};
    // From there on the buttons keep their captions, and the answer is compared with the caption.
    if (record > 160)
        return {QStringLiteral("<a>"), QStringLiteral("<an>"), QStringLiteral("<the>"),
                QStringLiteral("Not Need")};
    return {QStringLiteral("a"), QStringLiteral("an"), QStringLiteral("the"), QStringLiteral("Blank")};
}

bool buttonsAreArticles(int record) {
    return !within(record, 110, 111) && !within(record, 137, 140) && record < 153;
}

int wrongWordField(int record) {
    for (const Range& range : wrongWords)
        if (within(record, range.first, range.last))
            return range.value;
    return 0;
}

bool takesSecondChoice(int record) {
    return within(record, 245, 249);
}

Sheet sheetOf(int record) {
    if (std::find(refused.begin(), refused.end(), record) != refused.end())
        return Sheet::Refused;
    for (const SheetRange& range : sheets)
        if (within(record, range.first, range.last))
            return range.sheet;
    return Sheet::None;
}

}  // namespace tools::check
