#pragma once

#include "core/screen.h"
#include "platform/media/media_view.h"

#include <QLabel>
#include <QSlider>
#include <QToolButton>

namespace video {

/// `frmVideo2`, the player: a window of its own that plays `videoFile` until it is closed.
class PlayerWindow final : public core::Screen {
    Q_OBJECT
   public:
    explicit PlayerWindow(core::Context& context);

   protected:
    void keyPressEvent(QKeyEvent* event) override;

   private:
    QWidget* buildBar();
    QToolButton* addBarButton(QWidget& bar, const QString& name, const QString& spoken);
    QSlider* addBarSlider(QWidget& bar, const QString& name, const QString& spoken, int maximum);
    void progressed();
    void seekBy(qint64 milliseconds);
    void changeVolume(int steps);
    void toggleFullWindow();
    void end();

    platform::MediaView* web1_;
    QToolButton* cmdPlay_ = nullptr;
    QToolButton* cmdFull_ = nullptr;
    QSlider* sldSeek_ = nullptr;
    QSlider* sldVolume_ = nullptr;
    QLabel* lblTime_ = nullptr;
    QRect normalPlace_;
    bool full_ = false;
};

/// "1:05" from milliseconds.
QString playingTime(qint64 milliseconds);

}  // namespace video
