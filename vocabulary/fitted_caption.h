#pragma once

#include "platform/desktop/form.h"

namespace vocabulary {

/// Shows a meaning as large as its label holds it: in the role given, else smaller, at last over two lines.
void setFittedCaption(const platform::Form& form, platform::Label& label, const QString& text,
                      platform::TextRole largest);

}  // namespace vocabulary
