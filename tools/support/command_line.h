#pragma once

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

namespace tools {

/// Exit statuses of the course tool.
inline constexpr int exitFine = 0;
inline constexpr int exitFindings = 1;
inline constexpr int exitWrongCall = 2;

/// The arguments of one subcommand of `course`. Help goes to standard output, a wrong call to standard error.
class CommandLine {
   public:
    /// `name` as it is called, "course check".
    CommandLine(const QString& name, const QString& description);

    QCommandLineParser& parser() { return parser_; }
    /// The exit status where the call ends here, nothing where it goes on.
    std::optional<int> parse(const QStringList& arguments);
    int wrongCall(const QString& sentence) const;

   private:
    QString name_;
    QCommandLineParser parser_;
    QCommandLineOption help_;
};

/// Why a text cannot be a learner's student number, which names the file of the scores; empty where it can.
QString studentNumberProblem(const QString& number);

/// Why a text names no folder; empty where it may.
QString folderProblem(const QString& folder);

/// A folder beside the program: of a checkout whose builds lie in build/KIND/bin.
QString folderBesideProgram(const QString& relative);

/// The text tables of the starter course.
QString starterFolder();

/// The rendered pictures of the build that the program belongs to.
QString picturesFolder();

}  // namespace tools
