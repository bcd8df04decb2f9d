#include "platform/reports/answers.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace platform {

namespace {

std::vector<QString> present(const std::vector<QString>& answers) {
    std::vector<QString> kept;
    std::copy_if(answers.begin(), answers.end(), std::back_inserter(kept),
                 [](const QString& answer) { return !answer.trimmed().isEmpty(); });
    return kept;
}

QString joined(const std::vector<QString>& answers) {
    return QStringList(answers.begin(), answers.end()).join(QStringLiteral(" / "));
}

/// A word to each blank; what is left over stays with the last one.
std::vector<QString> wordByWord(const QString& answer, int blanks) {
    const QStringList words = answer.split(u' ', Qt::SkipEmptyParts);
    std::vector<QString> spread;
    spread.reserve(static_cast<std::size_t>(std::max(0, blanks)));
    for (int i = 0; i < blanks; ++i)
        spread.push_back(i + 1 < blanks ? words.value(i) : words.mid(i).join(u' '));
    return spread;
}

}  // namespace

std::vector<ReportStretch> cutAtBlanks(const QString& question) {
    static const QRegularExpression blank(QStringLiteral("_{2,}"));
    std::vector<ReportStretch> stretches;
    qsizetype done = 0;
    for (auto match = blank.globalMatch(question); match.hasNext();) {
        const auto found = match.next();
        if (found.capturedStart() > done)
            stretches.push_back({question.mid(done, found.capturedStart() - done), false});
        stretches.push_back({found.captured(), true});
        done = found.capturedEnd();
    }
    if (done < question.size())
        stretches.push_back({question.mid(done), false});
    return stretches;
}

std::vector<QString> answersForBlanks(const std::vector<QString>& answers, int blanks) {
    const auto given = present(answers);
    if (given.empty())
        return std::vector<QString>(static_cast<std::size_t>(blanks));
    if (blanks == 1)
        return {joined(given)};
    if (static_cast<int>(given.size()) == blanks)
        return given;
    return wordByWord(given.front(), blanks);
}

std::vector<QString> answersForLines(const std::vector<QString>& answers, int lines) {
    auto given = present(answers);
    if (lines == 1)
        return {joined(given)};
    given.resize(static_cast<std::size_t>(lines));
    return given;
}

}  // namespace platform
