#include "course/table_ahead.h"

#include "tests/support/desk.h"

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

TEST_F(TableAhead, LeavesAMissingStoreToTheTable) {
    QFile::remove(desk.file(support::courseStore));
    EXPECT_NO_THROW(course::readTableAhead(desk.context()));
    EXPECT_EQ(desk.open(QStringLiteral("frmTable")), nullptr) << "the table tells it";
}
