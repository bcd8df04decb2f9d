#pragma once

#include "core/context.h"

namespace course {

/// Copies the content of the step `recordNo` from the master stores into the working tables, each emptied
/// first. `courseFile` is the `tovalin.mdb` to work in: the application folder's, or the worksheets' copy.
void PrepareStepData(const core::Context& context, const QString& courseFile);
void PrepareStepData(const core::Context& context);

/// Draws a Final Quiz: its list of steps, and five questions of each step that has five or more. Sets
/// `finalItemTotal` and `finalItemNo`.
void PrepareFinalData(const core::Context& context, const QString& courseFile);
/// The application folder's `tovalin.mdb` is named here without a backslash in between, so it is found only
/// where the application folder is a drive's root.
void PrepareFinalData(const core::Context& context);

/// The same two for worksheets, which work in a copy of the store at a fixed place.
void PrepareStepDataForSheet(const core::Context& context);
void PrepareFinalDataForSheet(const core::Context& context);

}  // namespace course
