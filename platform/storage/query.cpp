#include "platform/storage/query.h"

#include "platform/error.h"

#include <QRegularExpression>

namespace platform {

namespace {

const QRegularExpression& head() {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\s*select\s+\*\s+from\s+\[?(\w+)\]?\s*(.*)$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return pattern;
}

/// The place of `words` outside quoted texts, or -1.
qsizetype findOutsideQuotes(const QString& sql, const QString& words) {
    bool quoted = false;
    for (qsizetype i = 0; i < sql.size(); ++i) {
        if (sql[i] == u'\'')
            quoted = !quoted;
        else if (!quoted && QStringView(sql).mid(i, words.size()).compare(words, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

}  // namespace

Query Query::parse(const QString& sql) {
    const auto match = head().match(sql);
    if (!match.hasMatch())
        throw RuntimeError(ErrorCode::SyntaxError, QStringLiteral("Syntax error in query: %1").arg(sql));
    Query query;
    query.table = match.captured(1);
    QString rest = match.captured(2).trimmed();
    const QString orderWords = QStringLiteral("order by ");
    if (const qsizetype order = findOutsideQuotes(rest, orderWords); order >= 0) {
        query.orderBy = rest.mid(order + orderWords.size()).trimmed();
        rest = rest.left(order).trimmed();
    }
    const QString whereWord = QStringLiteral("where ");
    if (rest.startsWith(whereWord, Qt::CaseInsensitive))
        query.where = rest.mid(whereWord.size()).trimmed();
    else if (!rest.isEmpty())
        throw RuntimeError(ErrorCode::SyntaxError, QStringLiteral("Syntax error in query: %1").arg(sql));
    return query;
}

}  // namespace platform
