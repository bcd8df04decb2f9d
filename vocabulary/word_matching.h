#pragma once

#include "course/exercise_screen.h"

namespace vocabulary {

using core::Int16;
using platform::Label;
using platform::PictureButton;

/// `frmVoca3`: words on the left, their meanings shuffled on the right; ten pairs a page, at most two pages.
class WordMatching final : public course::ExerciseScreen {
    Q_OBJECT
   public:
    explicit WordMatching(core::Context& context);

   protected:
    void firstTick() override;
    void closeRecordsets() override;
    void nextClicked() override { leaveTo(QStringLiteral("frmVoca4")); }
    void preClicked() override { leaveTo(QStringLiteral("frmVoca2")); }

   private:
    void buildTexts();
    void buildColumns();

    void fillWorkingList();
    void MakeFirstPage();
    void MakeSecondPage();
    void drawPageOrder(const QString& filter);
    void showPage(const QString& filter);
    void clearColumns();

    void wordClicked(int index);
    void definitionClicked(int index);
    void definitionHovered(int index);
    void pairMatched(int definitionIndex);
    void finish();
    void findWord(int number);

    platform::Database matchDb_;
    platform::Recordset matchRs_;
    Int16 matchTotal_;
    Int16 matchNo_;
    Int16 chosenWord_;
    Int16 matchPage_;
    bool cleanMatch_ = true;

    platform::ControlArray<Label> lblWord_{QStringLiteral("lblWord")};
    platform::ControlArray<Label> lblDefinition_{QStringLiteral("lblDefinition")};
    Label* lblAnswer_ = nullptr;
    Label* lblTotal_ = nullptr;
    Label* lblCurrent_ = nullptr;
    PictureButton* picNo_ = nullptr;
    PictureButton* picNo2_ = nullptr;
};

}  // namespace vocabulary
