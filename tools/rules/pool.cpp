// Quizzes that are answered from one pool of all the step's answers.

#include "catalogue/sheets.h"
#include "tools/rules/quiz_visit.h"

#include <QHash>
#include <QSet>

namespace tools::check {

namespace {

constexpr int bankFields = 12;

template <typename Visit>
void eachPool(const Course& course, Visit visit) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 if (shape.form == "frmQuiz11" || shape.form == "frmQuiz12")
                     visit(step, questions);
             });
}

void questionTwice(const Course& course, Findings& findings) {
    eachPool(course, [&](const Step&, const std::vector<const Question*>& questions) {
        QHash<QString, QString> answers;
        for (const Question* question : questions) {
            const QString key = folded(question->q[1]);
            if (answers.contains(key) && answers.value(key) != question->a1)
                findings.add(question->at("q1"),
                             QStringLiteral("the same question wants '%1' in one row and '%2' in another")
                                 .arg(answers.value(key), question->a1),
                             QStringLiteral("a question that one answer of the pool fits"));
            answers.insert(key, question->a1);
        }
    });
}

void lookAlike(const Course& course, Findings& findings) {
    eachPool(course, [&](const Step&, const std::vector<const Question*>& questions) {
        QHash<QString, QString> written;
        for (const Question* question : questions) {
            const QString key = question->a1.simplified().toLower();
            if (written.contains(key) && written.value(key) != question->a1)
                findings.add(question->at("a1"),
                             QStringLiteral("'%1' and '%2' stand in one pool, and only one counts as right")
                                 .arg(question->a1, written.value(key)),
                             QStringLiteral("'%1' in both rows").arg(written.value(key)));
            else
                written.insert(key, question->a1);
        }
    });
}

void bankApostrophe(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape&, const std::vector<const Question*>& questions) {
        if (catalogue::builderOf(step.record.value_or(0)) != catalogue::Builder::WordBank)
            return;
        for (const Question* question : questions)
            if (question->a1.contains(u'\''))
                findings.add(
                    question->at("a1"),
                    QStringLiteral("an apostrophe ends the program when the worksheet gathers its words"),
                    QStringLiteral("an answer without an apostrophe"));
    });
}

void bankSize(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step& step, const QuizShape&, const std::vector<const Question*>& questions) {
        if (catalogue::builderOf(step.record.value_or(0)) != catalogue::Builder::WordBank)
            return;
        QSet<QString> bank;
        for (const Question* question : questions)
            if (bank.insert(folded(question->a1)); bank.size() == bankFields + 1) {
                findings.add(
                    question->at("a1"),
                    QStringLiteral("%1 has more different answers than the worksheet's word bank prints")
                        .arg(step.called()),
                    QStringLiteral("at most %1 different answers").arg(bankFields));
                return;
            }
    });
}

void oneAnswer(const Course& course, Findings& findings) {
    eachQuiz(
        course, [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
            if (questions.size() < 5 || !shape.choices.empty() || shape.form == "frmQuiz6")
                return;
            const bool alike = std::all_of(questions.begin(), questions.end(), [&](const Question* question) {
                return folded(question->a1) == folded(questions.front()->a1) &&
                       folded(question->a2) == folded(questions.front()->a2);
            });
            if (alike)
                findings.add(questions.front()->at("a1"),
                             QStringLiteral("every question of %1 has this answer").arg(step.called()),
                             QStringLiteral("answers that one has to think about"));
        });
}

constexpr std::array rules{
    Rule{"pool-question-twice", Severity::Error, "a question of a pool has one answer", questionTwice},
    Rule{"pool-look-alike", Severity::Error, "answers of a pool differ in more than capitals", lookAlike},
    Rule{"pool-apostrophe", Severity::Error, "no answer of a printed word bank holds an apostrophe",
         bankApostrophe},
    Rule{"pool-bank", Severity::Warning, "a printed word bank has at most 12 words", bankSize},
    Rule{"quiz-one-answer", Severity::Warning, "the questions of a step have different answers", oneAnswer},
};

}  // namespace

std::span<const Rule> poolRules() {
    return rules;
}

}  // namespace tools::check
