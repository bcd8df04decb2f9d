#include "platform/storage/store_wait.h"

#include "tests/support/store.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using platform::Database;
using support::errorOf;
using support::TemporaryStore;

namespace {

/// A widget that counts how often it is painted.
class Painted final : public QWidget {
   public:
    int count = 0;

   protected:
    void paintEvent(QPaintEvent*) override { ++count; }
};

/// A store that another program holds, and a screen that goes on being painted.
class StoreWaitTest : public testing::Test {
   protected:
    const TemporaryStore store{"create table words(word TEXT); insert into words values('pear')"};
    const Database database = store.open();
    SQLite::Database other{store.file().toStdString(), SQLite::OPEN_READWRITE};
    Painted screen;
    QTimer ticks;
    int seen = 0;
    int paintedAtFirst = 0;
    QString text;

    StoreWaitTest() {
        screen.show();
        support::settle();
    }
    /// Calls back with the box that tells of the wait once it stands and the screen was painted below it.
    void onBox(const std::function<void(QMessageBox&)>& act) {
        QObject::connect(&ticks, &QTimer::timeout, &screen, [this, act] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || box->objectName() != "storeWaitBox")
                return;
            if (seen++ == 0)
                paintedAtFirst = screen.count;
            screen.update();
            text = box->text();
            if (seen > 3 && screen.count > paintedAtFirst) {
                ticks.stop();
                act(*box);
            }
        });
        ticks.start(5);
    }
    void save() const {
        auto rows = database.openRecordset("Select * from words");
        rows.edit();
        rows.set("word", "plum");
        rows.update();
    }
    static bool boxStands() {
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "storeWaitBox" && window->isVisible())
                return true;
        return false;
    }
};

}  // namespace

TEST_F(StoreWaitTest, AHeldStoreIsWaitedForUnderABoxWhileTheScreenIsPainted) {
    other.exec("begin exclusive");
    onBox([this](QMessageBox&) { other.exec("commit"); });
    save();
    EXPECT_GT(seen, 3);
    EXPECT_TRUE(text.contains("'D:\\tovalin.mdb'")) << text.toStdString();
    EXPECT_FALSE(boxStands());
    EXPECT_EQ(store.rows("select word from words"), QStringList{"plum"});
}

TEST_F(StoreWaitTest, AStoreThatIsReadForEverIsWaitedForAtTheEndOfARunOfEditsToo) {
    platform::Transaction transaction(database);
    save();
    SQLite::Statement reading(other, "select word from words");
    ASSERT_TRUE(reading.executeStep());
    onBox([&](QMessageBox&) { reading.reset(); });
    transaction.commit();
    EXPECT_GT(seen, 3);
    EXPECT_FALSE(boxStands());
    EXPECT_EQ(store.rows("select word from words"), QStringList{"plum"});
}

TEST_F(StoreWaitTest, GivingUpIsToldWithTheStoreAndLeavesItUsable) {
    other.exec("begin immediate");
    onBox([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Cancel), Qt::LeftButton); });
    QString sentence;
    EXPECT_EQ(errorOf([&] { save(); }, &sentence), 3049);
    EXPECT_TRUE(sentence.startsWith("'D:\\tovalin.mdb' is held by another program."))
        << sentence.toStdString();
    EXPECT_FALSE(boxStands());
    other.exec("commit");
    save();
    EXPECT_EQ(store.rows("select word from words"), QStringList{"plum"});
}

TEST_F(StoreWaitTest, WhatATimerAsksForMeanwhileWaitsUnderTheSameBox) {
    other.exec("begin exclusive");
    bool alsoRead = false;
    QTimer::singleShot(0, &screen, [&] {
        EXPECT_EQ(database.openRecordset("Select * from words").text("word"), "pear");
        alsoRead = true;
    });
    int boxes = 0;
    onBox([&](QMessageBox&) {
        for (const QWidget* window : QApplication::topLevelWidgets())
            boxes += window->objectName() == "storeWaitBox" ? 1 : 0;
        other.exec("commit");
    });
    save();
    EXPECT_TRUE(alsoRead);
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(boxStands());
}
