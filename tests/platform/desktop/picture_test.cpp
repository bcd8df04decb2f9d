#include "platform/desktop/picture.h"

#include "platform/desktop/cursor.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/store.h"

#include <QFile>
#include <QImage>
#include <QPixmap>

using platform::loadPicture;
using support::errorOf;

namespace {

class PictureTest : public testing::Test {
   protected:
    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("next1.jpg"));
    const QString shown = QStringLiteral("D:\\button\\next1.jpg");

    static void paint(const QString& path, int size, const QColor& colour) {
        QImage image(size, size, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(path, "JPG", 100));
    }
    static void write(const QString& path, const QByteArray& bytes) {
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
};

}  // namespace

TEST_F(PictureTest, AMissingPictureIsAnErrorThatNamesIt) {
    QString sentence;
    EXPECT_EQ(errorOf([&] { loadPicture(file, shown, 1.0); }, &sentence), 53);
    EXPECT_TRUE(sentence.contains(shown));
}

TEST_F(PictureTest, AFileThatIsNoPictureIsAnErrorThatNamesIt) {
    write(file, "no picture at all");
    QString sentence;
    EXPECT_EQ(errorOf([&] { loadPicture(file, shown, 1.0); }, &sentence), 481);
    EXPECT_TRUE(sentence.contains(shown));
}

TEST_F(PictureTest, APictureThatChangesOnDiskIsLoadedAnew) {
    paint(file, 10, Qt::red);
    EXPECT_EQ(loadPicture(file, shown, 1.0).size(), QSize(10, 10));
    paint(file, 20, Qt::red);
    QFile touched(file);
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    touched.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
    touched.close();
    EXPECT_EQ(loadPicture(file, shown, 1.0).size(), QSize(20, 20));
}

TEST_F(PictureTest, ADenseSurfaceTakesTheTwinOfTwiceTheSizeWhereOneLiesBeside) {
    paint(file, 10, Qt::red);
    EXPECT_EQ(loadPicture(file, shown, 2.0).size(), QSize(10, 10));
    paint(folder.filePath("next1@2x.jpg"), 20, Qt::red);
    const QPixmap dense = loadPicture(file, shown, 2.0);
    EXPECT_EQ(dense.size(), QSize(20, 20));
    EXPECT_EQ(dense.devicePixelRatio(), 2.0);
    EXPECT_EQ(loadPicture(file, shown, 1.0).size(), QSize(10, 10));
}

TEST_F(PictureTest, ACursorFileKeepsItsPictureAndItsHotSpot) {
    const QString cursor = folder.filePath("harrow.cur");
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(5, 6, Qt::red);
    platform::writeCursor(cursor, image, QPoint(13, 2));
    const QCursor loaded = platform::loadCursor(cursor, "D:\\harrow.cur");
    EXPECT_EQ(loaded.hotSpot(), QPoint(13, 2));
    EXPECT_EQ(loaded.pixmap().toImage().pixelColor(5, 6), QColor(Qt::red));
    EXPECT_EQ(loaded.pixmap().toImage().pixelColor(0, 0).alpha(), 0);
}

TEST_F(PictureTest, ABrokenOrMissingCursorIsAnError) {
    const QString cursor = folder.filePath("harrow.cur");
    EXPECT_EQ(errorOf([&] { platform::loadCursor(cursor, "D:\\harrow.cur"); }), 53);
    write(cursor, "short");
    EXPECT_EQ(errorOf([&] { platform::loadCursor(cursor, "D:\\harrow.cur"); }), 481);
    write(cursor, QByteArray(200, 'x'));
    EXPECT_EQ(errorOf([&] { platform::loadCursor(cursor, "D:\\harrow.cur"); }), 481);
}

TEST(Hourglass, IsTheCursorForAsLongAsItLives) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    {
        const platform::Hourglass outer;
        {
            const platform::Hourglass inner;
            ASSERT_NE(QApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        }
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PictureTest, APictureThatWasCutOffIsAnErrorThatNamesIt) {
    paint(file, 200, Qt::blue);
    QFile picture(file);
    ASSERT_TRUE(picture.resize(picture.size() - 200));
    QString sentence;
    EXPECT_EQ(errorOf([&] { loadPicture(file, shown, 1.0); }, &sentence), 481);
    EXPECT_TRUE(sentence.contains(shown));
}

TEST_F(PictureTest, SomethingBehindAPictureDoesNoHarm) {
    paint(file, 20, Qt::blue);
    QFile picture(file);
    ASSERT_TRUE(picture.open(QIODevice::Append));
    picture.write(QByteArray(10000, 'x'));
    picture.close();
    EXPECT_EQ(errorOf([&] { loadPicture(file, shown, 1.0); }), 0);
}

TEST_F(PictureTest, ACursorThatCannotBeWrittenIsAnErrorThatNamesIt) {
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::red);
    const QString cursor = folder.filePath("nowhere/harrow.cur");
    QString sentence;
    EXPECT_EQ(errorOf([&] { platform::writeCursor(cursor, image, QPoint(1, 2)); }, &sentence), 53);
    EXPECT_TRUE(sentence.contains(cursor)) << sentence.toStdString();
}

TEST_F(PictureTest, ACursorThatTheDiskHasNoRoomForLeavesTheOlderOne) {
    const QString cursor = folder.filePath("harrow.cur");
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::red);
    platform::writeCursor(cursor, image, QPoint(13, 2));
    {
        const support::FileSizeLimit full(10);
        EXPECT_EQ(errorOf([&] { platform::writeCursor(cursor, image, QPoint(1, 1)); }), 53);
    }
    EXPECT_EQ(platform::loadCursor(cursor, "D:\\harrow.cur").hotSpot(), QPoint(13, 2));
}

TEST_F(PictureTest, ALargePictureThatWasReadAheadIsNotDecodedAgain) {
    QImage noise(400, 400, QImage::Format_RGB32);
    for (unsigned i = 0; i < 400 * 400; ++i)
        noise.setPixel(static_cast<int>(i % 400), static_cast<int>(i / 400),
                       qRgb(static_cast<int>(i * 7919U % 251), static_cast<int>(i * 104729U % 241),
                            static_cast<int>(i * 31U % 239)));
    const QString dense = folder.filePath("next1@2x.jpg");
    paint(file, 10, Qt::red);
    ASSERT_TRUE(noise.save(dense, "JPG", 100));
    ASSERT_GT(QFileInfo(dense).size(), 64 * 1024);
    platform::loadPictureAhead(file, shown, 2.0);
    const QDateTime changed = QFileInfo(dense).lastModified();
    write(dense, QByteArray(QFileInfo(dense).size(), 'x'));
    QFile touched(dense);
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    touched.setFileTime(changed, QFileDevice::FileModificationTime);
    touched.close();
    EXPECT_EQ(loadPicture(file, shown, 2.0).size(), QSize(400, 400));
    EXPECT_EQ(errorOf([&] { loadPicture(file, shown, 2.0); }), 481) << "it is not kept for longer";
}
