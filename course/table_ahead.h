#pragma once

#include "core/context.h"

namespace course {

/// Gets the course table's picture and the letters of its units ready, in time that nobody else wants, so
/// that it opens at once. What is missing or damaged is left for the table itself to tell.
void readTableAhead(const core::Context& context);

}  // namespace course
