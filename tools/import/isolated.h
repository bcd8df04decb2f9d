#pragma once

#include "tools/access/reader.h"

namespace tools {

/// Readers that run each piece of work in a process of its own. A damaged file can then bring down or hang
/// nothing but that process, and the import says so and goes on. `patience` is how long a row may take; all
/// rows of a file may take twice that and a second for each megabyte.
ReaderMaker isolatedMaker(ReaderMaker maker, int patienceMs = 5000);

}  // namespace tools
