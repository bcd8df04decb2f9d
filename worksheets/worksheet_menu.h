#pragma once

#include "core/screen.h"
#include "platform/reports/report.h"

namespace worksheets {

using core::Int16;
using platform::ControlArray;
using platform::Label;
using platform::PictureButton;

inline constexpr int topicCount = 24;
inline constexpr int lessonCount = 22;

/// `frmWorkSheet`: lists the units and the lessons of one of them, and prints the worksheet of a lesson, with
/// its answer key for a teacher. It works in a copy of the course at a fixed place.
class WorksheetMenu final : public core::Screen {
    Q_OBJECT
   public:
    explicit WorksheetMenu(core::Context& context);

    platform::Report& report() { return *prtReport_; }

   private:
    void buildHeader();
    void buildTopics();
    void buildLessons();
    void load();
    void listLessons(int topicNo);
    void topicClicked(int index);
    void lessonClicked(int index);
    void ChooseStep();
    /// Fills the report tables; false where there is nothing to print.
    bool fillTables(int recordNo, int pageNo, const QString& guide);
    void writeHeader(int recordNo, int pageNo, const QString& guide);
    void runReports(int recordNo);
    void runTeacherReport(int recordNo);
    void runReport();
    void closeReportSets();
    void exitClicked();
    void exitHovered();
    void formHovered();

    Label* lblTopic2_ = nullptr;
    PictureButton* picExit_ = nullptr;
    ControlArray<Label> lblTopic_{QStringLiteral("lblTopic")};
    ControlArray<Label> lblLessonNo_{QStringLiteral("lblLessonNo")};
    platform::Report* prtReport_ = nullptr;

    platform::Database courseDb_;
    platform::Recordset stepRs_;
    platform::Recordset reportRs_;
    std::vector<platform::Recordset> heldSets_;
    Int16 lastRecordNo_;
    Int16 hoverArmed_;
    Int16 hoverLit_;
};

}  // namespace worksheets
