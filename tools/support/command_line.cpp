#include "tools/support/command_line.h"

#include "platform/file_limit.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdio>

namespace tools {

CommandLine::CommandLine(const QString& name, const QString& description)
    : name_(name),
      help_({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Tell the options and end.")) {
    parser_.setApplicationDescription(description);
    // The parser's own option would bring another one along for options that no tool here has.
    parser_.addOption(help_);
    platform::ignoreFileLimitSignal();
}

std::optional<int> CommandLine::parse(const QStringList& arguments) {
    if (!parser_.parse(QStringList{name_} + arguments))
        return wrongCall(parser_.errorText());
    if (!parser_.isSet(help_))
        return {};
    QString text = parser_.helpText();
    // The parser names the program alone.
    const auto lineEnd = text.indexOf(u'\n');
    const auto options = text.indexOf(QStringLiteral(" [options]"));
    if (options >= 0 && options < lineEnd)
        text.replace(0, options, QStringLiteral("Usage: ") + name_);
    std::fputs(text.toUtf8().constData(), stdout);
    return exitFine;
}

int CommandLine::wrongCall(const QString& sentence) const {
    std::fprintf(stderr, "%s: %s\n%s --help tells how it is called.\n", qUtf8Printable(name_),
                 qUtf8Printable(sentence), qUtf8Printable(name_));
    return exitWrongCall;
}

QString studentNumberProblem(const QString& number) {
    constexpr qsizetype longest = 60;
    static const QString signs = QStringLiteral("/\\:*?\"'<>|");
    if (number.trimmed().isEmpty())
        return QStringLiteral("a student number cannot be empty.");
    if (number.size() > longest)
        return QStringLiteral("a student number has %1 letters and digits at most.").arg(longest);
    const bool plain = std::all_of(number.begin(), number.end(),
                                   [](QChar letter) { return letter.isPrint() && !signs.contains(letter); });
    QString shown = number;
    for (QChar& letter : shown)
        if (!letter.isPrint())
            letter = u'?';
    return plain && number == number.trimmed()
               ? QString()
               : QStringLiteral("a student number holds letters and digits, not '%1'.").arg(shown);
}

QString folderProblem(const QString& folder) {
    return folder.trimmed().isEmpty() ? QStringLiteral("a folder needs a name, and the one given is empty.")
                                      : QString();
}

QString folderBesideProgram(const QString& relative) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + relative);
}

QString starterFolder() {
    return folderBesideProgram(QStringLiteral("../../../starter"));
}

QString picturesFolder() {
    return folderBesideProgram(QStringLiteral("../pictures"));
}

}  // namespace tools
