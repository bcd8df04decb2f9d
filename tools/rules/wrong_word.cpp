// The quiz that hides one wrong word in a sentence: judged by step number, cut at blanks into 14 labels.

#include "core/text.h"
#include "tools/rules/quiz_visit.h"

#include <QStringList>

namespace tools::check {

namespace {

constexpr int wordLabels = 14;

QString keptChars(QString text) {
    return core::KeepAnswerChars(text);
}

void judgedStep(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (step.form == QStringLiteral("frmQuiz4") && wrongWordField(step.record.value_or(0)) == 0)
            findings.add(
                step.at("useform"),
                QStringLiteral("frmQuiz4 judges nothing at %1, which then scores 0").arg(step.called()),
                QStringLiteral("one of the steps 18, 19, 34, 35, 63, 64, 72, 85, 86, 201 to 204, 213, 214, "
                               "238, 239, 250, 251"));
}

void sentence(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz4"}, [&](const Step&, const Question& question) {
        const QString& text = question.q[1];
        const QStringList words = text.split(u' ');
        if (words.size() > wordLabels)
            findings.add(
                question.at("q1"),
                QStringLiteral("the sentence has %1 words, and the screen 14 labels").arg(words.size()),
                QStringLiteral("2 to %1 words").arg(wordLabels));
        else if (words.size() < 2 && !folded(text).isEmpty())
            findings.add(question.at("q1"),
                         QStringLiteral("a single word is not cut, so that nothing can be clicked"),
                         QStringLiteral("2 to %1 words").arg(wordLabels));
        else if (std::any_of(words.begin(), words.end(),
                             [](const QString& word) { return keptChars(word).isEmpty(); }) &&
                 !folded(text).isEmpty())
            findings.add(question.at("q1"),
                         QStringLiteral("a word of the sentence has no letter, so that its label is empty"),
                         QStringLiteral("'%1'").arg(text.simplified()));
    });
}

/// At the steps judged by `a2`, `a1` names the wrong word for the worksheet.
void namedWord(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz4"}, [&](const Step& step, const Question& question) {
        if (wrongWordField(step.record.value_or(0)) != 2)
            return;
        const QStringList words = question.q[1].split(u' ', Qt::SkipEmptyParts);
        const QString wrong = keptChars(question.a1);
        if (std::none_of(words.begin(), words.end(),
                         [&](const QString& word) { return keptChars(word) == wrong; }))
            findings.add(question.at("a1"),
                         QStringLiteral("'%1' is no word of the sentence").arg(question.a1),
                         QStringLiteral("the wrong word as it stands in the sentence"));
        else if (folded(question.a1) == folded(question.a2))
            findings.add(question.at("a2"), QStringLiteral("the right word is the wrong one"),
                         QStringLiteral("the word that mends the sentence"));
    });
}

void severalWords(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz4"}, [&](const Step& step, const Question& question) {
        const int field = wrongWordField(step.record.value_or(0));
        const auto one = [&](const char* name, const QString& answer) {
            if (wordsOf(answer).size() > 1)
                findings.add(question.at(name),
                             QStringLiteral("'%1' replaces one word by several").arg(answer),
                             QStringLiteral("one word"));
        };
        if (field != 2)
            one("a1", question.a1);
        if (field == 2 || field == 12)
            one("a2", question.a2);
    });
}

void sameAnswers(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz4"}, [&](const Step& step, const Question& question) {
        if (wrongWordField(step.record.value_or(0)) == 12 && !question.a2.isEmpty() &&
            folded(question.a1) == folded(question.a2))
            findings.add(question.at("a2"), QStringLiteral("the message names '%1' twice").arg(question.a1),
                         QStringLiteral("another right word, or an empty field"));
    });
}

constexpr std::array rules{
    Rule{"wrong-word-step", Severity::Error, "frmQuiz4 stands at a step that it judges", judgedStep},
    Rule{"wrong-word-sentence", Severity::Error,
         "a sentence of frmQuiz4 has 2 to 14 words with one blank between", sentence},
    Rule{"wrong-word-named", Severity::Error, "the wrong word that a1 names stands in the sentence",
         namedWord},
    Rule{"wrong-word-several", Severity::Warning, "one word is mended by one word", severalWords},
    Rule{"wrong-word-same", Severity::Warning, "a second right word differs from the first", sameAnswers},
};

}  // namespace

std::span<const Rule> wrongWordRules() {
    return rules;
}

}  // namespace tools::check
