#pragma once

#include "core/screen.h"

#include <array>

namespace course {

using core::Int16;
using platform::ControlArray;
using platform::Label;
using platform::PictureButton;

inline constexpr int topicCount = 24;
inline constexpr int rowsPerPage = 20;

/// `frmTable`, the home screen: the units, the steps of one unit with dates, scores and stars, and the start
/// of a step.
class CourseTable final : public core::Screen {
    Q_OBJECT
   public:
    explicit CourseTable(core::Context& context);

   protected:
    void orderTabs() override;

   private:
    static constexpr int hoverButtonCount = 7;

    void buildHeader();
    void buildTopics();
    void buildRows();
    void buildRow(int i);
    void buildWait();
    /// Shows a button at rest (1) or lit (2).
    void showButton(int index, int state);
    void firstTick();
    void showTopicTitle();
    void ListTopicRows();
    void StartSelectedStep();
    void readStoredStep();
    void startFinal();
    void clearRows();
    /// Fills the page from the current row of `stepRs`; the shown score and its star come from `scoreField`.
    void fillRows(const QString& scoreField);
    void showRowScore(int row, const QString& recordNo, const QString& scoreField);
    void showPage(int page, const QString& direction);

    void topicClicked(int index);
    void rowClicked(int index);
    void downClicked();
    void upClicked();
    void studyClicked();
    void finalClicked();

    void formHovered();
    void buttonHovered(int index);
    void rowHovered(int index);
    void topicHovered(int index);
    void blackenRows(bool dates);
    void closeData();

    Label* lblTopic2_;
    Label* lblCurrentPage_;
    ControlArray<Label> lblTopic_{QStringLiteral("lblTopic")};
    ControlArray<Label> lblRecordNo_{QStringLiteral("lblRecordNo")};
    ControlArray<Label> lblTitle_{QStringLiteral("lblTitle")};
    ControlArray<Label> lblLesson_{QStringLiteral("lblLesson")};
    ControlArray<Label> lblDate_{QStringLiteral("lblDate")};
    ControlArray<Label> lblScore_{QStringLiteral("lblScore")};
    ControlArray<Label> lblAutoNo_{QStringLiteral("lblAutoNo")};
    ControlArray<PictureButton> picScore_{QStringLiteral("picScore")};
    std::array<PictureButton*, hoverButtonCount> buttons_{};
    PictureButton* picUp_ = nullptr;
    PictureButton* picDown_ = nullptr;
    platform::Timer* timerGo_;

    platform::Database formDb_;
    platform::Recordset stepRs_;
    platform::Recordset topicRs_;
    Int16 rowCount_;
    Int16 pageIndex_;
    QString pageDirection_;
    Int16 hoverArmed_;
    Int16 rowHover_;
};

}  // namespace course
