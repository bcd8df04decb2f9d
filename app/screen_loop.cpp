#include "app/screen_loop.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace app {

ScreenLoop::ScreenLoop(ScreenMakers makers) : makers_(std::move(makers)) {}

void ScreenLoop::open(const QString& screen, std::function<void()> closed) {
    later([this, screen, closed = std::move(closed)] { show(screen, closed); });
}

void ScreenLoop::endProgram() {
    ended_ = true;
    QCoreApplication::exit(0);
}

std::vector<core::Screen*> ScreenLoop::standing() const {
    std::vector<core::Screen*> screens;
    for (const auto& screen : standing_)
        if (screen && !screen->isUnloaded())
            screens.push_back(screen);
    return screens;
}

core::Screen* ScreenLoop::top() const {
    const auto screens = standing();
    return screens.empty() ? nullptr : screens.back();
}

void ScreenLoop::later(std::function<void()> work) {
    QMetaObject::invokeMethod(
        this,
        [this, work = std::move(work)] {
            if (!ended_)
                work();
        },
        Qt::QueuedConnection);
}

void ScreenLoop::show(const QString& screen, const std::function<void()>& closed) {
    const auto maker = makers_.constFind(screen);
    if (maker == makers_.constEnd()) {
        if (closed)
            closed();
        return;
    }
    core::Screen* form = (*maker)(*context_);
    standing_.erase(std::remove_if(standing_.begin(), standing_.end(),
                                   [](const auto& gone) { return !gone || gone->isUnloaded(); }),
                    standing_.end());
    standing_.emplace_back(form);
    form->onUnload = [this, closed] { screenGone(closed); };
    form->show();
    form->raise();
    form->activateWindow();
    // The keyboard starts on the form itself, so that no button shows a focus mark before Tab was pressed.
    if (form->focusWidget() == nullptr)
        form->setFocus();
}

void ScreenLoop::screenGone(const std::function<void()>& closed) {
    if (closed)
        later(closed);
    // The screen below, if one still stands, takes the keyboard again.
    later([this] {
        if (core::Screen* below = top())
            below->activateWindow();
    });
}

}  // namespace app
