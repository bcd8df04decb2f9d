// A sentence met before asks for memory, not for grammar.

#include "tools/rules/quiz_visit.h"
#include "tools/rules/sentences.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace tools::check {

namespace {

/// Letters alone, without what stands in brackets: "(1)", "(go)".
QString bare(const QString& sentence) {
    static const QRegularExpression brackets(QStringLiteral("\\([^)]*\\)"));
    QString kept;
    for (const QChar c : QString(sentence).remove(brackets).toLower())
        kept.append(c.isLetterOrNumber() || c == u'\'' ? c : QChar(u' '));
    return kept.simplified();
}

void sentenceTwice(const Course& course, Findings& findings) {
    QHash<QString, const Question*> first;
    eachQuiz(course, [&](const Step&, const QuizShape& shape, const std::vector<const Question*>& questions) {
        for (const Question* question : questions) {
            const QString key = bare(filledQuestion(shape, *question));
            if (key.count(u' ') < 2)
                continue;
            const auto known = first.constFind(key);
            if (known == first.constEnd())
                first.insert(key, question);
            else
                findings.add(question->at("q1"),
                             QStringLiteral("the sentence was met at step %1, %2")
                                 .arg(*known.value()->record)
                                 .arg(known.value()->at("q1").text()),
                             QStringLiteral("another sentence"));
        }
    });
}

void questionTwice(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step&, const QuizShape& shape, const std::vector<const Question*>& questions) {
        QHash<QString, const Question*> first;
        for (const Question* question : questions) {
            QStringList parts;
            for (int digit = 1; digit <= 7; ++digit)
                if (shows(shape, digit))
                    parts.append(folded(question->q[static_cast<std::size_t>(digit)]));
            parts.sort();
            const QString key = parts.join(u'|');
            if (const Question* known = first.value(key, nullptr); known != nullptr)
                findings.add(question->at("q1"),
                             QStringLiteral("the step asks this already, at %1").arg(known->at("q1").text()),
                             QStringLiteral("another question"));
            else
                first.insert(key, question);
        }
    });
}

constexpr std::array rules{
    Rule{"sentence-twice", Severity::Warning, "no sentence stands twice in the course", sentenceTwice},
    Rule{"question-twice", Severity::Warning, "no question stands twice in a step", questionTwice},
};

}  // namespace

std::span<const Rule> repeatRules() {
    return rules;
}

}  // namespace tools::check
