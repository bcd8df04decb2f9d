#pragma once

#include "tools/import/store.h"

namespace tools {

/// The proof of a store as lines of text: table, rows here and there, checksums here and there, verdict.
QString proofTable(const std::vector<TableProof>& tables);

}  // namespace tools
