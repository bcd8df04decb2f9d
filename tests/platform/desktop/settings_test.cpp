#include "platform/desktop/settings.h"

#include "platform/desktop/ini_file.h"
#include "platform/error.h"
#include "tests/support/desk.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

namespace {

const QString general = QStringLiteral("General Information");

/// A settings store of an application's own for each test.
class SettingsTest : public testing::Test {
   protected:
    const QString application =
        QString::fromLatin1(testing::UnitTest::GetInstance()->current_test_info()->name());
    platform::UserSettings settings;

    void byHand(const char* text) const {
        const QString file = platform::settingsPlace(application);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text);
    }
    QString content() const {
        QFile in(platform::settingsPlace(application));
        return in.open(QIODevice::ReadOnly) ? QString::fromUtf8(in.readAll()) : QString();
    }
    QString read(const char* key, const QString& section = general) const {
        return settings.read(application, section, QString::fromUtf8(key), QStringLiteral("-"));
    }
};

}  // namespace

TEST_F(SettingsTest, AMissingStoreSectionOrKeyGivesTheFallback) {
    EXPECT_EQ(read("UserID"), "-");
    byHand("[Platform]\nUserID=7\n");
    EXPECT_EQ(read("UserID"), "-");
    byHand("[General Information]\nName=Kim\n");
    EXPECT_EQ(read("UserID"), "-");
}

TEST_F(SettingsTest, AStoreWrittenByHandIsReadAsItWasMeant) {
    byHand(
        "; the learner\r\n"
        "[General Information]\r\n"
        "UserID = 1001\r\n"
        "Name=김하늘, 3반,둘째 줄\r\n"
        "Teacher=\r\n"
        "\r\n"
        "[Platform]\r\n"
        "ApplicationFolder=D:\\\r\n"
        "Root=/home/learner/my course\r\n");
    EXPECT_EQ(read("UserID"), "1001");
    EXPECT_EQ(read("Name"), "김하늘, 3반,둘째 줄");
    EXPECT_EQ(read("Teacher"), "");
    EXPECT_EQ(read("ApplicationFolder", "Platform"), "D:\\");
    EXPECT_EQ(read("Root", "Platform"), "/home/learner/my course");
}

TEST_F(SettingsTest, NamesAreFoundInAnyCaseAndWithEscapedBlanks) {
    byHand("[general%20information]\nuserid=1002\n");
    EXPECT_EQ(read("UserID"), "1002");
}

TEST_F(SettingsTest, AByteOrderMarkInFrontIsNoPartOfTheFirstSection) {
    byHand("\xEF\xBB\xBF[General Information]\nUserID=1003\n");
    EXPECT_EQ(read("UserID"), "1003");
}

TEST_F(SettingsTest, WhatIsWrittenIsReadBack) {
    for (const char* text :
         {"1001", "", "Kim, Haneul", "김 하늘", "D:\\", "C:\\new\\table", "say \"hi\"", "a;b=c", " x "}) {
        settings.write(application, general, "Name", QString::fromUtf8(text));
        EXPECT_EQ(read("Name"), text);
    }
}

TEST_F(SettingsTest, AWriteLeavesEverythingElseAsItWas) {
    byHand("; by hand\n[General Information]\nName=김하늘, 3반\n\n[Platform]\nApplicationFolder=D:\\\n");
    settings.write(application, general, "UserID", "1001");
    settings.write(application, general, "Name", "이바다");
    settings.write(application, "Other", "Key", "1");
    EXPECT_EQ(
        content(),
        "; by hand\n[General "
        "Information]\nName=이바다\nUserID=1001\n\n[Platform]\nApplicationFolder=D:\\\n[Other]\nKey=1\n");
}

