#include "platform/desktop/course_style.h"

#include "platform/desktop/look.h"

#include <QIcon>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionSlider>

#include <algorithm>

namespace platform {

namespace {

constexpr int markSize = 44;
constexpr int boxMargin = 18;
constexpr int barWidth = 12;
constexpr int leastHandle = 28;
constexpr QRgb stopColour = 0xff9c2b23;
constexpr QRgb edge = 0xffb7cac8;
constexpr QRgb edgeUnderMouse = 0xff7fb0ae;
constexpr QRgb pressedFill = 0xffd8eae8;
constexpr QRgb fillUnderMouse = 0xfff1f8f7;
constexpr QRgb idleFill = 0xfff5f1e8;

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

/// A sign drawn in a square of 22, twice as dense as it is shown.
QIcon sign(const QPainterPath& filled, const QPainterPath& lines) {
    constexpr int size = 22;
    QPixmap picture(size * 2, size * 2);
    picture.setDevicePixelRatio(2.0);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(filled, QColor::fromRgb(colour::accent));
    painter.setPen(QPen(QColor::fromRgb(colour::accent), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(lines);
    return {picture};
}

/// A triangle to the right, two bars, a loudspeaker, the window's four corners pointing out and in.
QIcon playerSign(QStyle::StandardPixmap which) {
    QPainterPath filled;
    QPainterPath lines;
    const auto corners = [&lines](double arm, double bend) {
        for (const double x : {-1.0, 1.0})
            for (const double y : {-1.0, 1.0}) {
                lines.moveTo(11 + x * arm, 11 + y * bend);
                lines.lineTo(11 + x * bend, 11 + y * bend);
                lines.lineTo(11 + x * bend, 11 + y * arm);
            }
    };
    switch (which) {
        case QStyle::SP_MediaPlay: filled.addPolygon(QPolygonF{{6, 4}, {6, 18}, {18, 11}, {6, 4}}); break;
        case QStyle::SP_MediaPause:
            filled.addRect(5.5, 4, 4, 14);
            filled.addRect(12.5, 4, 4, 14);
            break;
        case QStyle::SP_MediaVolume:
            filled.addPolygon(QPolygonF{{2, 8}, {6, 8}, {11, 3.5}, {11, 18.5}, {6, 14}, {2, 14}, {2, 8}});
            lines.moveTo(14.5, 7.5);
            lines.quadTo(17, 11, 14.5, 14.5);
            lines.moveTo(17.5, 5);
            lines.quadTo(21, 11, 17.5, 17);
            break;
        case QStyle::SP_TitleBarMaxButton: corners(3.5, 8); break;
        default: corners(8, 3.5); break;
    }
    return sign(filled, lines);
}

/// A rounded ground with a border, as wide as the border needs.
void paintGround(QPainter& painter, const QRect& rect, const QColor& fill, QRgb border, double width,
                 double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen(QColor::fromRgb(border), width));
    const double inset = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

void paintButton(QPainter& painter, const QStyleOption& option) {
    const QStyle::State state = option.state;
    const bool usable = state.testFlag(QStyle::State_Enabled);
    QColor fill = option.palette.color(QPalette::Button);
    if (!usable)
        fill = QColor::fromRgb(idleFill);
    else if (state.testFlag(QStyle::State_Sunken))
        fill = QColor::fromRgb(pressedFill);
    else if (state.testFlag(QStyle::State_MouseOver))
        fill = QColor::fromRgb(fillUnderMouse);
    const bool focused = state.testFlag(QStyle::State_HasFocus);
    const bool lit = usable && state.testFlag(QStyle::State_MouseOver);
    const QRgb border = focused ? colour::accent : lit ? edgeUnderMouse : edge;
    paintGround(painter, option.rect, fill, border, focused ? 2 : 1, 6);
}

/// Where the handle of a scroll bar stands: along the whole bar, since the bar has no arrows.
QRect handlePlace(const QStyleOptionSlider& bar) {
    const bool across = bar.orientation == Qt::Horizontal;
    const int length = across ? bar.rect.width() : bar.rect.height();
    const qint64 range = static_cast<qint64>(bar.maximum) - bar.minimum;
    const auto share = static_cast<int>(length * static_cast<qint64>(bar.pageStep) /
                                        std::max<qint64>(1, range + bar.pageStep));
    const int handle = range == 0 ? length : std::clamp(share, std::min(leastHandle, length), length);
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - handle, bar.upsideDown);
    return across ? QRect(start, 0, handle, bar.rect.height()) : QRect(0, start, bar.rect.width(), handle);
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& bar) {
    painter.fillRect(bar.rect, bar.palette.color(QPalette::Base));
    if (bar.maximum == bar.minimum)
        return;
    constexpr int slack = 3;
    const bool held = bar.state.testFlag(QStyle::State_Sunken) || bar.state.testFlag(QStyle::State_MouseOver);
    const QRgb fill = held ? edgeUnderMouse : edge;
    const QRect handle = handlePlace(bar).adjusted(slack, slack, -slack, -slack);
    paintGround(painter, handle, QColor::fromRgb(fill), fill, 1, 3);
}

}  // namespace

CourseStyle::CourseStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QIcon CourseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation: return mark(colour::accent, QStringLiteral("i"));
        case SP_MessageBoxQuestion: return mark(colour::accent, QStringLiteral("?"));
        case SP_MessageBoxCritical: return mark(stopColour, QStringLiteral("!"));
        case SP_MediaPlay:
        case SP_MediaPause:
        case SP_MediaVolume:
        case SP_TitleBarMaxButton:
        case SP_TitleBarNormalButton: return playerSign(icon);
        default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

int CourseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_MessageBoxIconSize: return markSize;
        case PM_ScrollBarExtent: return barWidth;
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            if (qobject_cast<const QMessageBox*>(widget) != nullptr)
                return boxMargin;
            break;
        default: break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int CourseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
        // A list drops down below its box and scrolls, rather than to cover half the screen.
        case SH_ComboBox_Popup:
        // Some desktops put signs of their own beside OK, Yes and No.
        case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
        default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

void CourseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand: paintButton(*painter, *option); return;
        case PE_PanelLineEdit:
            paintGround(*painter, option->rect, option->palette.color(QPalette::Base), colour::boxLine, 1, 4);
            return;
        case PE_FrameFocusRect:
            // The border of a button tells it already.
            if (qobject_cast<const QPushButton*>(widget) != nullptr)
                return;
            break;
        default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CourseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar != nullptr)
        paintScrollBar(*painter, *bar);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect CourseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect handle = handlePlace(*bar);
    const bool across = bar->orientation == Qt::Horizontal;
    QRect place = bar->rect;
    switch (part) {
        case SC_ScrollBarSlider: return handle;
        case SC_ScrollBarGroove: return place;
        case SC_ScrollBarSubPage:
            if (across)
                place.setRight(handle.left() - 1);
            else
                place.setBottom(handle.top() - 1);
            return place;
        case SC_ScrollBarAddPage:
            if (across)
                place.setLeft(handle.right() + 1);
            else
                place.setTop(handle.bottom() + 1);
            return place;
        default: return {};
    }
}

}  // namespace platform
