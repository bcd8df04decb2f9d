#pragma once

#include <QAccessible>
#include <QWidget>

namespace support {

/// A press as a screen reader sends it: it asks for no mouse, and minds no window in front.
inline void pressAssistively(QWidget& control) {
    if (auto* actions = QAccessible::queryAccessibleInterface(&control)->actionInterface())
        actions->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace support
