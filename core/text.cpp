#include "core/text.h"

namespace core {

namespace {

template <typename Keep>
QString lowerAndKeep(QString& text, Keep keep) {
    text = text.toLower();
    QString kept;
    for (const QChar c : text)
        if (keep(c))
            kept += c;
    return kept.trimmed();
}

bool isLetter(QChar c) {
    return c >= u'a' && c <= u'z';
}

}  // namespace

QString KeepLettersLower(QString& text) {
    return lowerAndKeep(text, isLetter);
}

QString KeepAnswerChars(QString& text) {
    return lowerAndKeep(text, [](QChar c) { return isLetter(c) || c == u'\'' || (c >= u'1' && c <= u'9'); });
}

}  // namespace core
