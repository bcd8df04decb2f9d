#include "app/screen_loop.h"

#include "platform/desktop/waiting.h"

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

core::Screen* ScreenLoop::findStanding(const QString& screen) const {
    const auto screens = standing();
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&](const core::Screen* one) { return one->objectName() == screen; });
    return found == screens.end() ? nullptr : *found;
}

void ScreenLoop::later(std::function<void()> work) {
    platform::later(this, [this, work = std::move(work)] {
        if (!ended_)
            work();
    });
}

void ScreenLoop::show(const QString& screen, const std::function<void()>& closed) {
    const auto maker = makers_.constFind(screen);
    if (maker == makers_.constEnd()) {
        if (closed)
            closed();
        return;
    }
    // A form stands once: what a second press asks for before the first has opened it is there already.
    if (core::Screen* already = findStanding(screen)) {
        if (closed)
            already->onUnload = [this, closed, gone = already->onUnload] {
                gone();
                later(closed);
            };
        already->raise();
        already->activateWindow();
        return;
    }
    core::Screen* form = (*maker)(*context_);
    standing_.erase(std::remove_if(standing_.begin(), standing_.end(),
                                   [](const auto& gone) { return !gone || gone->isUnloaded(); }),
                    standing_.end());
    standing_.emplace_back(form);
    form->onUnload = [this, closed] { screenGone(closed); };
    // The keyboard starts on the form itself, told before the window can become active: else it would start
    // on the first button, and on most screens a Space there ends the program.
    if (form->focusWidget() == nullptr)
        form->setFocus();
    form->show();
    form->raise();
    form->activateWindow();
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