TEST_F(SettingsTest, AgreesWithTheToolkitsOwnReaderAndWriter) {
    const QString file = platform::settingsPlace(application);
    {
        QSettings other(file, QSettings::IniFormat);
        other.setValue("General Information/UserID", "1004");
        other.setValue("General Information/Name", "김하늘, 3반");
        other.setValue("Platform/ApplicationFolder", "D:\\Course");
    }
    EXPECT_EQ(read("UserID"), "1004");
    EXPECT_EQ(read("Name"), "김하늘, 3반");
    EXPECT_EQ(read("ApplicationFolder", "Platform"), "D:\\Course");
    settings.write(application, general, "Name", "Kim, Haneul");
    settings.write(application, "Platform", "ApplicationFolder", "E:\\");
    const QSettings other(file, QSettings::IniFormat);
    EXPECT_EQ(other.value("General Information/Name").toString(), "Kim, Haneul");
    EXPECT_EQ(other.value("Platform/ApplicationFolder").toString(), "E:\\");
}

TEST(SettingsPlace, IsAFileNamedAfterTheApplicationInTheUsersConfiguration) {
    EXPECT_EQ(platform::settingsPlace("Mendori"), qEnvironmentVariable("XDG_CONFIG_HOME") + "/Mendori.ini");
}

TEST_F(SettingsTest, WhatAnotherProgramWroteInAnotherEncodingIsKeptByteByByte) {
    byHand("[Other]\nTown=\xB0\xA1\n[General Information]\nUserID=7\n");
    settings.write(application, general, "UserID", "8");
    QFile in(platform::settingsPlace(application));
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    EXPECT_EQ(in.readAll(), "[Other]\nTown=\xB0\xA1\n[General Information]\nUserID=8\n");
}

TEST_F(SettingsTest, NobodyElseReadsWhoLearnsHere) {
    byHand("[Platform]\nRoot=/somewhere\n");
    settings.write(application, general, QStringLiteral("UserID"), QStringLiteral("1001"));
    const QFile::Permissions others =
        QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(platform::settingsPlace(application)) & others, QFile::Permissions());
}

TEST_F(SettingsTest, AWriteKeepsLineEndsAndTheByteOrderMark) {
    byHand("\xEF\xBB\xBF[General Information]\r\nUserID=7\r\n\r\n[Platform]\r\nRoot=/course");
    settings.write(application, general, "UserID", "8");
    settings.write(application, "Platform", "ApplicationFolder", "D:\\");
    settings.write(application, general, "Name", "Kim");
    QFile in(platform::settingsPlace(application));
    ASSERT_TRUE(in.open(QIODevice::ReadOnly));
    EXPECT_EQ(
        in.readAll().toStdString(),
        "\xEF\xBB\xBF[General Information]\r\nUserID=8\r\nName=Kim\r\n\r\n[Platform]\r\nRoot=/course\r\n"
        "ApplicationFolder=\"D:\\\\\"\r\n")
        << "a last line without an end gets one";
}

TEST_F(SettingsTest, AStoreThatCannotBeReadIsToldAndNotWrittenOver) {
    EXPECT_EQ(platform::settingsTrouble(application), "") << "there is none yet";
    byHand("");
    EXPECT_EQ(platform::settingsTrouble(application), "");
    const QByteArray wide("\xFF\xFE[\0G\0", 6);
    const QString file = platform::settingsPlace(application);
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(wide);
    out.close();
    EXPECT_TRUE(platform::settingsTrouble(application).contains("UTF-16"));
    EXPECT_EQ(read("UserID"), "-");
    try {
        settings.write(application, general, "UserID", "8");
        ADD_FAILURE() << "it was written over";
    } catch (const platform::RuntimeError& error) {
        EXPECT_TRUE(error.sentence().contains(file) && error.sentence().contains("UTF-16"));
    }
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    EXPECT_EQ(out.readAll(), wide);
    out.remove();
    QDir().mkpath(file);
    EXPECT_EQ(platform::settingsTrouble(application), "it is a folder");
    EXPECT_TRUE(QDir().rmdir(file));
}
