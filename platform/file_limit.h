#pragma once

namespace platform {

/// A file that may not grow any more fails the write, which is told like any other failed write, instead of
/// ending the program on the spot.
void ignoreFileLimitSignal();

}  // namespace platform
