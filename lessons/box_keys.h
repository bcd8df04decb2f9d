#pragma once

#include "platform/desktop/controls.h"

#include <optional>

namespace lessons {

/// Where a key other than Enter leads from a box in a row of boxes: the number of the box to go to, nothing
/// where the key stays in the box's text.
std::optional<int> boxByKey(const platform::TextBox& here, int box, int count, int code);

}  // namespace lessons
