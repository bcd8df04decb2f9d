// What all quiz screens ask of their questions.

#include "catalogue/quizzes.h"
#include "tools/rules/quiz_visit.h"

namespace tools::check {

namespace {

void quizEmpty(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape&, const std::vector<const Question*>& questions) {
        if (questions.empty())
            findings.add(
                step.at("recordno"),
                QStringLiteral("%1 has no question, and its screen ends the program").arg(step.called()),
                QStringLiteral("8 to 15 rows in tovalin1_quiz_data"));
    });
}

void quizRoom(const Course& course, Findings& findings) {
    eachQuiz(
        course, [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
            if (shape.table && questions.size() > catalogue::tableRows)
                findings.add(questions[catalogue::tableRows]->at("recordno"),
                             QStringLiteral("%1 has %2 questions, and %3 has 15 lines and ends the program")
                                 .arg(step.called())
                                 .arg(questions.size())
                                 .arg(nameOf(shape)),
                             QStringLiteral("at most %1 questions").arg(catalogue::tableRows));
        });
}

void quizSize(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape&, const std::vector<const Question*>& questions) {
        if (!questions.empty() && (questions.size() < 8 || questions.size() > catalogue::tableRows))
            findings.add(questions.front()->at("recordno"),
                         QStringLiteral("%1 has %2 questions").arg(step.called()).arg(questions.size()),
                         QStringLiteral("8 to 15: enough to tell whether the point was understood"));
    });
}

void quizOrder(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step&, const QuizShape&, const std::vector<const Question*>& questions) {
        int place = 0;
        for (const Question* question : questions)
            if (++place; question->order != place)
                findings.add(
                    question->at("orderno"),
                    QStringLiteral("a Final looks for question %1 of the step and does not find this one")
                        .arg(place),
                    QStringLiteral("%1, or an empty field, which is counted").arg(place));
    });
}

void questionMissing(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step&, const QuizShape&, const std::vector<const Question*>& questions) {
        for (const Question* question : questions)
            if (folded(question->q[1]).isEmpty())
                findings.add(question->at("q1"), QStringLiteral("nothing is asked"),
                             QStringLiteral("the question"));
    });
}

/// The answer fields that a screen judges by.
void answerMissing(const Course& course, Findings& findings) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 const int wrongWord = shape.form == "frmQuiz4" ? wrongWordField(step.record.value_or(0)) : 0;
                 const bool first = wrongWord != 2;
                 const bool second = shape.secondAnswer || wrongWord == 2;
                 for (const Question* question : questions) {
                     if (first && folded(question->a1).isEmpty())
                         findings.add(question->at("a1"), QStringLiteral("no answer is right"),
                                      QStringLiteral("the right answer"));
                     if (second && folded(question->a2).isEmpty())
                         findings.add(question->at("a2"), QStringLiteral("no second answer is right"),
                                      QStringLiteral("the right answer of the second place"));
                 }
             });
}

void rowsUnread(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto& questions = course.of(step.record).questions;
        if (!questions.empty() && (step.isFinal() || findQuizShape(step.form) == nullptr))
            findings.add(questions.front()->at("recordno"),
                         QStringLiteral("no screen asks the questions of %1, a %2 of %3")
                             .arg(step.called(), step.type, step.form),
                         QStringLiteral("a quiz screen in useform, or no rows"));
    }
}

void fieldUnread(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape& shape,
                         const std::vector<const Question*>& questions) {
        const int record = step.record.value_or(0);
        const bool second = shape.secondAnswer || (shape.form == "frmQuiz4" && wrongWordField(record) != 1) ||
                            (shape.form == "frmQuiz8" && takesSecondChoice(record));
        for (const Question* question : questions) {
            const auto unread = [&](const char* field) {
                findings.add(question->at(field),
                             QStringLiteral("%1 does not read this field here").arg(nameOf(shape)),
                             QStringLiteral("an empty field"));
            };
            for (int digit = 2; digit <= 7; ++digit)
                if (!shows(shape, digit) && !question->q[static_cast<std::size_t>(digit)].isEmpty())
                    unread(questionField(digit));
            if (!second && !question->a2.isEmpty())
                unread("a2");
        }
    });
}

void textWidth(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step&, const QuizShape& shape, const std::vector<const Question*>& questions) {
        for (const Question* question : questions) {
            const auto limit = [&](const char* field, const QString& text, int columns) {
                if (columns > 0 && columnsOf(text) > columns)
                    findings.add(question->at(field),
                                 QStringLiteral("the text takes %1 columns").arg(columnsOf(text)),
                                 QStringLiteral("at most %1 on %2, a Korean character counting 2")
                                     .arg(columns)
                                     .arg(nameOf(shape)));
            };
            limit("q1", question->q[1], shape.questionColumns);
            for (const char digit : std::string(shape.choices) + std::string(shape.secondPair))
                limit(questionField(digit - '0'), question->q[static_cast<std::size_t>(digit - '0')],
                      shape.choiceColumns);
            limit("a1", question->a1, shape.choices.empty() ? shape.answerColumns : 0);
            limit("a2", question->a2, shape.choices.empty() ? shape.answerColumns : 0);
        }
    });
}

bool isEnglish(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.toLower() >= u'a' && c.toLower() <= u'z'; });
}

void gapMissing(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape& shape,
                         const std::vector<const Question*>& questions) {
        // The numbered sentences of two steps carry their places without a gap.
        const int record = step.record.value_or(0);
        const bool gap = shape.gap || (shape.form == "frmQuiz5" && record != 110 && record != 111);
        for (const Question* question : questions)
            if (gap && isEnglish(question->q[1]) && !hasGap(question->q[1]))
                findings.add(question->at("q1"), QStringLiteral("the sentence shows no gap for its answer"),
                             QStringLiteral("%1 where the answer belongs").arg(QLatin1String(gapMark)));
    });
}

constexpr std::array rules{
    Rule{"quiz-empty", Severity::Error, "a quiz has questions", quizEmpty},
    Rule{"quiz-room", Severity::Error, "a quiz that shows all questions at once has at most 15", quizRoom},
    Rule{"quiz-size", Severity::Warning, "a quiz has 8 to 15 questions", quizSize},
    Rule{"quiz-order", Severity::Error, "orderno counts the questions of a step from 1 without gaps",
         quizOrder},
    Rule{"question-missing", Severity::Error, "a question asks something", questionMissing},
    Rule{"answer-missing", Severity::Error, "a question has the answers that its screen judges by",
         answerMissing},
    Rule{"quiz-rows-unread", Severity::Warning, "questions belong to a step that asks them", rowsUnread},
    Rule{"quiz-field-unread", Severity::Warning, "fields that the screen does not read are empty",
         fieldUnread},
    Rule{"quiz-width", Severity::Warning, "questions, choices and answers fit into their places", textWidth},
    Rule{"quiz-gap", Severity::Warning, "a sentence to be completed shows its gap", gapMissing},
};

}  // namespace

std::span<const Rule> quizRules() {
    return rules;
}

}  // namespace tools::check
