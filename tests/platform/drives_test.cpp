#include "platform/drives.h"

#include "tests/support/desk.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using platform::Drives;

namespace {

class DrivesTest : public testing::Test {
   protected:
    QTemporaryDir folder;
    Drives drives{folder.path()};

    void put(const char* file, const QByteArray& bytes = "x") const {
        const QString path = folder.filePath(QString::fromUtf8(file));
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    QString inside(const char* path) const { return folder.filePath(QString::fromUtf8(path)); }
};

}  // namespace

TEST_F(DrivesTest, ADriveLetterIsAFolderOfTheRoot) {
    put("C/A_Mendori/Main/dicword.mdb");
    EXPECT_EQ(drives.resolve("C:\\A_Mendori\\Main\\dicword.mdb"), inside("C/A_Mendori/Main/dicword.mdb"));
    EXPECT_EQ(drives.resolve("c:\\A_Mendori\\Main\\dicword.mdb"), inside("C/A_Mendori/Main/dicword.mdb"));
    EXPECT_EQ(drives.resolve("C:/A_Mendori/Main/dicword.mdb"), inside("C/A_Mendori/Main/dicword.mdb"));
}

TEST_F(DrivesTest, NamesAreFoundWithoutRegardToCaseWhenTheExactOneIsAbsent) {
    put("D/A_Mendori/ABCSound/Apple.WAV");
    EXPECT_EQ(drives.resolve("D:\\a_mendori\\abcsound\\apple.wav"), inside("D/A_Mendori/ABCSound/Apple.WAV"));
    put("D/A_Mendori/ABCSound/apple.wav");
    EXPECT_EQ(drives.resolve("D:\\A_Mendori\\ABCSound\\apple.wav"), inside("D/A_Mendori/ABCSound/apple.wav"));
}

TEST_F(DrivesTest, DoubledSeparatorsCountOnce) {
    put("D/button/next1.jpg");
    EXPECT_EQ(drives.resolve("D:\\\\button\\next1.jpg"), inside("D/button/next1.jpg"));
    EXPECT_EQ(drives.resolve("D:\\\\BUTTON\\\\Next1.jpg"), inside("D/button/next1.jpg"));
}

TEST_F(DrivesTest, APathWithoutALetterStartsAtTheRootOfC) {
    put("C/A_Mendori/ABCSound/cat.wav");
    EXPECT_EQ(drives.resolve("\\A_Mendori\\ABCSound\\cat.wav"), inside("C/A_Mendori/ABCSound/cat.wav"));
}

TEST_F(DrivesTest, WhatDoesNotExistKeepsItsSpelling) {
    put("D/button/next1.jpg");
    EXPECT_EQ(drives.resolve("D:\\Button\\Missing.JPG"), inside("D/button/Missing.JPG"));
    EXPECT_EQ(drives.fileLength("D:\\Button\\Missing.JPG"), 0);
}

TEST_F(DrivesTest, TellsLengthsOfFilesOnly) {
    put("E/empty.jpg", {});
    put("E/four.jpg", "1234");
    EXPECT_EQ(drives.fileLength("E:\\empty.jpg"), 0);
    EXPECT_EQ(drives.fileLength("E:\\four.jpg"), 4);
    EXPECT_EQ(drives.fileLength("E:\\"), 0) << "a folder";
    EXPECT_EQ(drives.fileLength("H:\\four.jpg"), 0) << "a drive that is not there";
}

TEST(Drives, WithoutARootPathsMeanWhatTheySay) {
    EXPECT_EQ(Drives(QString()).resolve("/tmp/some file.mdb"), "/tmp/some file.mdb");
}

TEST_F(DrivesTest, NoPathLeadsOutOfItsDriveWhateverItIsMadeOf) {
    put("D/inside.txt");
    const QString climb = QStringLiteral("..\\..\\..\\..\\..\\..\\..\\..");
    const std::vector<std::pair<QString, const char*>> hostile{
        {"D:\\..\\..\\outside.txt", "D/outside.txt"},
        {"D:\\a\\..\\..\\b\\..\\..\\..\\outside.txt", "D/outside.txt"},
        {"D:..\\outside.txt", "D/outside.txt"},
        {"D:/../../outside.txt", "D/outside.txt"},
        {"D:\\" + climb + folder.path() + "\\outside.txt", nullptr},
        {"D:\\" + climb + "\\etc\\passwd", "D/etc/passwd"},
        {"D:\\.\\.\\inside.txt", "D/inside.txt"},
        {"D:\\..", "D"},
        {"D:\\...\\inside.txt", "D/.../inside.txt"},
        {"..\\..\\outside.txt", "C/outside.txt"},
        {"/etc/passwd", "C/etc/passwd"},
        {"\\\\server\\share\\x", "C/server/share/x"},
        {"..:\\x", "C/..:/x"},
        {"/:\\..\\x", "C/x"},
        {"D:\\C:\\..\\..\\..\\x", "D/x"},
        {"한:\\x", "C/한:/x"},
        {QStringLiteral("D:\\button\\") + QChar(QChar::Null) + "x", "D/button/\uFFFDx"},
        {"", "C"},
    };
    for (const auto& [path, expected] : hostile) {
        const QString file = drives.resolve(path);
        EXPECT_TRUE(file.startsWith(folder.path() + '/')) << path.toStdString();
        EXPECT_EQ(QDir::cleanPath(file), file) << path.toStdString();
        if (expected != nullptr) {
            EXPECT_EQ(file, folder.filePath(QString::fromUtf8(expected))) << path.toStdString();
        }
    }
}

TEST_F(DrivesTest, ALinkThatLeadsOutOfItsDriveIsTold) {
    put("D/button/next1.jpg");
    put("elsewhere/medium/video.wmv");
    ASSERT_TRUE(QFile::link(inside("elsewhere"), inside("D/out")));
    ASSERT_TRUE(QFile::link(inside("D/button"), inside("D/in")));
    ASSERT_TRUE(QFile::link(inside("elsewhere/medium"), inside("E")));
    EXPECT_FALSE(drives.staysOnItsDrive("D:\\out\\new.txt"));
    EXPECT_FALSE(drives.staysOnItsDrive("D:\\out\\a\\b\\new.txt"));
    EXPECT_FALSE(drives.staysOnItsDrive("D:\\out"));
    EXPECT_TRUE(drives.staysOnItsDrive("D:\\in\\next1.jpg"));
    EXPECT_TRUE(drives.staysOnItsDrive("D:\\button\\new.txt"));
    EXPECT_TRUE(drives.staysOnItsDrive("E:\\video.wmv")) << "a drive may lie elsewhere";
    EXPECT_TRUE(drives.staysOnItsDrive("E:\\new\\video.wmv"));
    EXPECT_TRUE(drives.staysOnItsDrive("F:\\not\\there\\yet.txt"));
}
