#include "vocabulary/word_player.h"

#include "tests/support/recorder.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

namespace {

/// Keeps apart what plays on its own and what a media player plays beside it.
class TwoVoices final : public platform::SoundPlayer {
   public:
    QStringList alone;
    QStringList beside;
    void play(const QString& file, bool) override { alone.append(file); }
    void playBeside(const QString& file) override { beside.append(file); }
};

}  // namespace

TEST(WordPlayer, SpeaksBesideAnEffectThatStillPlays) {
    support::Desk desk;
    support::RecordingNavigator navigator;
    TwoVoices voices;
    const core::Context context = support::contextWith(desk, navigator, &voices);
    vocabulary::WordPlayer player(context, QStringLiteral("Web1"), nullptr);
    const QString url = QStringLiteral("D:\\A_Mendori\\ABCSound\\leaf.wav");
    player.setUrl(url);
    EXPECT_EQ(player.url(), url);
    EXPECT_EQ(voices.beside, QStringList{desk.file(url)});
    EXPECT_EQ(voices.alone, QStringList{});
}

TEST(WordPlayer, TellsTheWordInTheLogOfSounds) {
    static QStringList log;
    log.clear();
    const auto before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext& where, const QString& text) {
            log.append(QString::fromUtf8(where.category) + u' ' + text);
        });
    QLoggingCategory::setFilterRules(QStringLiteral("tovalin.sound.info=true"));
    support::Desk desk;
    vocabulary::WordPlayer player(desk.context(), QStringLiteral("Web1"), nullptr);
    player.setUrl(QStringLiteral("D:\\A_Mendori\\ABCSound\\leaf.wav"));
    QLoggingCategory::setFilterRules({});
    qInstallMessageHandler(before);
    EXPECT_EQ(log, QStringList{QStringLiteral("tovalin.sound leaf.wav Web1")});
}
