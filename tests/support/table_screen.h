#pragma once

#include "course/course_table.h"
#include "platform/desktop/timer.h"
#include "tests/support/course_rows.h"
#include "tests/support/recorder.h"

#include <QPointer>

#include <gtest/gtest.h>

namespace support {

/// The course table on a desk whose other screens are only noted down.
class TableScreen : public testing::Test {
   protected:
    Desk desk;
    RecordingNavigator navigator;
    core::Context context = contextWith(desk, navigator);
    core::Session& session = desk.session;
    QPointer<course::CourseTable> table;

    TableScreen() { desk.exec(courseStore, "insert into topic values(2,'관사'),(1,'명사'),(3,'대명사')"); }
    /// `count` quiz steps in a unit, numbered from `firstRecordNo`, stored last first.
    void addUnit(int topicNo, int count, int firstRecordNo) const {
        std::vector<StepRow> steps;
        for (int i = count; i >= 1; --i)
            steps.push_back(
                {.recordNo = firstRecordNo + i - 1, .topicNo = topicNo, .pageNo = i, .title = "단원"});
        addSteps(desk, steps);
    }
    /// The learner's row on a step.
    void addScore(int recordNo, int topicNo, const char* s3, const char* s4,
                  const char* student = "1001") const {
        const std::string step = std::to_string(recordNo);
        desk.exec(scoreStore,
                  "insert into score(recordno,page2,datapage,s1,s2,s3,s4,vDate,studentno,program) values(" +
                      step + "," + step + "," + std::to_string(topicNo) + ",'100','0','" + s3 + "'," + s4 +
                      ",'2026-03-01','" + student + "','Tovalin1')");
    }
    void openTable() {
        table = new course::CourseTable(context);
        table->show();
        const auto& timer = find<platform::Timer>(table, QStringLiteral("TimerGo"));
        waitFor([&] { return !timer.enabled() || !desk.failure().isEmpty(); });
    }

    platform::Label& label(const char* name, int index) const {
        return find<platform::Label>(table, QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index));
    }
    platform::Label& label(const char* name) const {
        return find<platform::Label>(table, QLatin1String(name));
    }
    platform::PictureButton& picture(const QString& name) const {
        return find<platform::PictureButton>(table, name);
    }
    bool starred(int row) const { return !picture(QStringLiteral("picScore(%1)").arg(row)).isHidden(); }
    /// Number, title, lesson, date and score of a row as the learner sees them, hidden ones as "-".
    QString row(int index) const {
        QStringList texts;
        for (const char* column : {"lblRecordNo", "lblTitle", "lblLesson", "lblDate", "lblScore"})
            texts.append(label(column, index).isHidden() ? QStringLiteral("-")
                                                         : label(column, index).caption());
        return texts.join(u'|');
    }
    int shownRows() const {
        int rows = 0;
        while (rows < course::rowsPerPage && !label("lblTitle", rows).isHidden())
            ++rows;
        return rows;
    }
    QString pictureOf(const char* button) const {
        return picture(QLatin1String(button)).property("picture").toString();
    }
    void press(const char* button) const { click(picture(QLatin1String(button))); }
};

}  // namespace support
