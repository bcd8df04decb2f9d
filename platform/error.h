#pragma once

#include <QString>

#include <stdexcept>

namespace platform {

/// What went wrong, numbered as desktop database programs number it.
enum class ErrorCode {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    InvalidUseOfNull = 94,
    InvalidPicture = 481,
    NoCurrentRecord = 3021,
    DatabaseNotFound = 3024,
    SyntaxError = 3077,
    TableNotFound = 3078,
    ItemNotFound = 3265,
    UnrecognizedFormat = 3343,
    DatabaseFailure = 3049,
};

/// The one error that ends a run: a number and a sentence a learner can pass on. A sentence
/// too long for a box loses its middle.
class RuntimeError : public std::runtime_error {
   public:
    RuntimeError(ErrorCode code, const QString& sentence);

    ErrorCode code() const { return code_; }
    int number() const { return static_cast<int>(code_); }
    /// The plain sentence, without the number.
    const QString& sentence() const { return sentence_; }

   private:
    ErrorCode code_;
    QString sentence_;
};

}  // namespace platform
