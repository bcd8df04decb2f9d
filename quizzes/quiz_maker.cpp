#include "quizzes/quiz_maker.h"

#include "quizzes/button_quiz.h"
#include "quizzes/choice_quiz.h"
#include "quizzes/pool_quiz.h"
#include "quizzes/row_choice_quiz.h"
#include "quizzes/sentence_quiz.h"
#include "quizzes/two_pick_quiz.h"
#include "quizzes/typed_table_quiz.h"
#include "quizzes/word_box_quiz.h"
#include "quizzes/wrong_word_quiz.h"

namespace quizzes {

using catalogue::Answering;

core::Screen* makeQuiz(core::Context& context, const QuizEntry& entry) {
    switch (entry.answering) {
        case Answering::Choice: return new ChoiceQuiz(context, entry);
        case Answering::TwoPicks: return new TwoPickQuiz(context, entry);
        case Answering::WrongWord: return new WrongWordQuiz(context, entry);
        case Answering::Button: return new ButtonQuiz(context, entry);
        case Answering::Sentence: return new SentenceQuiz(context, entry);
        case Answering::WordBoxes: return new WordBoxQuiz(context, entry);
        case Answering::RowChoice: return new RowChoiceQuiz(context, entry);
        case Answering::Pool: return new PoolQuiz(context, entry);
        case Answering::RowTyping: return new TypedTableQuiz(context, entry);
    }
    return nullptr;
}

}  // namespace quizzes
