#include "tools/play/command.h"

#include "platform/desktop/look.h"
#include "tools/coursefiles/course.h"
#include "tools/play/walk.h"
#include "tools/setup/install.h"
#include "tools/support/command_line.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>

namespace tools {

using play::Manner;
using play::PlayResult;

namespace {

const QCommandLineOption stepsOption(QStringLiteral("steps"),
                                     QStringLiteral("Play these steps alone, as 7 or 1-20."),
                                     QStringLiteral("range"));
const QCommandLineOption runOption(
    QStringLiteral("run"),
    QStringLiteral("Play one run alone: 'right' with right answers, 'wrong' with a wrong one first."),
    QStringLiteral("run"));
const QCommandLineOption picturesOption(QStringLiteral("pictures"),
                                        QStringLiteral("Folder with the rendered pictures."),
                                        QStringLiteral("folder"));

struct StepRange {
    int first = 1;
    int last = 32767;
    bool isValid = true;
};

StepRange parseRange(const QString& text) {
    if (text.isEmpty())
        return {};
    const QStringList parts = text.split(u'-');
    bool firstGood = false;
    bool lastGood = false;
    const StepRange range{parts.first().toInt(&firstGood), parts.last().toInt(&lastGood)};
    return {range.first, range.last, parts.size() <= 2 && firstGood && lastGood && range.first <= range.last};
}

QString padded(const QString& text, int columns) {
    return text + QString(qMax(0, columns - check::columnsOf(text)), u' ');
}

void print(const QString& line) {
    std::fputs(line.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

void tell(const PlayResult& result) {
    const QString title = QStringLiteral("%1 %2").arg(result.step.title).arg(result.step.page);
    QString line = QStringLiteral("%1  %2 %3")
                       .arg(result.step.record, 5)
                       .arg(padded(title, 26), padded(result.step.form, 14));
    if (!result.trouble.isEmpty())
        line += QStringLiteral("stopped: ") + result.trouble;
    else if (result.first != result.score)
        line += QStringLiteral("%1, then %2").arg(result.first, result.score);
    else
        line += result.score;
    if (result.trouble.isEmpty() && result.words != QStringLiteral("N/A") && !result.words.isEmpty())
        line += QStringLiteral("  (words %1)").arg(result.words);
    print(line + u'\n');
}

/// Plays one run over an install of its own; the number of steps that did not end with 100.
int playRun(const InstallPlan& course, Manner manner, const StepRange& range) {
    QElapsedTimer timer;
    timer.start();
    const QTemporaryDir folder;
    InstallPlan plan = course;
    plan.root = folder.filePath(QStringLiteral("install"));
    makeInstall(plan);
    print(manner == Manner::Right ? QStringLiteral("With right answers:\n")
                                  : QStringLiteral("With a wrong answer first:\n"));
    const auto results = play::playCourse(
        plan.root, manner, [&](int record) { return record >= range.first && record <= range.last; }, tell);
    if (results.empty())
        throw std::runtime_error(QStringLiteral("no step of the course has a number of %1 to %2.")
                                     .arg(range.first)
                                     .arg(range.last)
                                     .toStdString());
    int imperfect = 0;
    for (const PlayResult& result : results)
        imperfect += result.isPerfect() ? 0 : 1;
    print(QStringLiteral("%1 steps, %2 below 100 (%3 s)\n")
              .arg(results.size())
              .arg(imperfect)
              .arg(static_cast<double>(timer.elapsed()) / 1000.0, 0, 'f', 1));
    return imperfect;
}

}  // namespace

int runPlay(const QStringList& arguments) {
    CommandLine line(
        QStringLiteral("course play"),
        QStringLiteral(
            "Plays every step of a course through the real screens, without a desktop or a sound, over an "
            "install of its own: once with right answers, once with a wrong one first. Ends with 0 when "
            "every step ended with 100."));
    QCommandLineParser& call = line.parser();
    call.addOptions({stepsOption, runOption, picturesOption});
    call.addPositionalArgument(QStringLiteral("folder"),
                               QStringLiteral("The course's text tables; the starter course without it."),
                               QStringLiteral("[folder]"));
    if (const auto status = line.parse(arguments))
        return *status;
    const StepRange range = parseRange(call.value(stepsOption));
    const QString run = call.value(runOption);
    if (!range.isValid || call.positionalArguments().size() > 1)
        return line.wrongCall(QStringLiteral("it wants one course, and steps as 7 or 1-20."));
    if (!run.isEmpty() && run != QStringLiteral("right") && run != QStringLiteral("wrong"))
        return line.wrongCall(QStringLiteral("there is no run '%1'.").arg(run));
    InstallPlan plan;
    plan.courseFolder = call.positionalArguments().value(0, starterFolder());
    plan.pictureFolder = call.isSet(picturesOption) ? call.value(picturesOption)
                                                    : folderBesideProgram(QStringLiteral("../pictures"));
    plan.userId = QStringLiteral("1001");
    plan.speakWords = false;
    if (!QFileInfo(plan.courseFolder).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(plan.courseFolder));
    platform::setUpLook();
    try {
        int imperfect = 0;
        if (run != QStringLiteral("wrong"))
            imperfect += playRun(plan, Manner::Right, range);
        if (run != QStringLiteral("right"))
            imperfect += playRun(plan, Manner::WrongFirst, range);
        return imperfect == 0 ? exitFine : exitFindings;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "course play: %s\n", failure.what());
        return exitFindings;
    }
}

}  // namespace tools
