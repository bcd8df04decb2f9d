#pragma once

#include "tools/media/slides.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace tools {

struct VideoPlan {
    QString folder;        // where Lesson_<n>.wmv go; made when absent
    int workers = 2;       // videos made at a time, each with at most one process
    bool makeAll = false;  // also those whose text has not changed
    /// Told about each video when it is done, in the calling thread: "Lesson_3.wmv, 74 s", 3, 25.
    std::function<void(const QString& what, int done, int total)> progress;
};

struct VideoReport {
    int made = 0;
    int kept = 0;               // up to date, or a video of the author's own
    QStringList failures;       // a sentence for each that could not be made
    bool silent = false;        // no speech program was there
    bool silentKorean = false;  // none that speaks Korean
};

/// Makes a video for each text, as .wmv. One is made again only when its text has changed since; one that
/// this tool did not make, or that was replaced by hand, is left alone. Needs a QGuiApplication and ffmpeg.
VideoReport makeVideos(const std::vector<VideoText>& texts, const VideoPlan& plan);

/// The file name of a video.
QString videoFileName(int number);

}  // namespace tools
