#include "platform/desktop/waiting.h"

#include <QCoreApplication>
#include <QPointer>

#include <deque>

namespace platform {

namespace {

struct Work {
    QPointer<QObject> context;
    std::function<void()> run;
};

int waits = 0;
int deafWaits = 0;
std::deque<Work> asked;

void runNext() {
    if (Waiting::anywhere() || asked.empty())
        return;
    const Work next = std::move(asked.front());
    asked.pop_front();
    if (next.context)
        next.run();
}

void callNext() {
    QMetaObject::invokeMethod(QCoreApplication::instance(), runNext, Qt::QueuedConnection);
}

}  // namespace

Waiting::Waiting(Input input) : input_(input) {
    ++waits;
    if (input_ == Input::Nothing)
        ++deafWaits;
}

Waiting::~Waiting() {
    if (input_ == Input::Nothing)
        --deafWaits;
    if (--waits > 0)
        return;
    for (std::size_t i = 0; i < asked.size(); ++i)
        callNext();
}

bool Waiting::anywhere() {
    return waits > 0;
}

bool Waiting::refusesInput() {
    return deafWaits > 0;
}

void later(QObject* context, std::function<void()> work) {
    asked.push_back({context, std::move(work)});
    callNext();
}

void runOrLater(QObject* context, const std::function<void()>& handler) {
    if (Waiting::anywhere())
        later(context, [handler] { run(handler); });
    else
        run(handler);
}

}  // namespace platform
