// Quizzes that are answered by a click on one of several choices.

#include "catalogue/sheets.h"
#include "tools/rules/quiz_visit.h"

#include <QStringList>

namespace tools::check {

namespace {

/// One set of choices of a question and the answer that must be among them.
struct Choices {
    std::string_view digits;
    const char* answerField;
    QString answer;
    QStringList texts;  // as many as digits
};

std::vector<Choices> choicesOf(const QuizShape& shape, const Question& question) {
    std::vector<Choices> sets;
    const auto add = [&](std::string_view digits, const char* field, const QString& answer) {
        if (digits.empty())
            return;
        Choices set{digits, field, answer, {}};
        for (const char digit : digits)
            set.texts.append(question.q[static_cast<std::size_t>(digit - '0')]);
        sets.push_back(set);
    };
    add(shape.choices, "a1", question.a1);
    add(shape.secondPair, "a2", question.a2);
    return sets;
}

template <typename Visit>
void eachChoices(const Course& course, Visit visit) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 for (const Question* question : questions)
                     for (const Choices& set : choicesOf(shape, *question))
                         visit(step, shape, *question, set);
             });
}

/// Two texts as the screen compares them.
bool same(const QuizShape& shape, const QString& one, const QString& other) {
    return shape.exact ? one == other : one.toLower() == other.toLower();
}

bool isAmong(const QuizShape& shape, const QStringList& texts, const QString& answer) {
    return std::any_of(texts.begin(), texts.end(),
                       [&](const QString& text) { return same(shape, text, answer); });
}

void answerAmong(const Course& course, Findings& findings) {
    eachChoices(course, [&](const Step&, const QuizShape& shape, const Question& question,
                            const Choices& set) {
        if (!folded(set.answer).isEmpty() && !isAmong(shape, set.texts, set.answer))
            findings.add(question.at(set.answerField),
                         QStringLiteral("'%1' is none of the choices as %2 compares them")
                             .arg(set.answer, nameOf(shape)),
                         QStringLiteral("'%1', to the letter").arg(set.texts.join(QStringLiteral("' or '"))));
    });
}

void choiceMissing(const Course& course, Findings& findings) {
    eachChoices(course, [&](const Step&, const QuizShape&, const Question& question, const Choices& set) {
        for (qsizetype i = 0; i < set.texts.size(); ++i) {
            const bool laterFilled = std::any_of(set.texts.begin() + i, set.texts.end(),
                                                 [](const QString& text) { return !folded(text).isEmpty(); });
            if (folded(set.texts[i]).isEmpty() && (i < 2 || laterFilled))
                findings.add(question.at(questionField(set.digits[static_cast<std::size_t>(i)] - '0')),
                             QStringLiteral("the choice is empty"),
                             QStringLiteral("a wrong answer that learners give"));
        }
    });
}

void choiceTwice(const Course& course, Findings& findings) {
    eachChoices(
        course, [&](const Step&, const QuizShape& shape, const Question& question, const Choices& set) {
            for (qsizetype i = 1; i < set.texts.size(); ++i)
                if (!folded(set.texts[i]).isEmpty() && isAmong(shape, set.texts.mid(0, i), set.texts[i]))
                    findings.add(
                        question.at(questionField(set.digits[static_cast<std::size_t>(i)] - '0')),
                        QStringLiteral("the screen cannot tell '%1' from another choice").arg(set.texts[i]),
                        QStringLiteral("choices that differ in more than capitals"));
        });
}

void secondChoice(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz8"}, [&](const Step& step, const Question& question) {
        if (!takesSecondChoice(step.record.value_or(0)) || question.a2.isEmpty())
            return;
        const QuizShape& shape = *findQuizShape(step.form);
        const QStringList texts = choicesOf(shape, question).front().texts;
        if (!isAmong(shape, texts, question.a2) || same(shape, question.a1, question.a2))
            findings.add(question.at("a2"), QStringLiteral("'%1' is no second right choice").arg(question.a2),
                         QStringLiteral("another of the choices, or an empty field"));
    });
}

void position(const Course& course, Findings& findings) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 std::array<int, 8> count{};
                 for (const Question* question : questions)
                     for (const char digit : shape.choices)
                         if (same(shape, question->q[static_cast<std::size_t>(digit - '0')], question->a1))
                             ++count[static_cast<std::size_t>(digit - '0')];
                 for (int digit = 2; digit <= 7; ++digit)
                     if (questions.size() >= 5 &&
                         count[static_cast<std::size_t>(digit)] * 5 >= static_cast<int>(questions.size()) * 4)
                         findings.add(questions.front()->at(questionField(digit)),
                                      QStringLiteral("%1 of %2 right answers of %3 stand in this place")
                                          .arg(count[static_cast<std::size_t>(digit)])
                                          .arg(questions.size())
                                          .arg(step.called()),
                                      QStringLiteral("right answers spread over the places"));
             });
}

/// "an" before a gap wants a vowel, "a" a consonant: a choice that does not fit is dead.
void articleBefore(const Course& course, Findings& findings) {
    eachChoices(
        course, [&](const Step&, const QuizShape& shape, const Question& question, const Choices& set) {
            const QString sentence = u' ' + question.q[1].toLower();
            const bool an = sentence.contains(QStringLiteral(" an __"));
            if ((!an && !sentence.contains(QStringLiteral(" a __"))) || !shape.secondPair.empty())
                return;
            const auto fits = [&](const QString& text) {
                return !text.isEmpty() && QStringLiteral("aeio").contains(text.toLower()[0]) == an;
            };
            const auto fitting = std::count_if(set.texts.begin(), set.texts.end(), fits);
            if (fitting == 1 && fits(set.answer) && set.texts[0].toLower()[0] != set.texts[1].toLower()[0])
                findings.add(question.at("q1"),
                             QStringLiteral("the article before the gap gives the answer away"),
                             QStringLiteral("the article in the choices, or choices that it fits"));
        });
}

void sheetChoices(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz8"}, [&](const Step& step, const Question& question) {
        if (catalogue::builderOf(step.record.value_or(0)) == catalogue::Builder::Brackets &&
            folded(question.q[4]).isEmpty())
            findings.add(question.at("q4"),
                         QStringLiteral("the worksheet prints three choices, the third of them empty"),
                         QStringLiteral("a third choice"));
    });
}

void numberedGaps(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz3"}, [&](const Step&, const Question& question) {
        if (!question.q[1].contains(QStringLiteral("(1)")) || !question.q[1].contains(QStringLiteral("(2)")))
            findings.add(question.at("q1"), QStringLiteral("the sentence does not tell its two places apart"),
                         QStringLiteral("(1) ____ and (2) ____ where the answers belong"));
    });
}

constexpr std::array rules{
    Rule{"choice-answer", Severity::Error, "the right answer is one of the choices", answerAmong},
    Rule{"choice-missing", Severity::Error, "no choice before the last is empty", choiceMissing},
    Rule{"choice-twice", Severity::Error, "the choices of a question are all different", choiceTwice},
    Rule{"choice-second", Severity::Error, "a second right answer is another of the choices", secondChoice},
    Rule{"choice-position", Severity::Warning, "right answers do not always stand in one place", position},
    Rule{"choice-article", Severity::Warning, "no article before the gap gives the answer away",
         articleBefore},
    Rule{"choice-sheet", Severity::Warning, "choices that a worksheet prints in brackets are three",
         sheetChoices},
    Rule{"choice-places", Severity::Warning, "a sentence with two answers numbers their places",
         numberedGaps},
};

}  // namespace

std::span<const Rule> choiceRules() {
    return rules;
}

}  // namespace tools::check
