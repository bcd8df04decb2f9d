#include "core/turn.h"

#include "platform/desktop/message_box.h"

#include <QMessageBox>
#include <QTimer>

namespace core {

namespace {

// How often the other program is looked for, in milliseconds.
constexpr int lookInterval = 200;

}  // namespace

bool awaitTurn(platform::FileLock& lock, const QString& folder) {
    const QString file = folder + u'/' + turnFileName;
    if (lock.tryTake(file))
        return true;
    QMessageBox box(QMessageBox::Information, platform::defaultBoxTitle(),
                    QStringLiteral("다른 창에서 학습이 진행 중입니다. 그 창을 닫으면 여기에서 시작됩니다.\n\n"
                                   "The course is open in another window. It starts here when that one is "
                                   "closed."),
                    QMessageBox::Cancel);
    box.setObjectName(QStringLiteral("waitBox"));
    platform::styleBox(box);
    bool taken = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &box, [&] {
        taken = lock.tryTake(file);
        if (taken)
            box.accept();
    });
    look.start(lookInterval);
    box.exec();
    return taken;
}

}  // namespace core
