#include "quizzes/fitted_text.h"

#include <QFontMetrics>

namespace quizzes {

namespace {

constexpr int smallestPixels = 9;

bool fits(const QFont& font, const QString& text, const QSize& room) {
    const QRect wide(0, 0, room.width(), room.height() * 4);
    const QRect needed = QFontMetrics(font).boundingRect(wide, Qt::TextWordWrap, text);
    return needed.width() <= room.width() && needed.height() <= room.height();
}

}  // namespace

void showFitted(platform::Label& label, const QString& text, platform::TextRole role, double scale) {
    QFont font = platform::roleFont(role, scale);
    while (font.pixelSize() > smallestPixels && !fits(font, text, label.contentsRect().size()))
        font.setPixelSize(font.pixelSize() - 1);
    label.setFont(font);
    label.setCaption(text);
}

}  // namespace quizzes
