#pragma once

#include "platform/reports/preview.h"
#include "tests/worksheets/sheet_desk.h"
#include "worksheets/worksheet_menu.h"

#include <gtest/gtest.h>

namespace support {

/// The menu over a course of a test's own, with the real templates.
class MenuTest : public ::testing::Test {
   protected:
    MenuTest() {
        installReports(desk_);
        for (int topic = 1; topic <= 24; ++topic)
            desk_.exec(sheetStore, "insert into topic values(" + std::to_string(topic) + ",'단원 " +
                                       std::to_string(topic) + "')");
    }

    void addStep(int recordNo, int topicNo, int pageNo, const std::string& type = "Quiz",
                 const std::string& useData = "YES") {
        const std::string number = std::to_string(recordNo);
        desk_.exec(sheetStore,
                   "insert into tablework(recordno,topicno,pageno,Type,Title,guide,guide2,wordno,usedata,"
                   "useform,quizno) values(" +
                       number + "," + std::to_string(topicNo) + "," + std::to_string(pageNo) + ",'" + type +
                       "','제목','안내','지시 " + number + "',0,'" + useData + "','frmQuiz',5)");
    }
    void addQuestions(int recordNo, int count) {
        std::string sql;
        for (int i = 1; i <= count; ++i) {
            const std::string n = std::to_string(recordNo) + "-" + std::to_string(i);
            sql +=
                "insert into tovalin1_quiz_data(topicno,recordno,orderno,q1,q2,q3,q4,a1,a2,autono) "
                "values(1," +
                std::to_string(recordNo) + "," + std::to_string(i) + ",'" + n +
                " asks ____.','p','q','Blank','a" + std::to_string(i) + "',''," +
                std::to_string(recordNo * 100 + i) + ");";
        }
        desk_.exec(masterStore, sql);
    }

    worksheets::WorksheetMenu* open(int topicNo = 1) {
        desk_.session.topicNo = topicNo;
        menu_ = static_cast<worksheets::WorksheetMenu*>(desk_.open(QStringLiteral("frmWorkSheet")));
        return menu_;
    }
    platform::Label& topic(int index) {
        return find<platform::Label>(menu_, QStringLiteral("lblTopic(%1)").arg(index));
    }
    platform::Label& lesson(int index) {
        return find<platform::Label>(menu_, QStringLiteral("lblLessonNo(%1)").arg(index));
    }
    platform::ReportPreview* preview() { return menu_->report().window(); }
    QString reportName() { return menu_->report().file().mid(sheetFolder.size()); }
    void closePreview() {
        ASSERT_NE(preview(), nullptr);
        QTest::keyClick(preview(), Qt::Key_Escape);
        settle();
    }
    QStringList lines(const std::string& fields = "word1") {
        return desk_.rows(sheetStore, "select " + fields + " from tempword order by orderno");
    }

    Desk desk_;
    worksheets::WorksheetMenu* menu_ = nullptr;
};

inline const QString refusal = QStringLiteral("해당 레슨은 워크시트가 제공되지 않는 레슨입니다.");

}  // namespace support
