#pragma once

#include <QProxyStyle>

namespace platform {

/// The controls' style: Fusion, with the message boxes' marks drawn in the course's own hand.
class CourseStyle final : public QProxyStyle {
    Q_OBJECT
   public:
    CourseStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace platform
