#pragma once

#include "core/context.h"

namespace course {

/// Draws a whole number from 1 to `count`, the generator being reseeded from the clock first.
int drawNumber(const core::Context& context, int count);

/// Gives the rows of a set a random order: each in turn draws until it hits a number from 1 to `count` that
/// no row holds yet, and keeps it in `field`. Rows hold 0 beforehand. `scope` goes in front of the search for
/// a number ("topicno=1 and recordno=2 and "). The set ends past its last row.
void shuffleRows(const core::Context& context, platform::Recordset& rows, const QString& field, int count,
                 const QString& scope = {});

}  // namespace course
