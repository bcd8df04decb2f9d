#include "core/turn.h"

#include "tests/support/desk.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/// Another program that works on the same stores, and what the learner sees meanwhile.
class TurnTest : public testing::Test {
   protected:
    TurnTest() {
        QObject::connect(&watch, &QTimer::timeout, &watch, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            told = box->text();
            watch.stop();
            onBox(*box);
        });
        watch.start(5);
    }
    bool await() { return core::awaitTurn(lock, folder.path()); }

    QTemporaryDir folder;
    platform::FileLock lock;
    platform::FileLock other;
    QTimer watch;
    QString told;
    std::function<void(QMessageBox&)> onBox;
};

}  // namespace

TEST_F(TurnTest, ComesAtOnceAndWithoutAWordWhereNobodyElseWorks) {
    EXPECT_TRUE(await());
    EXPECT_FALSE(other.tryTake(folder.filePath(core::turnFileName))) << "from now on others wait";
    EXPECT_EQ(told, QString());
}

TEST_F(TurnTest, ComesWhenTheOtherProgramEndsWhoseCourseABoxTellsOf) {
    auto holder = std::make_unique<platform::FileLock>();
    ASSERT_TRUE(holder->tryTake(folder.filePath(core::turnFileName)));
    onBox = [&](QMessageBox&) { holder.reset(); };
    EXPECT_TRUE(await());
    EXPECT_TRUE(told.contains("The course is open in another window.")) << told.toStdString();
}

TEST_F(TurnTest, DoesNotComeForALearnerWhoWouldRatherNotWait) {
    ASSERT_TRUE(other.tryTake(folder.filePath(core::turnFileName)));
    onBox = [](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); };
    EXPECT_FALSE(await());
}
