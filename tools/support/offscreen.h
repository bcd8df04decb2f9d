#pragma once

#include <QSize>
#include <QString>

namespace tools {

/// Takes a desktop that is only in memory, with silent sound; what it needs lies in `folder`. To be called
/// before the application is made; a platform that the caller has chosen stays.
void useOffscreenDesktop(const QString& folder, QSize screen = QSize(1280, 1024));

}  // namespace tools
