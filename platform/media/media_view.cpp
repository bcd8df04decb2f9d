#include "platform/media/media_view.h"

#include "platform/desktop/look.h"
#include "platform/desktop/waiting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr QRgb ground = 0xff12282b;
constexpr int failureMargin = 32;
// How long a first picture is waited for before the learner is told, in milliseconds.
constexpr int firstPictureLimit = 6000;

MediaCreateFunction mediaModule() {
    static const auto create = reinterpret_cast<MediaCreateFunction>(QLibrary::resolve(
        QCoreApplication::applicationDirPath() + QStringLiteral("/mendori_media"), mediaCreateName));
    return create;
}

/// Why a file cannot even be tried, empty where it can. The player itself waits for ever on a missing one.
QString obstacle(const QString& url, const QString& file) {
    const QFileInfo info(file);
    if (!info.isFile())
        return QStringLiteral("파일을 찾을 수 없습니다: %1").arg(url);
    if (!info.isReadable())
        return QStringLiteral("파일을 열 수 없습니다: %1").arg(url);
    if (info.size() == 0)
        return QStringLiteral("파일이 비어 있습니다: %1").arg(url);
    if (mediaModule() == nullptr)
        return QStringLiteral("동영상 재생 구성 요소(mendori_media)를 불러올 수 없습니다.");
    return {};
}

}  // namespace

MediaView::MediaView(std::function<QString(const QString&)> resolve, QWidget* parent)
    : QWidget(parent), resolve_(std::move(resolve)), lblFailure_(new QLabel(this)) {
    setAccessibleName(QStringLiteral("Video"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    lblFailure_->setObjectName(QStringLiteral("lblFailure"));
    lblFailure_->setTextFormat(Qt::PlainText);
    lblFailure_->setWordWrap(true);
    lblFailure_->setAlignment(Qt::AlignCenter);
    lblFailure_->setAttribute(Qt::WA_TransparentForMouseEvents);
    lblFailure_->setFont(roleFont(TextRole::Heading, 1.0));
    QPalette palette = lblFailure_->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    lblFailure_->setPalette(palette);
    lblFailure_->hide();
    // The player does not always notice that nothing will ever come of a damaged file.
    patience_.setSingleShot(true);
    patience_.setInterval(firstPictureLimit);
    connect(&patience_, &QTimer::timeout, this, [this] {
        if (player_ && picture_.isNull() && !hasFailed())
            showFailure(QStringLiteral("영상이 시작되지 않습니다: %1").arg(url_));
    });
}

MediaView::~MediaView() = default;

void MediaView::setUrl(const QString& url) {
    stop();
    url_ = url;
    held_ = false;
    // The window comes up first: the first start of the media libraries takes longer than painting it.
    later(this, [this, url] {
        if (url == url_ && !player_ && !hasFailed())
            start();
    });
}

void MediaView::start() {
    const QString file = resolve_(url_);
    if (const QString reason = obstacle(url_, file); !reason.isEmpty()) {
        showFailure(reason);
        return;
    }
    player_.reset(mediaModule()(file, *this));
    player_->setVolume(volume_);
    if (held_)
        player_->pause();
    patience_.start();
}

void MediaView::stop() {
    patience_.stop();
    player_.reset();
    picture_ = QImage();
    url_.clear();
    clearFailure();
    update();
}

void MediaView::clearFailure() {
    failure_.clear();
    lblFailure_->hide();
    setAccessibleDescription(QString());
}

void MediaView::togglePlaying() {
    if (hasFailed() || url_.isEmpty())
        return;
    // Before the first picture the wish is kept: the video then comes up paused.
    held_ = isPlaying();
    if (!player_) {
        mediaProgressed();
        return;
    }
    if (held_)
        player_->pause();
    else
        player_->play();
    if (state() == MediaState::Loading)
        mediaProgressed();
}

void MediaView::seek(qint64 milliseconds) {
    if (player_)
        player_->seek(milliseconds);
}

void MediaView::setVolume(double volume) {
    volume_ = std::clamp(volume, 0.0, 1.0);
    if (player_)
        player_->setVolume(volume_);
}

MediaState MediaView::state() const {
    return player_ ? player_->state() : MediaState::Loading;
}

bool MediaView::isPlaying() const {
    const MediaState now = state();
    return now == MediaState::Playing || (now == MediaState::Loading && !held_);
}

qint64 MediaView::position() const {
    return player_ ? player_->position() : 0;
}

qint64 MediaView::duration() const {
    return player_ ? player_->duration() : 0;
}

void MediaView::mediaFrame(const QImage& frame) {
    // A picture may come late, off a slow drive.
    if (hasFailed())
        clearFailure();
    picture_ = frame;
    update();
}

void MediaView::mediaProgressed() {
    if (onProgress)
        onProgress();
}

void MediaView::mediaFailed(const QString& reason) {
    showFailure(QStringLiteral("재생할 수 없는 파일입니다: %1\n(%2)").arg(url_, reason));
}

void MediaView::showFailure(const QString& reason) {
    failure_ =
        QStringLiteral("동영상을 재생할 수 없습니다.\n\n%1\n\n창을 닫으면 학습이 계속됩니다.").arg(reason);
    picture_ = QImage();
    lblFailure_->setText(failure_);
    lblFailure_->show();
    setAccessibleDescription(failure_);
    update();
    mediaProgressed();
}

void MediaView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(ground));
    if (picture_.isNull())
        return;
    QRect target(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatio));
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture_);
}

void MediaView::resizeEvent(QResizeEvent*) {
    lblFailure_->setGeometry(rect().adjusted(failureMargin, failureMargin, -failureMargin, -failureMargin));
}

void MediaView::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && onDoubleClick)
        onDoubleClick();
}

}  // namespace platform
