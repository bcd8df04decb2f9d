#pragma once

#include "tools/access/reader.h"

namespace tools {

/// Opens a genuine Access file. Reading a damaged one may end the process: see isolatedMaker.
std::unique_ptr<AccessReader> openJetFile(const QString& file, int codePage);

}  // namespace tools
