// The quiz answered by one of five buttons, whose captions hang on the number of the step.

#include "tools/rules/quiz_visit.h"

#include <QStringList>

namespace tools::check {

namespace {

bool isAnswer(int record, const QString& answer) {
    const QStringList answers = buttonAnswers(record);
    if (!buttonsAreArticles(record))
        return answers.contains(answer);
    return answer == QStringLiteral("Blank") || answers.mid(0, 3).contains(answer.toLower());
}

void buttonAnswer(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz5"}, [&](const Step& step, const Question& question) {
        const int record = step.record.value_or(0);
        if (!folded(question.a1).isEmpty() && !isAnswer(record, question.a1))
            findings.add(question.at("a1"),
                         QStringLiteral("no button of %1 gives '%2'").arg(step.called(), question.a1),
                         QStringLiteral("one of %1, written so")
                             .arg(buttonAnswers(record).join(QStringLiteral(", "))));
    });
}

void buttonStep(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (step.form == QStringLiteral("frmQuiz5") && step.record.value_or(0) > 160)
            findings.add(
                step.at("useform"),
                QStringLiteral(
                    "behind step 160 the answers must be written as the captions of the buttons, and no "
                    "wrong answer is heard"),
                QStringLiteral("frmQuiz7 with two choices, or a step that the buttons are made for"));
}

void numberedPlace(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz5"}, [&](const Step& step, const Question& question) {
        if (step.record != 110 && step.record != 111)
            return;
        int places = 0;
        while (question.q[1].contains(QStringLiteral("(%1)").arg(places + 1)))
            ++places;
        if (const int wanted = question.a1.toInt(); wanted > places || places < 2)
            findings.add(question.at("q1"),
                         QStringLiteral("the sentence numbers %1 places, and '%2' is asked")
                             .arg(places)
                             .arg(question.a1),
                         QStringLiteral("places (1), (2) … in the sentence, the right one among them"));
    });
}

constexpr std::array rules{
    Rule{"button-answer", Severity::Error, "an answer of frmQuiz5 is one of the step's buttons",
         buttonAnswer},
    Rule{"button-step", Severity::Warning, "frmQuiz5 stands at a step that its buttons are made for",
         buttonStep},
    Rule{"button-place", Severity::Error, "numbered sentences carry the place that is asked", numberedPlace},
};

}  // namespace

std::span<const Rule> buttonRules() {
    return rules;
}

}  // namespace tools::check
