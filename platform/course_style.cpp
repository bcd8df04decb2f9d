#include "platform/course_style.h"

#include "platform/look.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleFactory>

namespace platform {

namespace {

constexpr int markSize = 44;
constexpr QRgb stopColour = 0xff9c2b23;

/// A filled disc with one sign in it, twice as dense as it is shown.
QIcon mark(QRgb colour, const QString& sign) {
    QPixmap picture(markSize * 2, markSize * 2);
    picture.setDevicePixelRatio(2.0);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colour));
    painter.drawEllipse(QRectF(2, 2, markSize - 4, markSize - 4));
    QFont font = roleFont(TextRole::Meaning, 1.0);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, markSize, markSize), Qt::AlignCenter, sign);
    return {picture};
}

}  // namespace

CourseStyle::CourseStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QIcon CourseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation: return mark(colour::accent, QStringLiteral("i"));
        case SP_MessageBoxQuestion: return mark(colour::accent, QStringLiteral("?"));
        case SP_MessageBoxCritical: return mark(stopColour, QStringLiteral("!"));
        default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

int CourseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_MessageBoxIconSize ? markSize : QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace platform
