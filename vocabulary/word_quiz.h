#pragma once

#include "course/exercise_screen.h"
#include "vocabulary/letter_row.h"
#include "vocabulary/word_player.h"

namespace vocabulary {

using core::Int16;
using platform::Label;
using platform::PictureButton;

/// `frmVoca4`: every word of the step typed whole from its meaning and first letter, in random order.
class WordQuiz final : public course::ExerciseScreen {
    Q_OBJECT
   public:
    explicit WordQuiz(core::Context& context);

   protected:
    std::vector<QWidget*> afterAnswers() const override;
    void firstTick() override;
    void closeRecordsets() override;
    void restoreHover() override;
    void beginClicked() override;
    void nextClicked() override;
    void preClicked() override { leaveTo(QStringLiteral("frmVoca3")); }

   private:
    void buildTexts();
    void buildQuiz();

    bool fillWorkingList();
    void PrepareQuizList();
    /// The first word that has more letters than there are boxes, or an empty text.
    QString wordWithoutRoom();
    void showWord();

    void letterTyped(int index);
    void keyPressed(int index, int keyCode);
    void JudgeWord();
    void wordRight();
    void wordWrong(const QString& word);
    void countWord();
    void finish();
    void nextWordTick();

    platform::Database quizDb_;
    platform::Recordset testwordRs_;
    platform::Recordset testword2Rs_;
    platform::Recordset testword3Rs_;
    platform::Recordset testword4Rs_;
    Int16 quizTotal_;
    Int16 quizNo_;
    Int16 firstTryCount_;
    bool firstTryOpen_ = true;
    bool wordCounted_ = false;
    Int16 missCount_;
    bool answerOpen_ = false;
    Int16 nextWordTicks_;

    PictureButton* picRight_ = nullptr;
    LetterRow* letters_ = nullptr;
    Label* lblWord_ = nullptr;
    Label* lblLetter_ = nullptr;
    Label* lblNow_ = nullptr;
    Label* lblTotal_ = nullptr;
    Label* lblMiss_ = nullptr;
    platform::ControlArray<Label> lblMemo_{QStringLiteral("lblMemo")};
    WordPlayer* web1_ = nullptr;
    platform::Timer* timer1_ = nullptr;
};

}  // namespace vocabulary
