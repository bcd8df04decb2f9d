// The spelling method on the screen: five rows that are built, filled and judged in turn. Builders change the
// texts first and open their stage last, and a row that is not open judges nothing: that keeps the program's
// own writing from being taken for the learner's.

#include "vocabulary/spelling_coach.h"

namespace vocabulary {

void SpellingCoach::makeQuiz() {
    prepareRows();
    speak();
    row(Stage::Copy).focus(0);
}

void SpellingCoach::clearRows() {
    wordLetters_.fill(QString());
    for (LetterRow* row : rows_) {
        row->empty();
        row->showFirst(0);
    }
}

void SpellingCoach::prepareRows() {
    clearRows();
    for (int i = 0; i < letterCount(); ++i)
        wordLetters_[static_cast<std::size_t>(i)] = currentWord_.mid(i, 1).toLower();
    for (int i = 0; i < rowCount; ++i) {
        rows_[static_cast<std::size_t>(i)]->showFirst(letterCount());
        rows_[static_cast<std::size_t>(i)]->setLocked(i >= 2, letterCount());
    }
    showStepBack(Stage::Closed);
    stage_ = Stage::Copy;
    lblHint_->setCaption(currentWord_);
    // Practice pressed in a later row starts over, and the copies are made with the word in sight.
    lblHint_->show();
    cmdAnswer_->hide();
    lookupOpen_ = false;
}

void SpellingCoach::boxTyped(Stage stage, int index) {
    if (stage_ != stage)
        return;
    switch (stage) {
        case Stage::Vowels: maskedLetterTyped(row(stage), index, vowelReach); break;
        case Stage::Consonants: maskedLetterTyped(row(stage), index, consonantReach); break;
        default: copiedLetterTyped(row(stage), index); break;
    }
}

void SpellingCoach::copiedLetterTyped(LetterRow& row, int index) {
    if (row(index).text().toLower() != wordLetters_[static_cast<std::size_t>(index)])
        row.focus(index);
    else if (const auto next = shownBoxAfter(row.read(), index))
        row.focus(*next);
    else
        take(Event::RowRight);
}

void SpellingCoach::maskedLetterTyped(LetterRow& row, int index, int reach) {
    if (const auto next = openBoxAfter(row.read(), index, reach))
        row.focus(*next);
    else
        take(sameWord(row.word(), currentWord_) ? Event::RowRight : Event::RowWrong);
}

void SpellingCoach::take(Event event) {
    if (const Turn* turn = turnFrom(stage_, event))
        go(*turn);
}

void SpellingCoach::go(const Turn& turn) {
    if (turn.complaint != nullptr)
        complain(*turn.complaint, row(turn.from));
    if (turn.speaks)
        speak();
    switch (turn.to) {
        case Stage::Closed: cmdNextQuiz_->onClick(); break;
        case Stage::Copy: break;
        case Stage::CopyAgain: openSecondCopy(turn.event == Event::StepBack); break;
        case Stage::Vowels: buildMaskedRow(turn.to, vowelMask(currentWord_), turn.search); break;
        case Stage::Consonants: buildMaskedRow(turn.to, consonantMask(currentWord_), turn.search); break;
        case Stage::Whole: buildWholeRow(); break;
    }
}

void SpellingCoach::complain(const Complaint& complaint, LetterRow& row) {
    if (complaint.emptiedFirst)
        row.empty(letterCount());
    context().boxes.show({complaint.text, complaint.icon, complaint.title});
    if (!complaint.emptiedFirst)
        row.empty(letterCount());
    stage_ = Stage::Closed;
}

void SpellingCoach::openSecondCopy(bool steppedBack) {
    if (steppedBack) {
        lblHint_->show();
        row(Stage::CopyAgain).setLocked(false, letterCount());
        row(Stage::CopyAgain).empty(letterCount());
        row(Stage::Vowels).empty(letterCount());
        row(Stage::Vowels).setLocked(true, letterCount());
    }
    stage_ = Stage::CopyAgain;
    showStepBack(stage_);
    row(stage_).focus(0);
}

void SpellingCoach::emptyAndLockRows() {
    for (LetterRow* row : rows_) {
        row->empty(letterCount());
        row->setLocked(true, letterCount());
    }
}

void SpellingCoach::buildMaskedRow(Stage stage, const QString& mask, const FocusSearch& search) {
    emptyAndLockRows();
    lblHint_->hide();
    lblDef_->hide();
    LetterRow& masked = row(stage);
    for (int i = 0; i < letterCount(); ++i) {
        const bool hidden = mask[i] == hiddenLetter;
        masked(i).setText(hidden ? QString() : mask.mid(i, 1));
        masked(i).setLocked(!hidden);
    }
    if (const auto box = firstOpenBox(masked.read(), search))
        masked.focus(*box);
    stage_ = stage;
    showStepBack(stage);
}

void SpellingCoach::buildWholeRow() {
    emptyAndLockRows();
    row(Stage::Whole).setLocked(false, letterCount());
    stage_ = Stage::Whole;
    showStepBack(stage_);
    row(stage_).focus(0);
}

void SpellingCoach::showStepBack(Stage stage) {
    constexpr std::array backFrom{Stage::Vowels, Stage::Consonants, Stage::Whole};
    for (std::size_t i = 0; i < backFrom.size(); ++i)
        picUp_[i]->setVisible(backFrom[i] == stage);
}

}  // namespace vocabulary
