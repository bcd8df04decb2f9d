#pragma once

#include <QProxyStyle>

namespace platform {

/// The controls' style: Fusion, with push buttons, boxes and scroll bars in the flat manner of the course's
/// pictures, and with the course's own marks on message boxes.
class CourseStyle final : public QProxyStyle {
    Q_OBJECT
   public:
    CourseStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};

}  // namespace platform
