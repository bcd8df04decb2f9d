#pragma once

#include <QStringList>

#include <functional>

namespace tools {

/// Checks the install under a root folder and gives an exit status.
using InstallCheck = std::function<int(const QString& root)>;

/// `course import FROM [--root DIR] …`; `args` are those behind the word "import". Gives the exit status: 0
/// when everything came over whole, 1 when something did not, 2 for a wrong call. `check` runs on the result.
int runImport(const QStringList& args, const InstallCheck& check);
int runImport(const QStringList& args);

}  // namespace tools
