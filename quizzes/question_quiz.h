#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/judges.h"
#include "quizzes/quiz_screen.h"

#include <map>

namespace quizzes {

using catalogue::QuizEntry;

/// The shape that asks one question at a time: every row once, in its drawn order, right or wrong.
class QuestionQuiz : public QuizScreen {
    Q_OBJECT
   protected:
    QuestionQuiz(core::Context& context, const QuizEntry& entry);

    void start() override { startRun(); }
    void begin() override;
    /// Shows the current row; `first` for the first one of a run.
    virtual void showQuestion(bool first) = 0;
    /// Shuffles and asks the first question.
    void startRun();

    /// An answer of the row in hand: the field that the entry judges against, from 0.
    QString answer(std::size_t index) const { return required(entry().judged[index]); }
    /// Puts `quizRs` on the question on show.
    void positionRow();
    /// Plays and shows the verdict, counts it, and marks the row of a wrong answer.
    void announce(const Verdict& verdict);
    /// Goes on to the next question or ends the quiz.
    void advance();
    bool onLastQuestion() const { return itemNo_ == itemTotal; }

    /// The labels of `shown` in its order, and those of them that are choices.
    Label& shownLabel(std::size_t index) const { return *shown_[index]; }
    const std::vector<Label*>& choices() const { return choices_; }
    /// Shows the row's field on a label of `shown`.
    void fillShown(std::size_t index);
    void fillAllShown();
    void chooseByDigit(int number) override;

    Label& addSlot(const char* name, const QRect& place, const QString& spoken);
    Label& addHeading(const char* name, const QRect& place, const char* text);

   private:
    void showItem();

    std::vector<Label*> shown_;
    std::vector<Label*> choices_;
    std::map<const Label*, Label*> keyOf_;
    Label* lblMark_ = nullptr;
    Int16 itemNo_;
    Int16 correctCount_;
};

}  // namespace quizzes
