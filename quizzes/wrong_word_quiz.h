#pragma once

#include "catalogue/quizzes.h"
#include "quizzes/question_quiz.h"

namespace quizzes {

using catalogue::QuizEntry;

/// `frmQuiz4`: a word of the sentence is clicked, and the right one typed for it. The click is a gate alone;
/// what is judged is the typed word.
class WrongWordQuiz final : public QuestionQuiz {
    Q_OBJECT
   public:
    WrongWordQuiz(core::Context& context, const QuizEntry& entry);

   protected:
    void showQuestion(bool first) override;
    void check() override { judge(false); }
    void chooseByDigit(int number) override;

   private:
    /// Cuts the sentence into words that can be clicked.
    void ShowSentence(const QString& sentence);
    /// Puts the words in centred lines.
    void layOutWords(int count);
    void placeLine(const std::vector<int>& words, int top);
    int widthOf(const Label& word) const;
    void wordClicked(int index);
    void judge(bool byEnter);

    ControlArray<Label> lblWord2_{QStringLiteral("lblWord2")};
    Label* lblWord3_;
    TextBox* txtWord_;
};

}  // namespace quizzes
