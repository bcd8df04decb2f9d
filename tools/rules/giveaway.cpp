// Choices that tell the right answer by themselves: by their capitals, by never being right, by their place.

#include "tools/rules/quiz_visit.h"

#include <QMap>
#include <QStringList>

namespace tools::check {

namespace {

constexpr int fewQuestions = 5;

/// The choices of a question as they stand, without empty ones.
QStringList textsOf(const Question& question, std::string_view digits) {
    QStringList texts;
    for (const char digit : digits)
        if (const QString& text = question.q[static_cast<std::size_t>(digit - '0')]; !folded(text).isEmpty())
            texts.append(text);
    return texts;
}

/// Visits each set of choices of each question with the answer that is asked of it.
template <typename Visit>
void eachSet(const Course& course, Visit visit) {
    eachQuiz(course, [&](const Step&, const QuizShape& shape, const std::vector<const Question*>& questions) {
        for (const Question* question : questions) {
            if (!shape.choices.empty())
                visit(*question, shape.choices, "a1", question->a1);
            if (!shape.secondPair.empty())
                visit(*question, shape.secondPair, "a2", question->a2);
        }
    });
}

bool isI(const QString& text) {
    return text[0] == u'I' && (text.size() == 1 || !text[1].isLetter());
}

/// A sentence's first word has a capital by its place, and only names and "I" have theirs anywhere: a choice
/// that is written otherwise is none.
void capitals(const Course& course, Findings& findings) {
    eachSet(course,
            [&](const Question& question, std::string_view digits, const char* field, const QString& answer) {
                if (answer.isEmpty() || isI(answer) || !hasGap(question.q[1]))
                    return;
                const QStringList texts = textsOf(question, digits);
                const auto alike = std::count_if(texts.begin(), texts.end(), [&](const QString& text) {
                    return isI(text) || text[0].isUpper() == answer[0].isUpper();
                });
                if (texts.size() > 1 && alike == 1)
                    findings.add(
                        question.at(field),
                        QStringLiteral("'%1' is told from the other choices by its first letter's case alone")
                            .arg(answer),
                        QStringLiteral("choices that are all written as their place in the sentence asks"));
            });
}

/// Where a choice of a step first stands, how often it stands there, and how often it is right.
struct ChoiceUse {
    SourcePlace place;
    QString text;
    int shown = 0;
    int right = 0;
};

QMap<QString, ChoiceUse> usesOf(const QuizShape& shape, const std::vector<const Question*>& questions) {
    QMap<QString, ChoiceUse> uses;
    for (const Question* question : questions)
        for (const char digit : shape.choices) {
            const QString& text = question->q[static_cast<std::size_t>(digit - '0')];
            if (folded(text).isEmpty())
                continue;
            ChoiceUse& use = uses[folded(text)];
            if (use.shown++ == 0) {
                use.place = question->at(questionField(digit - '0'));
                use.text = text;
            }
            use.right += folded(text) == folded(question->a1) || folded(text) == folded(question->a2) ? 1 : 0;
        }
    return uses;
}

/// What stands in most questions of a step and is never right is soon passed over.
void deadChoice(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape& shape,
                         const std::vector<const Question*>& questions) {
        const int count = static_cast<int>(questions.size());
        for (const ChoiceUse& use : usesOf(shape, questions))
            if (use.right == 0 && use.shown >= fewQuestions && use.shown * 2 > count)
                findings.add(use.place,
                             QStringLiteral("'%1' stands in %2 of the %3 questions of %4 and is never right")
                                 .arg(use.text)
                                 .arg(use.shown)
                                 .arg(count)
                                 .arg(step.called()),
                             QStringLiteral("a question whose answer it is, or another choice"));
    });
}

/// The second pair's right answers; those of the first are told by "choice-position".
void secondPosition(const Course& course, Findings& findings) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 const int count = static_cast<int>(questions.size());
                 for (const char digit : shape.secondPair) {
                     const auto here = static_cast<int>(
                         std::count_if(questions.begin(), questions.end(), [&](const Question* question) {
                             return question->q[static_cast<std::size_t>(digit - '0')] == question->a2;
                         }));
                     if (count >= fewQuestions && here * 5 >= count * 4)
                         findings.add(questions.front()->at(questionField(digit - '0')),
                                      QStringLiteral("%1 of %2 second answers of %3 stand in this place")
                                          .arg(here)
                                          .arg(count)
                                          .arg(step.called()),
                                      QStringLiteral("right answers spread over the places"));
                 }
             });
}

/// What is known of a text without reading the question: how it begins and how it ends.
QStringList shapesOf(const QString& text) {
    constexpr qsizetype endingLetters = 3;
    const QString known = folded(text);
    QStringList shapes;
    if (known.contains(u' '))
        shapes.append(known.section(u' ', 0, 0) + QStringLiteral(" …"));
    if (known.size() > endingLetters)
        shapes.append(QStringLiteral("… ") + known.last(endingLetters));
    return shapes;
}

/// A form that all right answers of a step have, and no wrong choice.
QString tellingShape(const QuizShape& shape, const std::vector<const Question*>& questions) {
    QStringList telling = shapesOf(questions.front()->a1);
    for (const Question* question : questions) {
        const QStringList right = shapesOf(question->a1);
        telling.removeIf([&](const QString& known) { return !right.contains(known); });
        for (const QString& text : textsOf(*question, shape.choices))
            if (folded(text) != folded(question->a1))
                for (const QString& wrong : shapesOf(text))
                    telling.removeAll(wrong);
    }
    return telling.value(0);
}

/// Where every answer has the same form, the form is clicked and the sentence is not read.
void oneShape(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape& shape,
                         const std::vector<const Question*>& questions) {
        if (shape.choices.empty() || static_cast<int>(questions.size()) < fewQuestions)
            return;
        if (const QString known = tellingShape(shape, questions); !known.isEmpty())
            findings.add(questions.front()->at("a1"),
                         QStringLiteral("every right answer of %1 is of the form '%2', and no wrong one is")
                             .arg(step.called(), known),
                         QStringLiteral("questions of two kinds, mixed"));
    });
}

constexpr std::array rules{
    Rule{"choice-capital", Severity::Warning, "no right answer is known by its capital or small letter",
         capitals},
    Rule{"choice-dead", Severity::Warning, "a choice that stands in most questions of a step is right in one",
         deadChoice},
    Rule{"choice-second-position", Severity::Warning, "second answers do not always stand in one place",
         secondPosition},
    Rule{"choice-shape", Severity::Warning, "right answers are not known by their form alone", oneShape},
};

}  // namespace

std::span<const Rule> giveawayRules() {
    return rules;
}

}  // namespace tools::check
