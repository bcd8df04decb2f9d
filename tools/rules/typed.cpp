// Quizzes that are answered by typing words or whole sentences.

#include "catalogue/judging.h"
#include "tools/rules/quiz_visit.h"

#include <QRegularExpression>
#include <QStringList>

namespace tools::check {

namespace {

bool isTyped(const QuizShape& shape) {
    return shape.form == "frmQuiz2" || shape.form == "frmQuiz4" || shape.form == "frmQuiz6" ||
           shape.form == "frmQuiz9" || shape.form == "frmQuiz10";
}

template <typename Visit>
void eachTypedAnswer(const Course& course, Visit visit) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 if (!isTyped(shape))
                     return;
                 for (const Question* question : questions) {
                     visit(step, shape, *question, "a1", question->a1);
                     if (shape.secondAnswer || shape.form == "frmQuiz4")
                         visit(step, shape, *question, "a2", question->a2);
                 }
             });
}

void typable(const Course& course, Findings& findings) {
    eachTypedAnswer(course, [&](const Step&, const QuizShape& shape, const Question& question,
                                const char* field, const QString& answer) {
        const bool edges = shape.form == "frmQuiz6" && answer != answer.trimmed();
        if (!isTypable(answer))
            findings.add(
                question.at(field),
                QStringLiteral("'%1' cannot be typed, since the box takes Latin letters").arg(answer),
                QStringLiteral("an English answer with plain quotation marks"));
        else if (edges || answer.contains(QStringLiteral("  ")))
            findings.add(question.at(field),
                         QStringLiteral("'%1' has blanks that nobody sees, and is never right").arg(answer),
                         QStringLiteral("'%1'").arg(answer.simplified()));
    });
}

QString lettersOf(const QString& text) {
    static const QRegularExpression others(QStringLiteral("[^a-z0-9' ]+"));
    return u' ' + text.toLower().replace(others, QStringLiteral(" ")).simplified() + u' ';
}

/// What a question shows, without hints in brackets: they hold words in their base form, which may be the
/// one that is asked. A sentence's hint says too much only where it gives the whole sentence in order.
QString shownLetters(const QuizShape& shape, const Question& question) {
    static const QRegularExpression brackets(QStringLiteral("\\([^)]*\\)"));
    QString text = question.q[1];
    if (shows(shape, 2))
        text += QStringLiteral(" / ") + question.q[2];
    return lettersOf(shape.form == "frmQuiz6" ? text : text.remove(brackets));
}

void givenAway(const Course& course, Findings& findings) {
    eachTypedAnswer(course, [&](const Step&, const QuizShape& shape, const Question& question,
                                const char* field, const QString& answer) {
        // Single words may stand in the question by rights: sheep, his.
        if (shape.form == "frmQuiz4" || shape.form == "frmQuiz9" || wordsOf(answer).size() < 2)
            return;
        if (shownLetters(shape, question).contains(lettersOf(answer)))
            findings.add(question.at(field),
                         QStringLiteral("the answer '%1' stands in the question").arg(answer),
                         QStringLiteral("a question that does not show its answer"));
    });
}

/// Whether both labels of the sentence quiz take a field of the row on a step.
bool showsTwoLines(int record) {
    const catalogue::SentenceFields fields = catalogue::sentenceFields(record);
    return fields.word != nullptr && fields.korean != nullptr;
}

bool showsKoreanLine(int record) {
    return catalogue::sentenceFields(record).word == nullptr;
}

void sentenceLines(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz6"}, [&](const Step& step, const Question& question) {
        const int record = step.record.value_or(0);
        if (showsTwoLines(record) && folded(question.q[2]).isEmpty())
            findings.add(question.at("q2"),
                         QStringLiteral("%1 shows a Korean line, and there is none").arg(step.called()),
                         QStringLiteral("the sentence in Korean"));
        else if (!showsTwoLines(record) && !question.q[2].isEmpty())
            findings.add(question.at("q2"), QStringLiteral("%1 does not show this field").arg(step.called()),
                         QStringLiteral("an empty field; the Korean line belongs into q1 here"));
    });
}

void sentenceStep(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const int record = step.record.value_or(0);
        if (step.form == QStringLiteral("frmQuiz6") && !showsTwoLines(record) && !showsKoreanLine(record))
            findings.add(step.at("useform"),
                         QStringLiteral("frmQuiz6 shows no Korean line at %1").arg(step.called()),
                         QStringLiteral("one of the steps 121 to 123, 128 to 131, 134 to 136, 147 to 149"));
    }
}

