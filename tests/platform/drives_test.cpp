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
