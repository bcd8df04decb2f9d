#include "platform/error.h"

namespace platform {

namespace {

// What a box on the smallest screen has room for. A text of the course may stand in a sentence, and be any
// length.
constexpr qsizetype longestSentence = 1000;

QString shortened(const QString& sentence) {
    if (sentence.size() <= longestSentence)
        return sentence;
    // Both ends: one tells what is wrong, the other mostly where.
    constexpr qsizetype half = longestSentence / 2;
    return sentence.left(half) + QStringLiteral(" … ") + sentence.right(half);
}

}  // namespace

RuntimeError::RuntimeError(ErrorCode code, const QString& sentence)
    : std::runtime_error(shortened(sentence).toStdString()), code_(code), sentence_(shortened(sentence)) {}

}  // namespace platform
