#pragma once

#include <QStringList>

namespace tools {

/// `course export-scores [--root DIR] [--student ID] [--csv FILE] [--pdf FILE]`; `args` are those behind the
/// word "export-scores". Needs a QApplication for the page. Gives the exit status: 0, 1 where something
/// could not be read or written, 2 for a wrong call.
int runExportScores(const QStringList& args);

}  // namespace tools
