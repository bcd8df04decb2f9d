#include "platform/whole_file.h"

#include "tests/support/file_size_limit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Readers;
using platform::writeWhole;

namespace {

class WholeFile : public testing::Test {
   protected:
    QByteArray content() const {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("scores.csv"));
};

TEST_F(WholeFile, TakesThePlaceOfTheOlderOne) {
    EXPECT_EQ(writeWhole(file, "one"), QString());
    EXPECT_EQ(writeWhole(file, "two"), QString());
    EXPECT_EQ(content(), "two");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(WholeFile, LeavesTheOlderOneWhereTheDiskIsFullAndSaysWhy) {
    ASSERT_EQ(writeWhole(file, "one"), QString());
    {
        const support::FileSizeLimit limit(4096);
        EXPECT_EQ(writeWhole(file, QByteArray(100000, 'x')), QStringLiteral("File too large"));
    }
    EXPECT_EQ(content(), "one");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(WholeFile, SaysWhyAFolderTakesNone) {
    EXPECT_EQ(writeWhole(folder.path(), "one"), QStringLiteral("It is a folder."));
    EXPECT_FALSE(writeWhole(folder.filePath(QStringLiteral("no/such/folder/x")), "one").isEmpty());
}

TEST_F(WholeFile, IsReadByItsOwnerAloneWhereAsked) {
    ASSERT_EQ(writeWhole(file, "one"), QString());
    ASSERT_EQ(writeWhole(file, "two", Readers::OwnerAlone), QString());
    EXPECT_EQ(QFile::permissions(file) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther),
              QFile::Permissions());
}

TEST_F(WholeFile, NeverReplacesADevice) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), file));
    EXPECT_EQ(writeWhole(file, "one"), QStringLiteral("No space left on device"));
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/null"), file));
    EXPECT_EQ(writeWhole(file, "one"), QString());
    EXPECT_TRUE(QFileInfo(file).isSymLink());
    EXPECT_FALSE(QFileInfo(QStringLiteral("/dev/null")).isFile());
}

}  // namespace
