#include "platform/error.h"

namespace platform {

RuntimeError::RuntimeError(Fault fault, const QString& sentence)
    : std::runtime_error(sentence.toStdString()), fault_(fault), sentence_(sentence) {}

}  // namespace platform