int boxCount(const Question& question) {
    bool isNumber = false;
    const int count = question.q[3].trimmed().toInt(&isNumber);
    return isNumber ? count : -1;
}

void boxNumber(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz10"}, [&](const Step&, const Question& question) {
        if (const int count = boxCount(question); count < 1 || count > 4)
            findings.add(question.at("q3"), QStringLiteral("'%1' is no number of boxes").arg(question.q[3]),
                         QStringLiteral("1, 2, 3 or 4"));
    });
}

void boxWords(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz10"}, [&](const Step&, const Question& question) {
        const int count = boxCount(question);
        const auto words = question.a1.split(u' ').size();
        if (count >= 1 && count <= 4 && words != count)
            findings.add(question.at("a1"),
                         QStringLiteral("the answer has %1 words for %2 boxes").arg(words).arg(count),
                         QStringLiteral("%1 words with one blank between them").arg(count));
    });
}

void boxLetters(const Course& course, Findings& findings) {
    static const QRegularExpression words(QStringLiteral("^[A-Za-z ]*$"));
    eachQuestion(course, {"frmQuiz10"}, [&](const Step&, const Question& question) {
        if (!words.match(question.a1).hasMatch())
            findings.add(
                question.at("a1"),
                QStringLiteral("'%1' holds a mark that the screen drops from one side of the comparison")
                    .arg(question.a1),
                QStringLiteral("letters alone"));
    });
}

void boxGaps(const Course& course, Findings& findings) {
    static const QRegularExpression gap(QStringLiteral("__+"));
    eachQuestion(course, {"frmQuiz10"}, [&](const Step&, const Question& question) {
        int gaps = 0;
        for (auto match = gap.globalMatch(question.q[1]); match.hasNext(); match.next())
            ++gaps;
        if (gaps > 0 && boxCount(question) >= 1 && gaps != boxCount(question))
            findings.add(
                question.at("q1"),
                QStringLiteral("the sentence has %1 gaps for %2 boxes").arg(gaps).arg(boxCount(question)),
                QStringLiteral("a gap for each box"));
    });
}

void oldLine(const Course& course, Findings& findings) {
    eachQuiz(course, [&](const Step&, const QuizShape& shape, const std::vector<const Question*>& questions) {
        if (shape.form != "frmQuiz10")
            return;
        const auto isBlank = [](const Question* question) {
            return question->q[2] == QStringLiteral("Blank");
        };
        const bool mixed = std::any_of(questions.begin(), questions.end(), isBlank) &&
                           !std::all_of(questions.begin(), questions.end(), isBlank);
        for (const Question* question : questions)
            if (mixed && isBlank(question))
                findings.add(question->at("q2"),
                             QStringLiteral("the Korean line of the question before stays on the screen"),
                             QStringLiteral("a Korean line for every question, or for none"));
    });
}

void pairCapital(const Course& course, Findings& findings) {
    eachQuestion(course, {"frmQuiz9"}, [&](const Step&, const Question& question) {
        if (question.q[1] != question.q[1].toLower())
            findings.add(question.at("q1"),
                         QStringLiteral("frmQuiz9 shows '%1' in small letters").arg(question.q[1]),
                         QStringLiteral("'%1', or another word").arg(question.q[1].toLower()));
    });
}

constexpr std::array rules{
    Rule{"typed-typable", Severity::Error, "a typed answer can be typed and has no stray blanks", typable},
    Rule{"typed-given-away", Severity::Warning, "a typed answer does not stand in its question", givenAway},
    Rule{"pair-capital", Severity::Warning, "a word of frmQuiz9 is written small", pairCapital},
    Rule{"sentence-lines", Severity::Error, "frmQuiz6 has the lines that its step shows", sentenceLines},
    Rule{"sentence-step", Severity::Warning, "frmQuiz6 stands where it shows a Korean line", sentenceStep},
    Rule{"box-number", Severity::Error, "q3 of frmQuiz10 is a number of 1 to 4", boxNumber},
    Rule{"box-words", Severity::Error, "an answer of frmQuiz10 has a word for each box", boxWords},
    Rule{"box-letters", Severity::Error, "an answer of frmQuiz10 holds letters alone", boxLetters},
    Rule{"box-gaps", Severity::Warning, "a sentence of frmQuiz10 has a gap for each box", boxGaps},
    Rule{"box-old-line", Severity::Warning, "a step of frmQuiz10 has Korean lines throughout or nowhere",
         oldLine},
};

}  // namespace

std::span<const Rule> typedRules() {
    return rules;
}

}  // namespace tools::check
