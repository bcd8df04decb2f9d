#pragma once

#include <QString>

namespace core {

/// Cleans a typed answer for comparison: lower-cases the caller's text in place and gives back its letters a
/// to z alone.
QString KeepLettersLower(QString& text);

/// The same with the apostrophe and the digits 1 to 9 kept as well; the digit 0 is not among them.
QString KeepAnswerChars(QString& text);

}  // namespace core
