#include "tools/export_command.h"

#include "core/startup.h"
#include "platform/look.h"
#include "platform/settings.h"
#include "tools/export_page.h"
#include "tools/export_scores.h"

#include <QCommandLineParser>
#include <QPdfWriter>
#include <QSaveFile>

#include <cstdio>

namespace tools {

namespace {

constexpr int success = 0;
constexpr int incomplete = 1;
constexpr int wrongCall = 2;
constexpr int resolution = 300;

struct Call {
    QCommandLineParser parser;
    QCommandLineOption root{QStringLiteral("root"), QStringLiteral("Folder that plays the drives."),
                            QStringLiteral("folder")};
    QCommandLineOption student{QStringLiteral("student"),
                               QStringLiteral("Student number; all learners without it."),
                               QStringLiteral("number")};
    QCommandLineOption csv{QStringLiteral("csv"),
                           QStringLiteral("Write the table to this file; - for the terminal."),
                           QStringLiteral("file")};
    QCommandLineOption pdf{QStringLiteral("pdf"), QStringLiteral("Write the printable pages to this file."),
                           QStringLiteral("file")};

    Call() {
        parser.setApplicationDescription(
            QStringLiteral("Gives the scores of learners as a table and as a printable page."));
        parser.addHelpOption();
        parser.addOptions({root, student, csv, pdf});
    }
};

int refuse(const QString& sentence) {
    std::fprintf(stderr, "course export-scores: %s\n", qUtf8Printable(sentence));
    return wrongCall;
}

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
    Call call;
    if (!call.parser.parse(QStringList{QStringLiteral("course export-scores")} + args))
        return refuse(call.parser.errorText());
    if (call.parser.isSet(QStringLiteral("help"))) {
        QString help = call.parser.helpText();
        help.replace(0, help.indexOf(u'\n'), QStringLiteral("Usage: course export-scores [options]"));
        std::printf("%s", qUtf8Printable(help));
        return success;
    }
    if (!call.parser.positionalArguments().isEmpty() ||
        (!call.parser.isSet(call.csv) && !call.parser.isSet(call.pdf)))
        return refuse(QStringLiteral("give a file with --csv, with --pdf, or with both."));

    const platform::UserSettings settings;
    const platform::Drives drives(call.parser.isSet(call.root) ? call.parser.value(call.root)
                                                               : core::drivesRoot(settings));
    QStringList problems;
    const auto learners = readScores({drives, core::applicationFolder(settings, drives)},
                                     call.parser.value(call.student), problems);
    if (!learners.empty() && call.parser.isSet(call.csv) &&
        !writeCsv(call.parser.value(call.csv), scoresAsCsv(learners)))
        problems.append(QStringLiteral("%1 cannot be written.").arg(call.parser.value(call.csv)));
    if (!learners.empty() && call.parser.isSet(call.pdf)) {
        platform::setUpLook();
        if (!writePdf(call.parser.value(call.pdf), learners))
            problems.append(QStringLiteral("%1 cannot be written.").arg(call.parser.value(call.pdf)));
    }
    for (const QString& problem : problems)
        std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
    return problems.isEmpty() ? success : incomplete;
}

}  // namespace tools
