#pragma once

#include "platform/media/media_view.h"
#include "tests/support/desk.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace support {

inline const QString videoFolder = QStringLiteral("D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\");

/// A desk with three units, their tips, and a short real video on demand.
class VideoDesk : public Desk {
   public:
    VideoDesk() {
        exec(courseStore,
             "insert into topic (topicno, Title) values (1, '명사');"
             "insert into topic (topicno, Title) values (3, '대명사');"
             "insert into topic (topicno, Title) values (2, '관사');");
        exec(masterStore,
             "insert into tovalin1_gram_tip (recordno, topicno, tips, autono) values (1, 1, '첫째 설명', 1);"
             "insert into tovalin1_gram_tip (recordno, topicno, tips, autono) values (15, 1, '둘째 설명', 2);"
             "insert into tovalin1_gram_tip (recordno, topicno, tips, autono) values (21, 2, '관사 설명', "
             "3);");
    }

    /// Puts a video of one colour with a soft tone where the player looks for this number.
    void makeVideo(int number, double seconds = 3.0,
                   const QString& picture = QStringLiteral("color=c=red:s=160x120:r=10")) const {
        const QString file = this->file(videoFolder + QStringLiteral("Lesson_%1.wmv").arg(number));
        const QString length = QString::number(seconds);
        QProcess::execute(QStringLiteral("ffmpeg"),
                          {"-nostdin", "-v",    "error", "-y",
                           "-f",       "lavfi", "-i",    picture + QStringLiteral(":d=") + length,
                           "-f",       "lavfi", "-i",    "sine=220:d=" + length,
                           "-c:v",     "wmv2",  "-g",    "5",
                           "-c:a",     "wmav2", "-f",    "asf",
                           file});
    }
    void writeVideo(int number, const QByteArray& bytes) const {
        QFile out(file(videoFolder + QStringLiteral("Lesson_%1.wmv").arg(number)));
        if (out.open(QIODevice::WriteOnly))
            out.write(bytes);
    }

    /// The player on a video of this number, without the screens before it.
    core::Screen* openPlayer(int number) {
        session.videoFile = videoFolder + QStringLiteral("\\Lesson_%1.wmv").arg(number);
        return open(QStringLiteral("frmVideo2"));
    }
    static platform::MediaView& view(const core::Screen* player) {
        return find<platform::MediaView>(player, QStringLiteral("Web1"));
    }
    static bool showsPicture(const core::Screen* player) {
        return waitFor([&] { return !view(player).picture().isNull(); }, 15000);
    }
    bool playerIsGone() const {
        return waitFor(
            [this] { return top() == nullptr || top()->objectName() != QStringLiteral("frmVideo2"); });
    }
};

}  // namespace support
