#pragma once

#include <QString>

#include <span>
#include <string>

/// What each screen demands of the rows of its step, as the catalogue has it.
namespace tools::check {

enum class Need { None, Wanted, Demanded };

/// A drill's demands. A step of `frmLesson2` has a second page, whose rows stand under a number of their own.
struct DrillShape {
    std::string form;
    int least = 0;
    int boxes = 0;
    int lines = 0;  // room for rule lines
    Need linesNeed = Need::None;
    Need tip = Need::None;
    int answer = 1;              // the field that is asked: word1 or word2
    int prompt = 0;              // the field that prompts, 0 for none or fixed prompts
    int lastPrompted = 0;        // rows behind this one have no prompt; 0: all have one
    int listFrom = 0;            // rows from this one on are right wherever their word stands; 0: none
    bool secondWordRead = true;  // `word2` as authored means something
};

std::span<const DrillShape> drillShapes();
const DrillShape* findDrillShape(const QString& form);

/// The drill of a step, as its rows and rule lines show it: the cloze where step 21 has a video step's name.
const DrillShape* drillOfStep(const QString& form, int record);

/// A quiz screen's demands.
struct QuizShape {
    std::string form;
    bool table = false;         // all questions at once, so at most 15
    std::string shown;          // the digits of the fields q1 to q7 that the screen shows
    std::string choices;        // the digits of those that are choices
    std::string secondPair;     // the same for the second pair of choices
    bool secondAnswer = false;  // `a2` is asked as well
    bool exact = false;         // choices are compared with the answer to the letter
    int questionColumns = 0;
    int choiceColumns = 0;
    int answerColumns = 0;
    bool gap = false;  // the sentence has a gap "____"
};

std::span<const QuizShape> quizShapes();
const QuizShape* findQuizShape(const QString& form);

/// The buttons of frmQuiz5 at a step, as answers must name them.
QStringList buttonAnswers(int record);
/// Whether the buttons are the articles, whose answers are compared without regard to case.
bool buttonsAreArticles(int record);

/// Which field frmQuiz4 judges by at a step: 1, 2, 12 for either of both, 0 where it judges nothing.
int wrongWordField(int record);

/// Whether frmQuiz8 takes `a2` as a second right answer at a step.
bool takesSecondChoice(int record);

/// Whether a step has a worksheet of its own: it is not refused, and a template stands under its number.
bool hasSheet(int record);

}  // namespace tools::check
