#pragma once

namespace support {

/// Set once a test has seen the run end in a failure. The event in hand is then left where it stood, as the
/// program itself leaves it, and what the toolkit held for it is no leak of ours.
bool& runHasEnded();

}  // namespace support
