#include "core/play_sound.h"

#include "tests/support/desk.h"

#include <QFile>
#include <QLoggingCategory>

#include <gtest/gtest.h>

using core::PlaySound;
using support::Desk;

namespace {

QStringList logged;

void keepLog(QtMsgType, const QMessageLogContext& context, const QString& text) {
    if (qstrcmp(context.category, "tovalin.sound") == 0)
        logged.append(text);
}

class PlaySoundTest : public testing::Test {
   protected:
    Desk desk;

    void put(const char* file) const {
        QFile out(desk.root() + u'/' + QLatin1String(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write("sound");
    }
    QString lastFile() const { return desk.sound.played.back().file.mid(desk.root().size()); }
};

}  // namespace

TEST_F(PlaySoundTest, ModeOnePlaysFromTheApplicationFolderAndWaits) {
    PlaySound(desk.context(), "correct.wav", 1);
    EXPECT_EQ(lastFile(), "/D/correct.wav");
    EXPECT_TRUE(desk.sound.played.back().waited);
}

TEST_F(PlaySoundTest, ModeThreePlaysFromTheApplicationFolderAndReturnsAtOnce) {
    PlaySound(desk.context(), "touchit.wav", 3);
    EXPECT_EQ(lastFile(), "/D/touchit.wav");
    EXPECT_FALSE(desk.sound.played.back().waited);
}

TEST_F(PlaySoundTest, ModeSixFindsTheFileOfABareWordOnTheMediaDriveAndWaits) {
    put("D/A_Mendori/ABCSound/apple.wav");
    PlaySound(desk.context(), "apple", 6);
    EXPECT_EQ(lastFile(), "/D/A_Mendori/ABCSound/apple.wav");
    EXPECT_TRUE(desk.sound.played.back().waited);
}

TEST_F(PlaySoundTest, FileNamesAreFoundWithoutRegardToCase) {
    put("D/A_Mendori/ABCSound/Monday.WAV");
    PlaySound(desk.context(), "monday", 6);
    EXPECT_EQ(lastFile(), "/D/A_Mendori/ABCSound/Monday.WAV");
    PlaySound(desk.context(), "TouchIt.wav", 3);
    EXPECT_EQ(lastFile(), "/D/touchit.wav");
}

TEST_F(PlaySoundTest, AFileOfTheExactNameIsTakenBeforeOneWithTheExtension) {
    put("D/A_Mendori/ABCSound/word");
    put("D/A_Mendori/ABCSound/word.wav");
    PlaySound(desk.context(), "word", 6);
    EXPECT_EQ(lastFile(), "/D/A_Mendori/ABCSound/word");
}

TEST_F(PlaySoundTest, AMissingSoundIsNoError) {
    PlaySound(desk.context(), "no such word", 6);
    PlaySound(desk.context(), "missing.wav", 3);
    EXPECT_EQ(desk.failure(), "");
}

TEST_F(PlaySoundTest, AnyOtherModeMakesNoSoundAndReportsNothing) {
    for (const int mode : {2, 0, 4, 5, 7, -1})
        PlaySound(desk.context(), "touchit.wav", mode);
    EXPECT_TRUE(desk.sound.played.empty());
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(PlaySoundTest, SoundsAreToldByALoggingCategoryThatIsOffByDefault) {
    logged.clear();
    const auto before = qInstallMessageHandler(keepLog);
    PlaySound(desk.context(), "touchit.wav", 3);
    EXPECT_TRUE(logged.isEmpty());
    QLoggingCategory::setFilterRules("tovalin.sound.info=true");
    PlaySound(desk.context(), "apple", 6);
    PlaySound(desk.context(), "apple", 2);
    QLoggingCategory::setFilterRules({});
    qInstallMessageHandler(before);
    EXPECT_EQ(logged, QStringList{"apple 6"});
}
