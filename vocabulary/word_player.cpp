#include "vocabulary/word_player.h"

#include <QLoggingCategory>

namespace vocabulary {

namespace {

// Off by default, as the log of sounds is; switched on it tells the files that players were given.
Q_LOGGING_CATEGORY(mediaLog, "tovalin.media", QtCriticalMsg)
// The log of sounds tells it too, with the player's name where others have their mode.
Q_LOGGING_CATEGORY(soundLog, "tovalin.sound", QtCriticalMsg)

}  // namespace

WordPlayer::WordPlayer(const core::Context& context, const QString& name, QObject* parent)
    : QObject(parent), context_(context) {
    setObjectName(name);
}

void WordPlayer::setUrl(const QString& url) {
    url_ = url;
    qCInfo(mediaLog).noquote() << objectName() << url;
    qCInfo(soundLog).noquote() << url.section(u'\\', -1) << objectName();
    context_.sound.playBeside(context_.drives.resolve(url));
}

}  // namespace vocabulary
