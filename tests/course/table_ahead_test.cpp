#include "course/table_ahead.h"

#include "tests/support/desk.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class TableAhead : public testing::Test {
   protected:
    support::Desk desk;
};

}  // namespace

TEST_F(TableAhead, ReadsWithoutATraceInTheSession) {
    desk.exec(support::courseStore, "INSERT INTO topic (topicno, Title) VALUES (1, '명사'), (2, NULL)");
    course::readTableAhead(desk.context());
    EXPECT_EQ(desk.session.topicNo, 0);
    EXPECT_FALSE(desk.session.scoreDb.isOpen());
}

TEST_F(TableAhead, LeavesAMissingPictureToTheTable) {
    QFile::remove(desk.root() + QStringLiteral("/D/interface"));
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr) << "the table tells it";
}

TEST_F(TableAhead, LeavesADamagedPictureToTheTable) {
    QFile::remove(desk.root() + QStringLiteral("/D/interface"));
    QDir(desk.root()).mkpath(QStringLiteral("D/interface"));
    QFile broken(desk.root() + QStringLiteral("/D/interface/table.jpg"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no picture at all");
    broken.close();
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr);
    EXPECT_TRUE(desk.failure().contains("481")) << desk.failure().toStdString();
}

TEST_F(TableAhead, LeavesADamagedStoreToTheTable) {
    QFile store(desk.file(support::courseStore));
    ASSERT_TRUE(store.open(QIODevice::ReadWrite));
    store.write(QByteArray(4096, 'x'));
    store.close();
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr);
    EXPECT_TRUE(desk.failure().contains("tovalin.mdb")) << desk.failure().toStdString();
}

TEST_F(TableAhead, LeavesAMissingTableOfUnitsToTheTable) {
    desk.exec(support::courseStore, "drop table topic");
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr);
    EXPECT_FALSE(desk.failure().isEmpty());
}

TEST_F(TableAhead, LeavesAMissingStoreToTheTable) {
    QFile::remove(desk.file(support::courseStore));
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr) << "the table tells it";
}
