#include "video/video_files.h"

namespace video {

namespace {

QString fileName(int number) {
    return QStringLiteral("Lesson_%1.wmv").arg(number);
}

}  // namespace

QString menuVideoFile(const QString& videoRoot, int index) {
    return index == 0 ? videoRoot + fileName(1) : stepVideoFile(videoRoot, index + 2);
}

QString secondVideoFile(const QString& videoRoot) {
    return stepVideoFile(videoRoot, 2);
}

QString stepVideoFile(const QString& videoRoot, int number) {
    return videoRoot + u'\\' + fileName(number);
}

}  // namespace video
