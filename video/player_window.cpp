#include "video/player_window.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QStyle>

namespace video {

using platform::TextRole;

namespace {

constexpr QSize playerSize(800, 600);
constexpr QSize smallestSize(360, 280);
constexpr int border = 1;
constexpr int volumeSteps = 20;
constexpr qint64 seekStep = 5000;

/// A bar whose handle comes to where it is clicked, not a step towards it, and can be dragged on from there.
class JumpBar final : public QSlider {
   public:
    explicit JumpBar(QWidget* parent) : QSlider(Qt::Horizontal, parent) {}

   protected:
    void mousePressEvent(QMouseEvent* event) override {
        const int handle = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this);
        if (event->button() == Qt::LeftButton)
            setValue(QStyle::sliderValueFromPosition(
                minimum(), maximum(), event->position().toPoint().x() - handle / 2, width() - handle));
        QSlider::mousePressEvent(event);
    }
};

}  // namespace

QString playingTime(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

PlayerWindow::PlayerWindow(core::Context& context)
    : Screen(context, QStringLiteral("frmVideo2"), playerSize) {
    setWindowTitle(QStringLiteral("Brindle Tovalin Video Lesson"));
    setAccessibleName(windowTitle());
    // Unlike the screens of the course this is a window with a title bar that can be sized.
    const QSize size = this->size();
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    setMinimumSize(smallestSize.boundedTo(size));
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    resize(size);
    onCloseRequest = [this] { end(); };

    web1_ = new platform::MediaView(
        [drives = &context.drives](const QString& url) { return drives->resolve(url); }, this);
    web1_->setObjectName(QStringLiteral("Web1"));
    web1_->onProgress = [this] { progressed(); };
    web1_->onDoubleClick = [this] { toggleFullWindow(); };
    auto* layout = new QVBoxLayout(this);
    // Without a window manager nothing else sets the player off from the screen below.
    layout->setContentsMargins(border, border, border, border);
    layout->setSpacing(0);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(platform::colour::boxLine));
    setPalette(palette);
    layout->addWidget(web1_, 1);
    layout->addWidget(buildBar());
    progressed();
    web1_->setUrl(session().videoFile);
}

QWidget* PlayerWindow::buildBar() {
    auto* bar = new QWidget(this);
    bar->setPalette(QApplication::palette());
    bar->setAutoFillBackground(true);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 6, 12, 6);
    row->setSpacing(10);
    cmdPlay_ = addBarButton(*bar, QStringLiteral("cmdPlay"), QStringLiteral("Play or pause"));
    connect(cmdPlay_, &QToolButton::clicked, this, [this] { web1_->togglePlaying(); });
    sldSeek_ = addBarSlider(*bar, QStringLiteral("sldSeek"), QStringLiteral("Position"), 0);
    connect(sldSeek_, &QSlider::valueChanged, this, [this](int value) { web1_->seek(value); });
    row->setStretchFactor(sldSeek_, 1);
    lblTime_ = new QLabel(bar);
    lblTime_->setObjectName(QStringLiteral("lblTime"));
    lblTime_->setFont(platform::roleFont(TextRole::Caption, 1.0));
    lblTime_->setAlignment(Qt::AlignCenter);
    lblTime_->setMinimumWidth(lblTime_->fontMetrics().horizontalAdvance(QStringLiteral("00:00 / 00:00")));
    row->addWidget(lblTime_);
    auto* speaker = new QLabel(bar);
    speaker->setPixmap(style()->standardIcon(QStyle::SP_MediaVolume).pixmap(18, 18));
    row->addWidget(speaker);
    sldVolume_ = addBarSlider(*bar, QStringLiteral("sldVolume"), QStringLiteral("Volume"), volumeSteps);
    sldVolume_->setFixedWidth(90);
    sldVolume_->setValue(volumeSteps);
    connect(sldVolume_, &QSlider::valueChanged, this,
            [this](int value) { web1_->setVolume(static_cast<double>(value) / volumeSteps); });
    cmdFull_ = addBarButton(*bar, QStringLiteral("cmdFull"), QStringLiteral("Full window"));
    cmdFull_->setIcon(style()->standardIcon(QStyle::SP_TitleBarMaxButton));
    connect(cmdFull_, &QToolButton::clicked, this, [this] { toggleFullWindow(); });
    return bar;
}

QToolButton* PlayerWindow::addBarButton(QWidget& bar, const QString& name, const QString& spoken) {
    auto* button = new QToolButton(&bar);
    button->setObjectName(name);
    button->setAccessibleName(spoken);
    button->setToolTip(spoken);
    button->setAutoRaise(true);
    button->setIconSize(QSize(22, 22));
    button->setFocusPolicy(Qt::TabFocus);
    bar.layout()->addWidget(button);
    return button;
}

QSlider* PlayerWindow::addBarSlider(QWidget& bar, const QString& name, const QString& spoken, int maximum) {
    auto* slider = new JumpBar(&bar);
    slider->setObjectName(name);
    slider->setAccessibleName(spoken);
    slider->setFocusPolicy(Qt::TabFocus);
    slider->setRange(0, maximum);
    bar.layout()->addWidget(slider);
    return slider;
}

void PlayerWindow::progressed() {
    cmdPlay_->setIcon(
        style()->standardIcon(web1_->isPlaying() ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    const bool usable = !web1_->hasFailed();
    for (QWidget* control : {static_cast<QWidget*>(cmdPlay_), static_cast<QWidget*>(sldSeek_)})
        control->setEnabled(usable);
    // What the player reports must not come back to it as a wish to seek.
    const QSignalBlocker still(sldSeek_);
    sldSeek_->setMaximum(static_cast<int>(web1_->duration()));
    sldSeek_->setPageStep(static_cast<int>(seekStep));
    sldSeek_->setSingleStep(static_cast<int>(seekStep));
    if (!sldSeek_->isSliderDown())
        sldSeek_->setValue(static_cast<int>(web1_->position()));
    lblTime_->setText(playingTime(web1_->position()) + QStringLiteral(" / ") +
                      playingTime(web1_->duration()));
}

void PlayerWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        // Whoever fills the screen wants it back first, as in every player.
        case Qt::Key_Escape: full_ ? toggleFullWindow() : end(); break;
        case Qt::Key_Space:
            if (!event->isAutoRepeat())
                web1_->togglePlaying();
            break;
        case Qt::Key_Left: seekBy(-seekStep); break;
        case Qt::Key_Right: seekBy(seekStep); break;
        case Qt::Key_Up: changeVolume(1); break;
        case Qt::Key_Down: changeVolume(-1); break;
        default: Screen::keyPressEvent(event);
    }
}

void PlayerWindow::seekBy(qint64 milliseconds) {
    web1_->seek(web1_->position() + milliseconds);
}

void PlayerWindow::changeVolume(int steps) {
    sldVolume_->setValue(sldVolume_->value() + steps);
}

void PlayerWindow::toggleFullWindow() {
    full_ = !full_;
    if (full_) {
        normalPlace_ = geometry();
        // Without a window manager a full-screen request changes nothing, so the size is set first.
        layout()->setContentsMargins(0, 0, 0, 0);
        setGeometry(screen()->geometry());
        showFullScreen();
    } else {
        layout()->setContentsMargins(border, border, border, border);
        showNormal();
        setGeometry(normalPlace_);
    }
    cmdFull_->setIcon(
        style()->standardIcon(full_ ? QStyle::SP_TitleBarNormalButton : QStyle::SP_TitleBarMaxButton));
}

void PlayerWindow::end() {
    web1_->stop();
    unload();
}

}  // namespace video
