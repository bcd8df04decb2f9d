#pragma once

#include <QWidget>

namespace vocabulary {

/// Hides a control at once and leaves a picture of it that fades where it stood. The picture takes no part in
/// anything; where animations are turned off there is none.
void fadeAway(QWidget& control);

/// Takes away the pictures that still fade on a form, so that none lies over what comes next in its place.
void endFades(QWidget& form);

}  // namespace vocabulary
