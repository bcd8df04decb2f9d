#include "tools/export_command.h"

#include "core/startup.h"
#include "platform/look.h"
#include "platform/settings.h"
#include "tools/command_line.h"
#include "tools/export_page.h"
#include "tools/export_scores.h"

#include <QFileInfo>
#include <QPdfWriter>
#include <QSaveFile>

#include <cstdio>

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

bool writeCsv(const QString& file, const QByteArray& csv) {
    if (file == QStringLiteral("-"))
        return std::fwrite(csv.constData(), 1, static_cast<std::size_t>(csv.size()), stdout) ==
               static_cast<std::size_t>(csv.size());
    QSaveFile saved(file);
    return saved.open(QIODevice::WriteOnly) && saved.write(csv) == csv.size() && saved.commit();
}

bool writePdf(const QString& file, const std::vector<LearnerScores>& learners) {
    QSaveFile saved(file);
    if (!saved.open(QIODevice::WriteOnly))
        return false;
    {
        QPdfWriter writer(&saved);
        writer.setPageLayout(
            QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
        writer.setResolution(resolution);
        writer.setTitle(QStringLiteral("Scores"));
        if (printScores(writer, learners) == 0)
            return false;
    }
    return saved.commit();
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
    if (!QFileInfo(root).isDir())
        return line.wrongCall(QStringLiteral("there is no folder %1.").arg(root));

    const platform::Drives drives(root);
    QStringList problems;
    const auto learners =
        readScores({drives, core::applicationFolder(settings, drives)}, call.value(studentOption), problems);
    if (!learners.empty() && call.isSet(csvOption) && !writeCsv(call.value(csvOption), scoresAsCsv(learners)))
        problems.append(QStringLiteral("%1 cannot be written.").arg(call.value(csvOption)));
    if (!learners.empty() && call.isSet(pdfOption)) {
        platform::setUpLook();
        if (!writePdf(call.value(pdfOption), learners))
            problems.append(QStringLiteral("%1 cannot be written.").arg(call.value(pdfOption)));
    }
    for (const QString& problem : problems)
        std::fprintf(stderr, "course export-scores: %s\n", qUtf8Printable(problem));
    return problems.isEmpty() ? exitFine : exitFindings;
}

}  // namespace tools
