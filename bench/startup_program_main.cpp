// The program itself, ended at the moment when the course table has been painted with its rows.

#include "app/program.h"
#include "bench/ready_probe.h"
#include "platform/desktop/application.h"
#include "platform/desktop/look.h"
#include "platform/desktop/timer.h"

namespace {

class ReadyFilter final : public QObject {
   public:
    explicit ReadyFilter(app::Program& program) : program_(program) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("lblTitle(0)")) {
            const core::Screen* table = program_.screens().top();
            const auto* timer = table->findChild<platform::Timer*>(QStringLiteral("TimerGo"));
            if (timer != nullptr && !timer->enabled())
                QMetaObject::invokeMethod(
                    this, [] { reportReady(); }, Qt::QueuedConnection);
        }
        return false;
    }

   private:
    app::Program& program_;
};

}  // namespace

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    platform::setUpLook();
    app::Program program;
    ReadyFilter filter(program);
    application.installEventFilter(&filter);
    return program.start() ? platform::Application::exec() : 1;
}
