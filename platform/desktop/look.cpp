#include "platform/desktop/look.h"

#include "platform/desktop/course_style.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStringList>

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr const char* koreanFamily = "맑은 고딕";
constexpr const char* latinFamily = "Tahoma";

struct RoleLook {
    TextRole role;
    int pixels;
    bool bold;
    const char* family = koreanFamily;
};

constexpr std::array looks{
    RoleLook{TextRole::Title, 24, true},
    RoleLook{TextRole::Heading, 17, true},
    RoleLook{TextRole::Body, 14, false},
    RoleLook{TextRole::Small, 12, false},
    RoleLook{TextRole::Caption, 13, true},
    RoleLook{TextRole::Prompt, 14, false},
    RoleLook{TextRole::Answer, 14, true},
    RoleLook{TextRole::Sentence, 24, false},
    RoleLook{TextRole::Choice, 19, true},
    RoleLook{TextRole::Letter, 22, true},
    RoleLook{TextRole::Meaning, 28, true},
    RoleLook{TextRole::Row, 17, false},
    // 9.75 and 8.25 points.
    RoleLook{TextRole::DrillBox, 13, true, latinFamily},
    RoleLook{TextRole::DrillPhrase, 11, true, latinFamily},
};

}  // namespace

QFont roleFont(TextRole role, double scale) {
    const auto look =
        std::find_if(looks.begin(), looks.end(), [&](const RoleLook& l) { return l.role == role; });
    QFont font(QString::fromUtf8(look->family));
    font.setPixelSize(std::max(8, qRound(look->pixels * scale)));
    font.setBold(look->bold);
    return font;
}

void drawAhead(TextRole role, const QString& text) {
    const QFont font = roleFont(role, 1.0);
    // Of a window's own format, since each format has letters of its own.
    QImage scratch(1, font.pixelSize(), QImage::Format_RGB32);
    QPainter painter(&scratch);
    painter.setFont(font);
    painter.drawText(0, 0, text);
}

void setUpLook() {
    const QStringList families{QStringLiteral("NanumGothic"), QStringLiteral("Noto Sans CJK KR")};
    for (const char* family : {koreanFamily, latinFamily})
        QFont::insertSubstitutions(QString::fromUtf8(family), families);
    // The application takes the style over.
    QApplication::setStyle(new CourseStyle);
    QFont font(QString::fromUtf8(koreanFamily));
    font.setPixelSize(14);
    QApplication::setFont(font);
    QPalette palette(QColor::fromRgb(0xffe9e5da));
    palette.setColor(QPalette::Window, QColor::fromRgb(colour::paper));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Button, QColor::fromRgb(colour::paper));
    palette.setColor(QPalette::ButtonText, QColor::fromRgb(colour::accent));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor::fromRgb(0xffa3aeac));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(colour::accent));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
}

}  // namespace platform
