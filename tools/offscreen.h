#pragma once

namespace tools {

/// Takes a desktop that is only in memory, with a screen that every form fits on, and silent sound. To be
/// called before the application is made; a platform that the caller has chosen stays.
void useOffscreenDesktop();

}  // namespace tools
