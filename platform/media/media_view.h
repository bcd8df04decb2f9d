#pragma once

#include "platform/media/media_interface.h"

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace platform {

/// Plays a video file in a plain widget, so that what it shows can be grabbed like any other picture. The
/// library behind it is loaded with the first file. What cannot be played is told in the widget itself.
class MediaView final : public QWidget, private MediaListener {
    Q_OBJECT
    Q_PROPERTY(QString URL READ url WRITE setUrl)
   public:
    /// `resolve` turns a URL into the file that it means.
    MediaView(std::function<QString(const QString&)> resolve, QWidget* parent);
    ~MediaView() override;

    QString url() const { return url_; }
    /// Names the file; playing starts at once.
    void setUrl(const QString& url);
    /// Ends the playing; the last picture goes.
    void stop();

    void togglePlaying();
    void seek(qint64 milliseconds);
    void setVolume(double volume);
    MediaState state() const;
    /// Whether it plays or, before the first picture, is about to.
    bool isPlaying() const;
    qint64 position() const;
    qint64 duration() const;
    bool hasFailed() const { return !failure_.isEmpty(); }
    /// The sentence that stands in place of the picture, empty while all is well.
    QString failure() const { return failure_; }
    /// The picture on view; null before the first.
    const QImage& picture() const { return picture_; }

    std::function<void()> onProgress;
    std::function<void()> onDoubleClick;

   protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

   private:
    void start();
    void mediaFrame(const QImage& frame) override;
    void mediaProgressed() override;
    void mediaFailed(const QString& reason) override;
    void showFailure(const QString& reason);
    void clearFailure();

    std::function<QString(const QString&)> resolve_;
    QString url_;
    QString failure_;
    QImage picture_;
    double volume_ = 1.0;
    bool held_ = false;  // paused by the learner, maybe before there was anything to pause
    QTimer patience_;
    QLabel* lblFailure_;
    struct Retire {
        void operator()(MediaPlayer* player) const { player->retire(); }
    };
    std::unique_ptr<MediaPlayer, Retire> player_;
};

}  // namespace platform
