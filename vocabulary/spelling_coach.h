#pragma once

#include "course/exercise_screen.h"
#include "vocabulary/letter_row.h"
#include "vocabulary/spelling_method.h"
#include "vocabulary/word_player.h"

#include <QListWidget>

namespace vocabulary {

using core::Int16;
using platform::CommandButton;
using platform::Label;
using platform::PictureButton;
using platform::TextBox;

/// `frmVoca2`: each word of the step from its meaning, by heart or through the spelling method.
class SpellingCoach final : public course::ExerciseScreen {
    Q_OBJECT
   public:
    explicit SpellingCoach(core::Context& context);

   protected:
    std::vector<QWidget*> afterAnswers() const override;
    void firstTick() override;
    void closeRecordsets() override;
    void nextClicked() override;
    void preClicked() override { tableClicked(); }

   private:
    void buildTexts();
    void buildEntry();
    void buildMethod();
    void buildLookup();

    /// False when the step has no words at all.
    bool fillWorkingList();
    void firstWord();

    void answerClicked();
    void practiceClicked();
    void makeQuiz();
    void nextQuiz();
    void nextQuiz2();
    void countWord();
    void loadWord();
    void finish();

    void boxTyped(Stage row, int index);
    void copiedLetterTyped(LetterRow& row, int index);
    void maskedLetterTyped(LetterRow& row, int index, int reach);
    void take(Event event);
    void go(const Turn& turn);
    void complain(const Complaint& complaint, LetterRow& row);
    void openSecondCopy(bool steppedBack);
    void emptyAndLockRows();
    void buildMaskedRow(Stage stage, const QString& mask, const FocusSearch& search);
    void buildWholeRow();
    void prepareRows();
    void clearRows();
    void showStepBack(Stage stage);

    void listClicked(const QListWidgetItem& item);
    void lookUp(const QString& word);

    LetterRow& row(Stage stage) const { return *rows_[static_cast<std::size_t>(stage) - 1]; }
    int letterCount() const { return qMin<int>(static_cast<int>(currentWord_.size()), boxCount); }
    void speak();

    platform::Database bookDb_;
    platform::Database wordDb_;
    platform::Recordset wordRs_;

    QString currentWord_;
    std::array<QString, boxCount> wordLetters_;
    Stage stage_ = Stage::Closed;
    bool wordEntryOpen_ = true;
    bool lookupOpen_ = true;
    QString soundCode_;
    Int16 wrongCount_;
    Int16 wordIndex_;
    Int16 wordTotal_;

    TextBox* txtWord_ = nullptr;
    TextBox* txtdef_ = nullptr;
    Label* lblDef_ = nullptr;
    Label* lblDef2_ = nullptr;
    Label* lblHint_ = nullptr;
    Label* lblNow_ = nullptr;
    Label* lblTotal_ = nullptr;
    CommandButton* cmdAnswer_ = nullptr;
    CommandButton* cmdPractice_ = nullptr;
    CommandButton* cmdMakeQuiz_ = nullptr;
    CommandButton* cmdNextQuiz_ = nullptr;
    CommandButton* cmdNextQuiz2_ = nullptr;
    PictureButton* picBack_ = nullptr;
    std::array<PictureButton*, 3> picUp_{};
    std::array<LetterRow*, rowCount> rows_{};
    QListWidget* list_ = nullptr;
    WordPlayer* web1_ = nullptr;
};

}  // namespace vocabulary
