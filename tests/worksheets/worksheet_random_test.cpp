#include "platform/reports/preview.h"
#include "tests/worksheets/sheet_desk.h"
#include "worksheets/worksheet_menu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using platform::Label;
using support::click;
using support::Desk;
using support::find;
using worksheets::WorksheetMenu;

namespace {

constexpr int events = 250;
constexpr int lessonsAUnit = 5;
// Steps of every builder, finals and refused lessons among them.
const std::vector<int> steps{1, 3, 8, 14, 15, 16, 29, 40, 94, 121, 170, 171, 208, 242, 256};

void fillCourse(const Desk& desk) {
    std::string course;
    std::string master;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const std::string number = std::to_string(steps[i]);
        const bool isFinal = steps[i] == 14 || steps[i] == 94;
        course +=
            "insert into tablework(recordno,topicno,pageno,Type,Title,guide2,wordno,usedata,quizno) values(" +
            number + "," + std::to_string(i / lessonsAUnit + 1) + "," + std::to_string(i % lessonsAUnit + 1) +
            (isFinal ? ",'Final'" : ",'Quiz'") + ",'t','g',0,'YES',6);";
        for (int k = 1; k <= 6; ++k)
            master += "insert into tovalin1_quiz_data(recordno,orderno,q1,q2,q3,q4,a1,a2,autono) values(" +
                      number + "," + std::to_string(k) + ",'q ____','b','c','d','a','e'," +
                      std::to_string(k) + ");";
    }
    for (int topic = 1; topic <= 3; ++topic)
        course += "insert into topic values(" + std::to_string(topic) + ",'unit');";
    course += "insert into basic_data3 values(1,15,'a b','c','Blank','Blank','v');";
    desk.exec(support::sheetStore, course);
    desk.exec(support::masterStore, master);
}

class Monkey {
   public:
    Monkey(WorksheetMenu& menu, unsigned seed) : menu_(menu), chance_(seed) {}

    void act() {
        if (auto* window = menu_.report().window())
            QTest::keyClick(window, anyKey());
        else if (draw(4) == 0)
            QTest::mouseMove(&menu_, QPoint(draw(menu_.width()), draw(menu_.height())));
        else if (draw(3) == 0)
            click(find<Label>(&menu_, QStringLiteral("lblTopic(%1)").arg(draw(3))));
        else
            clickLesson(find<Label>(&menu_, QStringLiteral("lblLessonNo(%1)").arg(draw(lessonsAUnit))));
        support::settle();
    }

   private:
    int draw(int count) { return static_cast<int>(chance_() % static_cast<unsigned>(count)); }
    Qt::Key anyKey() {
        constexpr std::array keys{Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home,  Qt::Key_End, Qt::Key_Plus,
                                  Qt::Key_Minus,    Qt::Key_Escape, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Down};
        return keys[static_cast<std::size_t>(draw(static_cast<int>(keys.size())))];
    }
    static void clickLesson(Label& lesson) {
        if (lesson.isVisible())
            click(lesson);
    }

    WorksheetMenu& menu_;
    std::mt19937 chance_;
};

}  // namespace

class WorksheetRandom : public ::testing::TestWithParam<unsigned> {};

TEST_P(WorksheetRandom, EventsEndInNothingButTheMessagesOfTheLessons) {
    Desk desk;
    installReports(desk);
    fillCourse(desk);
    desk.session.teacherMode = GetParam() % 2 == 0 ? QStringLiteral("Teacher") : QString();
    desk.session.topicNo = 1;
    auto* menu = static_cast<WorksheetMenu*>(desk.open(QStringLiteral("frmWorkSheet")));
    ASSERT_NE(menu, nullptr);
    Monkey monkey(*menu, GetParam());
    for (int i = 0; i < events && desk.failure().isEmpty(); ++i)
        monkey.act();
    EXPECT_TRUE(desk.failure().isEmpty()) << desk.failure().toStdString();
    // A sheet has one head, is of a step that there is, and earns nothing.
    for (const char* table : {"student", "guide"})
        EXPECT_LE(desk.rows(support::sheetStore, "select * from " + std::string(table)).size(), 1) << table;
    EXPECT_LE(desk.row(support::sheetStore, "select count(*) from tempword").toInt(), 60);
    EXPECT_EQ(desk.rows(support::scoreStore, "select * from score"), QStringList());
    const bool isStep = std::find(steps.begin(), steps.end(), desk.session.recordNo) != steps.end();
    EXPECT_TRUE(desk.session.recordNo == 0 || isStep) << static_cast<int>(desk.session.recordNo);
    EXPECT_TRUE(desk.session.topicNo >= 1 && desk.session.topicNo <= 3);
    EXPECT_TRUE(desk.session.scoreValue == 0);
    EXPECT_EQ(desk.screens().standing().size(), 1U);
    for (const QString& text : desk.boxes.texts())
        EXPECT_TRUE(text.startsWith(QStringLiteral("해당 레슨은 워크시트가")) ||
                    text.startsWith(QStringLiteral("데이타 오류입니다.")))
            << text.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Seeds, WorksheetRandom, ::testing::Values(1U, 2U, 3U, 4U));
