#pragma once

#include "core/context.h"
#include "platform/desktop/form.h"

namespace core {

/// 1 when the file exists and has a length above 0, otherwise 0.
int FileExists(const Context& context, const QString& path);

/// The folder of the program's own files: the settings key ApplicationFolder, else the drive root that holds
/// the course.
QString applicationFolder(const platform::Settings& settings, const platform::Drives& drives);

/// The folder that plays the drives: the environment variable MENDORI_ROOT, else the settings key Root, else
/// a folder in the user's data directory.
QString drivesRoot(const platform::Settings& settings);

/// Sizes the frame to the screen and shows it.
void ShowMainFrame(const Context& context, platform::Frame& frame);

/// Starts the program: finds the media, opens the dictionary, reads who learns, opens the scores, shows the
/// frame, writes the version row and asks for the log-in panel. False when nobody is logged in and the
/// program must end. Throws where a store cannot be opened.
bool StartUp(const Context& context, platform::Frame& frame);

}  // namespace core
