#include "tools/rules/sentences.h"

#include "tools/rules/quiz_visit.h"

#include <QRegularExpression>

namespace tools::check {

namespace {

QString withoutHints(QString text) {
    static const QRegularExpression brackets(QStringLiteral("\\([^)]*\\)"));
    return text.remove(brackets);
}

/// Whether the English of a text ends with a final mark; a Korean note may stand behind it.
bool endsAsSentence(const QString& text) {
    static const QRegularExpression korean(
        QStringLiteral("[\\x{1100}-\\x{11FF}\\x{3130}-\\x{318F}"
                       "\\x{AC00}-\\x{D7A3}].*$"));
    QString english = withoutHints(text).remove(korean).trimmed();
    while (english.endsWith(u'"') || english.endsWith(u'\''))
        english.chop(1);
    return english.endsWith(u'.') || english.endsWith(u'?') || english.endsWith(u'!');
}

}  // namespace

QString filledQuestion(const QuizShape& shape, const Question& question) {
    static const QRegularExpression gap(QStringLiteral("__+"));
    QString sentence = question.q[1];
    QStringList answers{question.a1, question.a2};
    if (shape.form == "frmQuiz10")
        answers = wordsOf(question.a1);
    if (shape.form == "frmQuiz6")
        return question.a1;
    if (shape.form == "frmQuiz5" && question.a1 == QStringLiteral("Blank"))
        answers = {QString()};
    for (const QString& answer : answers)
        if (const auto match = gap.match(sentence); match.hasMatch())
            sentence.replace(match.capturedStart(), match.capturedLength(), answer);
    return sentence;
}

QStringList englishWords(const QString& text) {
    static const QRegularExpression word(QStringLiteral("[A-Za-z0-9]+(?:['’.:,][A-Za-z0-9]+)*"));
    QStringList words;
    for (auto found = word.globalMatch(withoutHints(text)); found.hasNext();)
        words.append(found.next().captured().replace(QChar(0x2019), u'\''));
    return words;
}

QString sentenceOf(const QuizShape& shape, const Question& question) {
    const QString text = filledQuestion(shape, question);
    return endsAsSentence(text) && englishWords(text).size() >= 2 ? text : QString();
}

std::vector<Sentence> sentencesOf(const Course& course) {
    std::vector<Sentence> sentences;
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 for (const Question* question : questions) {
                     const QString text = sentenceOf(shape, *question);
                     const QString read = text.isEmpty() ? filledQuestion(shape, *question) : text;
                     sentences.push_back(
                         {question, &shape, step.topic.value_or(0), text, englishWords(read.toLower())});
                 }
             });
    return sentences;
}

}  // namespace tools::check
