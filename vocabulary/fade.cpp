#include "vocabulary/fade.h"

#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QVariantAnimation>

namespace vocabulary {

namespace {

constexpr int longestFade = 200;
const QString ghostName = QStringLiteral("fading");

class Ghost : public QWidget {
   public:
    Ghost(QWidget* parent, QPixmap picture) : QWidget(parent), picture_(std::move(picture)) {
        setObjectName(ghostName);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    void fadeTo(double strength) {
        strength_ = strength;
        update();
    }

   protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(strength_);
        painter.drawPixmap(0, 0, picture_);
    }

   private:
    QPixmap picture_;
    double strength_ = 1.0;
};

}  // namespace

void fadeAway(QWidget& control) {
    const int duration = qMin(
        longestFade, control.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &control));
    if (duration <= 0 || !control.isVisible()) {
        control.hide();
        return;
    }
    auto* ghost = new Ghost(control.parentWidget(), control.grab());
    ghost->setGeometry(control.geometry());
    control.hide();
    ghost->show();
    auto* fading = new QVariantAnimation(ghost);
    fading->setDuration(duration);
    fading->setStartValue(1.0);
    fading->setEndValue(0.0);
    QObject::connect(fading, &QVariantAnimation::valueChanged, ghost,
                     [ghost](const QVariant& value) { ghost->fadeTo(value.toDouble()); });
    QObject::connect(fading, &QVariantAnimation::finished, ghost, &QObject::deleteLater);
    fading->start();
}

void endFades(QWidget& form) {
    qDeleteAll(form.findChildren<QWidget*>(ghostName, Qt::FindDirectChildrenOnly));
}

}  // namespace vocabulary
