#include "vocabulary/fitted_caption.h"

#include <QFontMetrics>

#include <array>

namespace vocabulary {

using platform::TextRole;

void setFittedCaption(const platform::Form& form, platform::Label& label, const QString& text,
                      TextRole largest) {
    constexpr std::array smaller{TextRole::Letter, TextRole::Choice};
    const int room = label.contentsRect().width();
    const auto fits = [&](TextRole role) {
        label.setFont(platform::roleFont(role, form.scale()));
        return label.fontMetrics().horizontalAdvance(text) <= room;
    };
    bool fitting = fits(largest);
    for (std::size_t i = 0; i < smaller.size() && !fitting; ++i)
        fitting = fits(smaller[i]);
    if (!fitting)
        label.setFont(platform::roleFont(TextRole::Body, form.scale()));
    label.setWordWrap(!fitting);
    label.setCaption(text);
}

}  // namespace vocabulary
