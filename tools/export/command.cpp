#include "tools/export/command.h"

#include "core/startup.h"
#include "platform/desktop/look.h"
#include "platform/desktop/settings.h"
#include "platform/reports/pdf_blanks.h"
#include "platform/whole_file.h"
#include "tools/export/page.h"
#include "tools/export/scores.h"
#include "tools/support/command_line.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tools {

namespace {

constexpr int resolution = 300;

const QCommandLineOption rootOption(QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                                    QStringLiteral("folder"));
const QCommandLineOption studentOption(QStringLiteral("student"),
                                       QStringLiteral("Student number; all learners without it."),
                                       QStringLiteral("number"));
const QCommandLineOption csvOption(QStringLiteral("csv"),
                                   QStringLiteral("Write the table to this file; - for the terminal."),
                                   QStringLiteral("file"));
const QCommandLineOption pdfOption(QStringLiteral("pdf"),
                                   QStringLiteral("Write the printable pages to this file."),
                                   QStringLiteral("file"));

/// Why a table or page cannot be written, empty when it is.
QString writeCsv(const QString& file, const QByteArray& csv) {
    if (file != QStringLiteral("-"))
        return platform::writeWhole(file, csv);
    const auto size = static_cast<std::size_t>(csv.size());
    const bool whole = std::fwrite(csv.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return whole ? QString() : QString::fromLocal8Bit(std::strerror(errno));
}

QString writePdf(const QString& file, const std::vector<LearnerScores>& learners) {
    // The writer tells of no failure of its device, so that it gets one that has none.
    QBuffer pages;
    pages.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pages);
        writer.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        writer.setResolution(resolution);
        writer.setTitle(QStringLiteral("Scores"));
        if (printScores(writer, learners) == 0)
            return QStringLiteral("no page could be made");
    }
    return platform::writeWhole(file, platform::withBlanks(pages.data()));
}

/// "scores.csv cannot be written: No space left on device."
void tellFailure(QStringList& problems, const QString& file, const QString& reason) {
    if (!reason.isEmpty())
        problems.append(QStringLiteral("%1 cannot be written: %2%3")
                            .arg(file, reason, reason.endsWith(u'.') ? QString() : QStringLiteral(".")));
}

}  // namespace

int runExportScores(const QStringList& args) {
    CommandLine line(
        QStringLiteral("course export-scores"),
        QStringLiteral(
            "Gives the scores of the learners of an install as a table, as printable pages, or as both."));
    QCommandLineParser& call = line.parser();
    call.addOptions({rootOption, studentOption, csvOption, pdfOption});
    if (const auto status = line.parse(args))
        return *status;
    if (!call.positionalArguments().isEmpty() || (!call.isSet(csvOption) && !call.isSet(pdfOption)))
        return line.wrongCall(QStringLiteral("it wants a file with --csv, with --pdf, or with both."));
    const platform::UserSettings settings;
    const QString root = call.isSet(rootOption) ? call.value(rootOption) : core::drivesRoot(settings);
    if (const QString problem = folderProblem(root); !problem.isEmpty())
        return line.wrongCall(QStringLiteral("--root: %1").arg(problem));
    if (!QFileInfo(root).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(root));

    const platform::Drives drives(root);
    QStringList problems;
    const auto learners =
        readScores({drives, core::applicationFolder(settings, drives)}, call.value(studentOption), problems);
    if (!learners.empty() && call.isSet(csvOption))
        tellFailure(problems, call.value(csvOption), writeCsv(call.value(csvOption), scoresAsCsv(learners)));
    if (!learners.empty() && call.isSet(pdfOption)) {
        platform::setUpLook();
        tellFailure(problems, call.value(pdfOption), writePdf(call.value(pdfOption), learners));
    }
    for (const QString& problem : problems)
        std::fprintf(stderr, "course export-scores: %s\n", qUtf8Printable(problem));
    return problems.isEmpty() ? exitFine : exitFindings;
}

}  // namespace tools
