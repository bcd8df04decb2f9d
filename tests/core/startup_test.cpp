#include "core/startup.h"

#include "tests/support/recorder.h"
#include "tests/support/store.h"
#include "tests/support/stranger.h"

#include <QDir>
#include <QFile>
#include <QScreen>

using support::Desk;
using support::errorOf;

namespace {

const QString version = QStringLiteral("C:\\A_Mendori\\Main\\Pversion_2026.mdb");
const QString key = QStringLiteral("Mendori/General Information/");

/// A start of the program on a desk, with the session still as the process gets it.
class StartUpTest : public testing::Test {
   protected:
    Desk desk;
    support::RecordingNavigator navigator;
    core::Context context = support::contextWith(desk, navigator);
    platform::Frame frame{QStringLiteral("frmFrame")};

    StartUpTest() {
        desk.session = core::Session();
        desk.settings.values[key + "UserID"] = "1001";
        desk.settings.values[key + "Name"] = "김하늘";
    }
    bool start() { return core::StartUp(context, frame); }
    QString marker(const char* drive) const {
        const QString path = desk.root() + u'/' + QLatin1String(drive) + "/A_Mendori/ABCPicture/Mendori.jpg";
        QDir().mkpath(QFileInfo(path).path());
        return path;
    }
    static void write(const QString& file, const QByteArray& bytes) {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
};

}  // namespace

TEST_F(StartUpTest, FillsTheSessionAndAsksForTheLogInPanel) {
    EXPECT_TRUE(start());
    const core::Session& s = desk.session;
    EXPECT_EQ(s.mediaDrive, "D:");
    EXPECT_EQ(s.mediaPictureDir, "D:\\A_Mendori\\ABCPicture\\");
    EXPECT_EQ(s.mediaSoundDirFirst, "D:\\A_Mendori\\ABCSound\\");
    EXPECT_EQ(s.mediaSoundDir, "D:\\A_Mendori\\ABCSound\\");
    EXPECT_EQ(s.videoRoot, "D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\");
    EXPECT_EQ(s.appDir, "D:\\\\") << "the application folder and a backslash, whatever the folder ends in";
    EXPECT_EQ(s.appSoundDir, "D:\\\\Sound\\");
    EXPECT_EQ(s.recordDir, "D:\\\\MyRecord\\");
    EXPECT_EQ(s.appPictureDir, "D:\\\\ABCPicture\\");
    EXPECT_EQ(s.userId, "1001");
    EXPECT_EQ(s.userName, "김하늘");
    EXPECT_EQ(s.teacherMode, "");
    EXPECT_EQ(s.userRole, "");
    EXPECT_EQ(s.programCode, "Tovalin1");
    EXPECT_EQ(s.today, QDate(2026, 3, 14));
    EXPECT_EQ(s.vocaFirst, "YES");
    EXPECT_TRUE(s.dictionaryDb.isOpen() && s.allwordRs.isOpen() && s.dicwordRs.isOpen());
    EXPECT_TRUE(s.scoreDb.isOpen() && s.scoreRs.isOpen()) << "until the first reopening";
    EXPECT_EQ(s.screenWidthPx, QGuiApplication::primaryScreen()->geometry().width());
    EXPECT_EQ(s.screenHeightPx, QGuiApplication::primaryScreen()->geometry().height());
    EXPECT_EQ(navigator.screens(), QStringList{"frmLogIn2"});
    EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST_F(StartUpTest, WhatNothingAssignsStartsEmpty) {
    start();
    const core::Session& s = desk.session;
    EXPECT_EQ(s.recordNo + s.topicNo + s.pageNo + s.wordNo + s.scoreValue + s.scoreSlot + s.reviewRecordNo,
              0);
    EXPECT_EQ(s.reviewMode + s.finalMarker + s.stepType + s.hasWords + s.quizzesComplete, "");
}

TEST_F(StartUpTest, TheFrameCoversTheScreenUnderItsTitleAndIcon) {
    start();
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.windowTitle(), "Tovalin 1");
    EXPECT_EQ(frame.geometry(), QGuiApplication::primaryScreen()->geometry());
    EXPECT_FALSE(frame.windowIcon().isNull());
    EXPECT_TRUE(frame.findChildren<QWidget*>().isEmpty()) << "it has no controls";
}

TEST_F(StartUpTest, WithTheMarkerOnDAndEItIsDThatWins) {
    QFile::copy(marker("D"), marker("E"));
    start();
    EXPECT_EQ(desk.session.mediaDrive, "D:");
}

TEST_F(StartUpTest, TheMarkerIsLookedForOnEveryDriveFromCToH) {
    for (const char* drive : {"H", "G", "F", "E", "D", "C"}) {
        if (!QFile::exists(marker(drive)))
            QFile::copy(marker("D"), marker(drive));
        desk.session.mediaDrive.clear();
        if (*drive != 'D')
            QFile::rename(marker("D"), desk.root() + "/kept");
        start();
        EXPECT_EQ(desk.session.mediaDrive, QString::fromLatin1(drive) + ":");
        if (*drive != 'D')
            QFile::rename(desk.root() + "/kept", marker("D"));
    }
}

TEST_F(StartUpTest, AMarkerOfLengthZeroMakesNoMediaDrive) {
    QFile::copy(marker("D"), marker("E"));
    write(marker("D"), {});
    start();
    EXPECT_EQ(desk.session.mediaDrive, "E:");
}

TEST_F(StartUpTest, WithoutAMarkerOneWarningAppearsAndTheCourseStarts) {
    QFile::remove(marker("D"));
    EXPECT_TRUE(start());
    ASSERT_EQ(desk.boxes.texts(), QStringList{"Please Insert USB Drive"});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Stop);
    EXPECT_EQ(desk.boxes.shown[0].title, "");
    EXPECT_EQ(desk.session.mediaDrive, "");
    EXPECT_EQ(desk.session.mediaSoundDir, "\\A_Mendori\\ABCSound\\");
    EXPECT_EQ(desk.session.videoRoot, "\\A_Mendori\\Mendori_Program\\Tovalin1_Video\\");
    EXPECT_EQ(navigator.screens(), QStringList{"frmLogIn2"});
}

TEST_F(StartUpTest, WithoutAUserIdTheProgramAsksForALogInAndEnds) {
    desk.settings.values.clear();
    desk.settings.values[key + "Name"] = "김하늘";
    EXPECT_FALSE(start());
    ASSERT_EQ(desk.boxes.texts(), QStringList{"Log In Required."});
    EXPECT_EQ(desk.boxes.shown[0].icon, platform::BoxIcon::Stop);
    EXPECT_FALSE(frame.isVisible());
    EXPECT_TRUE(navigator.asked.empty());
    EXPECT_TRUE(desk.session.dictionaryDb.isOpen()) << "the dictionary was opened before";
    EXPECT_FALSE(desk.session.scoreDb.isOpen());
    EXPECT_TRUE(desk.rows(version, "select * from pversion").isEmpty());
}

TEST_F(StartUpTest, WithoutMarkerAndUserIdBothMessagesAppearInOrder) {
    QFile::remove(marker("D"));
    desk.settings.values.clear();
    EXPECT_FALSE(start());
    EXPECT_EQ(desk.boxes.texts(), (QStringList{"Please Insert USB Drive", "Log In Required."}));
}

TEST_F(StartUpTest, AnEmptyNameStartsNormally) {
    desk.settings.values.erase(key + "Name");
    EXPECT_TRUE(start());
    EXPECT_EQ(desk.session.userName, "");
}

TEST_F(StartUpTest, ATeacherIsOneWhoseSettingSaysExactlyTeacher) {
    for (const char* text : {"Teacher", "teacher", "YES", ""}) {
        desk.settings.values[key + "Teacher"] = QString::fromLatin1(text);
        start();
        EXPECT_EQ(desk.session.isTeacher(), QLatin1String(text) == QLatin1String("Teacher"));
        EXPECT_EQ(desk.session.passesUnfinished(), desk.session.isTeacher());
    }
}

TEST_F(StartUpTest, ASecondStartOnTheSameDayHasTheSameDateAndARunPastMidnightKeepsItsFirst) {
    start();
    desk.session = core::Session();
    start();
    EXPECT_EQ(desk.session.today, QDate(2026, 3, 14));
    desk.clock.day = QDate(2026, 3, 15);
    EXPECT_EQ(desk.session.today, QDate(2026, 3, 14));
}

TEST_F(StartUpTest, TheVersionTableEndsWithOneRowOfTheProgramWhateverItHeld) {
    start();
    EXPECT_EQ(desk.rows(version, "select program,pVersion from pversion"), QStringList{"Tovalin1|1"});
    desk.exec(version,
              "update pversion set pVersion=7; insert into pversion(program,pVersion) values('Other',3)");
    start();
    EXPECT_EQ(desk.rows(version, "select program,pVersion from pversion order by program"),
              (QStringList{"Other|3", "Tovalin1|1"}));
    desk.exec(version, "insert into pversion(program,pVersion) values('Tovalin1',5),('Tovalin1',6)");
    start();
    EXPECT_EQ(desk.rows(version, "select program,pVersion from pversion order by program"),
              (QStringList{"Other|3", "Tovalin1|1"}));
}

TEST_F(StartUpTest, AStoreThatCannotBeOpenedEndsTheRunThere) {
    struct Case {
        const char* path;
        bool frameUp;
    };
    for (const Case& one : {Case{"C:\\A_Mendori\\Main\\Pversion_2026.mdb", true},
                            Case{"C:\\A_Mendori\\Main\\DbScore_1001.mdb", false},
                            Case{"C:\\A_Mendori\\Main\\dicword.mdb", false}}) {
        frame.hide();
        desk.session = core::Session();
        QFile::remove(desk.file(QLatin1String(one.path)));
        QString sentence;
        EXPECT_EQ(errorOf([&] { start(); }, &sentence), 3024);
        EXPECT_TRUE(sentence.contains(QLatin1String(one.path))) << sentence.toStdString();
        EXPECT_EQ(frame.isVisible(), one.frameUp) << one.path;
    }
}

TEST_F(StartUpTest, AnInstallWithoutTheFramesIconStartsAllTheSame) {
    context.applicationFolder = "H:\\Nowhere";
    EXPECT_TRUE(start());
    EXPECT_TRUE(frame.isVisible());
}

TEST_F(StartUpTest, FileExistsMeansALengthAboveZero) {
    EXPECT_EQ(core::FileExists(context, "D:\\A_Mendori\\ABCPicture\\Mendori.jpg"), 1);
    EXPECT_EQ(core::FileExists(context, "D:\\A_Mendori\\ABCPicture\\other.jpg"), 0);
    EXPECT_EQ(core::FileExists(context, "D:\\A_Mendori\\ABCPicture"), 0) << "a folder";
    write(marker("E"), {});
    EXPECT_EQ(core::FileExists(context, "E:\\A_Mendori\\ABCPicture\\Mendori.jpg"), 0);
}

TEST(Places, TheDrivesRootIsTheEnvironmentsElseTheSettingsElseTheUsersOwn) {
    support::FakeSettings settings;
    EXPECT_EQ(core::drivesRoot(settings), qEnvironmentVariable("XDG_DATA_HOME") + "/mendori");
    settings.values["Mendori/Platform/Root"] = "/srv/course";
    EXPECT_EQ(core::drivesRoot(settings), "/srv/course");
    qputenv("MENDORI_ROOT", "/srv/other");
    EXPECT_EQ(core::drivesRoot(settings), "/srv/other");
    qunsetenv("MENDORI_ROOT");
}

TEST(Places, TheApplicationFolderIsTheSettingsElseTheDriveThatHoldsTheCourse) {
    Desk desk;
    EXPECT_EQ(core::applicationFolder(desk.settings, desk.context().drives), "D:\\");
    QFile::rename(desk.file(support::courseStore), desk.root() + "/E/tovalin.mdb");
    EXPECT_EQ(core::applicationFolder(desk.settings, desk.context().drives), "E:\\");
    QFile::remove(desk.root() + "/E/tovalin.mdb");
    EXPECT_EQ(core::applicationFolder(desk.settings, desk.context().drives), "D:\\");
    desk.settings.values["Mendori/Platform/ApplicationFolder"] = "C:\\Program\\Tovalin1";
    EXPECT_EQ(core::applicationFolder(desk.settings, desk.context().drives), "C:\\Program\\Tovalin1");
}

TEST_F(StartUpTest, ARootThatIsNoFolderOrClosedIsToldBesideTheWarning) {
    const QString file = desk.root() + "/plain";
    write(file, "a file");
    const QString closed = desk.root() + "/closed";
    QDir().mkpath(closed);
    support::openToOthers(desk.root());
    QFile::setPermissions(closed, {});
    const support::Stranger stranger;
    struct Case {
        QString root;
        const char* told;
    };
    for (const Case& one : {Case{desk.root() + "/nowhere", "There is no folder '"},
                            Case{file, "is a file and no folder"}, Case{closed, "is closed to you"}}) {
        if (one.root == closed && QFileInfo(closed).isExecutable())
            continue;
        desk.boxes.shown.clear();
        const platform::Drives drives(one.root);
        const core::Context elsewhere{desk.session, drives,      desk.settings,
                                      desk.clock,   desk.random, desk.sound,
                                      desk.boxes,   navigator,   QStringLiteral("D:\\")};
        QString sentence;
        EXPECT_NE(errorOf([&] { core::StartUp(elsewhere, frame); }, &sentence), 0)
            << "there is no dictionary";
        ASSERT_EQ(desk.boxes.texts(), QStringList{"Please Insert USB Drive"});
        const QString advice = desk.boxes.shown[0].advice;
        EXPECT_TRUE(advice.contains(one.root) && advice.contains(one.told)) << advice.toStdString();
        EXPECT_TRUE(advice.contains("MENDORI_ROOT") && advice.contains("setup"));
    }
}

TEST_F(StartUpTest, WhyNobodyIsLoggedInIsToldWithTheSettingsFile) {
    desk.settings.values.clear();
    const QString file = platform::settingsPlace("Mendori");
    start();
    EXPECT_TRUE(desk.boxes.shown.back().advice.startsWith("'" + file + "' names no UserID"))
        << desk.boxes.shown.back().advice.toStdString();
    QDir().mkpath(QFileInfo(file).path());
    write(file, QByteArray("\xFF\xFE[\0", 4));
    start();
    EXPECT_TRUE(desk.boxes.shown.back().advice.startsWith("'" + file + "' cannot be read: ") &&
                desk.boxes.shown.back().advice.contains("UTF-16"))
        << desk.boxes.shown.back().advice.toStdString();
    QFile::remove(file);
    EXPECT_EQ(desk.boxes.lastText(), "Log In Required.");
}
