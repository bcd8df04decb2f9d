#include "tools/import/run.h"

#include "platform/letter_case.h"
#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"
#include "tools/access/header.h"
#include "tools/import/media.h"
#include "tools/import/report.h"
#include "tools/import/scores.h"
#include "tools/support/replace_store.h"
#include "tools/support/unfinished_file.h"

#include <SQLiteCpp/Backup.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

namespace tools {

namespace {

const QString memoryStore = QStringLiteral(":memory:");
constexpr qsizetype headerBytes = 4096;
constexpr int busyTimeout = 15000;

QString formatOf(const QString& file) {
    QFile opened(file);
    const auto header =
        opened.open(QIODevice::ReadOnly) ? parseAccessHeader(opened.read(headerBytes)) : std::nullopt;
    return header ? QLatin1String(header->formatName()) : QStringLiteral("unknown format");
}

/// A copy of a store that is about to change in its place, under a further name; gives that name.
QString copyBeside(SQLite::Database& store, const QString& place) {
    const QString kept = freeNameBeside(place);
    SQLite::Database copy(kept.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    keepFromOthers(kept);
    SQLite::Backup(copy, store).executeStep();
    return kept;
}

/// True for a database of somebody else's under a store's name. A damaged one counts as the course's own.
bool isForeignStore(const QString& file, const QString& schemaStore) {
    try {
        SQLite::Database store(file.toStdString(), SQLite::OPEN_READONLY, busyTimeout);
        bool known = false;
        for (const core::TableDefinition& definition : core::tableDefinitions())
            known = known || (definition.store == schemaStore.toStdString() &&
                              store.tableExists(std::string(definition.table)));
        return !known;
    } catch (const SQLite::Exception&) {
        return false;
    }
}

}  // namespace

Importer::Importer(ImportOptions options, ReaderMaker maker, QTextStream& out,
                   std::function<void(const QString& line)> progress)
    : options_(std::move(options)),
      maker_(std::move(maker)),
      out_(out),
      progress_(std::move(progress)),
      drives_(options_.root) {}

bool Importer::run() {
    const FoundInstall install = findInstall(options_.from);
    if (install.stores.empty()) {
        const bool isFile = QFileInfo(options_.from).isFile();
        tell(
            (isFile
                 ? QStringLiteral("%1 is no store of the course by its name, which would be tovalin.mdb, "
                                  "Tovalin_Data.mdb, DbScore_….mdb or another; an image of a drive has to be "
                                  "mounted first.")
                 : QStringLiteral("%1 holds no store of the course: no tovalin.mdb, Tovalin_Data.mdb, "
                                  "DbScore_….mdb or other; give the folder that holds the drives, one drive, "
                                  "or the program's folder."))
                .arg(options_.from));
        printEnd(install);
        return false;
    }
    notes_ = install.notes;
    if (!options_.dryRun && !takeRoot()) {
        printEnd(install);
        return false;
    }
    for (const FoundStore& store : install.stores) {
        try {
            importStore(store);
        } catch (const ReadError& error) {
            tell(QStringLiteral("%1: %2.").arg(store.shownName, error.sentence()));
        } catch (const SQLite::Exception& error) {
            tell(QStringLiteral("%1: the store cannot be written: %2.")
                     .arg(store.shownName, QString::fromUtf8(error.what())));
        } catch (const std::runtime_error& error) {
            tell(QStringLiteral("%1: %2").arg(store.shownName, QString::fromUtf8(error.what())));
        }
    }
    importMedia(install);
    printEnd(install);
    return problems_.isEmpty();
}

/// Keeps the program and other tools out: a store must not change under whoever has it open.
bool Importer::takeRoot() {
    try {
        if (!QDir().mkpath(drives_.resolve(QStringLiteral("D:"))))
            throw std::runtime_error(
                QStringLiteral("The folder %1 cannot be made.").arg(options_.root).toStdString());
        root_.take(options_.root);
        course_ = holdCourse(options_.root);
        return true;
    } catch (const std::runtime_error& error) {
        tell(QString::fromUtf8(error.what()));
        return false;
    }
}

bool Importer::mayReplace(const FoundStore& store) {
    switch (platform::storeFormat(store.file)) {
        case platform::StoreFormat::AccessFile: break;
        case platform::StoreFormat::Store:
            tell(QStringLiteral("%1: it is a store of this program already, not an Access file.")
                     .arg(store.shownName));
            return false;
        case platform::StoreFormat::Missing:
        case platform::StoreFormat::Unknown:
            tell(QStringLiteral("%1: it is not an Access file, or its first page is damaged.")
                     .arg(store.shownName));
            return false;
    }
    for (const QString& path : store.targets)
        if (const QString reason = obstacle(store.schemaStore, path); !reason.isEmpty()) {
            tell(QStringLiteral("%1: %2 %3.").arg(store.shownName, drives_.resolve(path), reason));
            return false;
        }
    return true;
}

/// Why a store must not take a place, for the end of a sentence; empty where it may.
QString Importer::obstacle(const QString& schemaStore, const QString& path) const {
    if (!drives_.staysOnItsDrive(path))
        return QStringLiteral("lies behind a link that leads out of its drive");
    const QString file = drives_.resolve(path);
    switch (platform::storeFormat(file)) {
        case platform::StoreFormat::AccessFile:
            return QStringLiteral(
                "is a genuine Access file and was left as it is; import into another folder");
        case platform::StoreFormat::Unknown:
            return QStringLiteral("is no store of this program and was left as it is; move it away first");
        case platform::StoreFormat::Missing:
            return QFileInfo::exists(file) ? QStringLiteral("cannot be read and was left as it is")
                                           : QString();
        case platform::StoreFormat::Store: break;
    }
    return isForeignStore(file, schemaStore)
               ? QStringLiteral("holds no table of the course and was left as it is; move it away first")
               : QString();
}

void Importer::importStore(const FoundStore& store) {
    const QString target = drives_.resolve(store.targets.first());
    printHead(store, store.targets.join(QStringLiteral(", ")));
    if (!mayReplace(store))
        return;
    noteCutFile(store);
    if (store.schemaStore == QStringLiteral("DbScore") && QFileInfo::exists(target))
        merge(store, target);
    else
        writeNew(store, target);
}

/// Rows may be whole all the same, since a file's last page is often a free one.
void Importer::noteCutFile(const FoundStore& store) {
    QFile file(store.file);
    const auto header =
        file.open(QIODevice::ReadOnly) ? parseAccessHeader(file.read(headerBytes)) : std::nullopt;
    if (header && file.size() % header->pageSize() != 0)
        notes_.append(
            QStringLiteral("%1: the file ends inside its page %2, so that it was cut off; the table "
                           "above tells what came over.")
                .arg(store.shownName)
                .arg(file.size() / header->pageSize()));
}

CopyReport Importer::copyInto(SQLite::Database& store, const FoundStore& source) {
    const auto reader = maker_(source.file, options_.codePage);
    QElapsedTimer time;
    time.start();
    const auto progress = [&](const QString& table, qint64 rows) {
        progress_(QStringLiteral("%1: %2, %3 rows").arg(source.shownName, table).arg(rows));
    };
    CopyReport report = copyStore(*reader, {source.file, source.shownName, source.schemaStore}, store,
                                  options_.salvage, progress);
    problems_ += report.problems;
    notes_ += report.notes;
    printProof(report);
    out_ << QStringLiteral("  read and proven in %1 s\n")
                .arg(static_cast<double>(time.elapsed()) / 1000.0, 0, 'f', 2);
    return report;
}

void Importer::writeNew(const FoundStore& store, const QString& target) {
    if (options_.dryRun) {
        SQLite::Database memory(memoryStore.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        copyInto(memory, store);
        return;
    }
    if (!QDir().mkpath(QFileInfo(target).path()))
        throw ReadError(QStringLiteral("the folder of %1 cannot be made").arg(target));
    const UnfinishedFile half(target + QStringLiteral(".new"));
    CopyReport report;
    {
        SQLite::Database written(half.name().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        // Indexes stand in the order that the course will look rows up by.
        platform::compareStoredTextsButForCase(written.getHandle());
        if (store.schemaStore == QStringLiteral("DbScore"))
            keepFromOthers(half.name());
        // Nobody sees the file before it is whole, and moving it to its place flushes it to the disk.
        written.exec("PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF");
        report = copyInto(written, store);
    }
    if (report.foreign)
        return;
    if ((report.sound || options_.salvage) && verify(half.name(), store, report)) {
        place(store, half.name());
        return;
    }
    tell(QStringLiteral(
             "%1: nothing was written, since a table of it did not come over whole; --salvage keeps what "
             "could be read.")
             .arg(store.shownName));
}

/// Reads the finished file once more, as the course will find it.
bool Importer::verify(const QString& file, const FoundStore& store, const CopyReport& report) {
    SQLite::Database written(file.toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement check(written, "PRAGMA quick_check");
    bool whole = check.executeStep() && std::string(check.getColumn(0).getText()) == "ok";
    for (const TableProof& proof : report.tables) {
        if (proof.leftOut)
            continue;
        const TableSum sum = sumOfTable(written, proof.table);
        whole = whole && sum.rows() == proof.copyRows && sum.text() == proof.copySum;
    }
    if (!whole)
        tell(QStringLiteral("%1: the store as written differs from what was read.").arg(store.shownName));
    return whole;
}

void Importer::tellKept(const QString& place, const QString& kept) {
    if (!kept.isEmpty())
        notes_.append(
            QStringLiteral("%1 was there; it is kept as %2.").arg(place, QFileInfo(kept).fileName()));
}

void Importer::place(const FoundStore& store, const QString& finished) {
    for (const QString& path : store.targets.mid(1)) {
        const Moved moved = copyWhole(finished, drives_.resolve(path), moveStore);
        tellKept(drives_.resolve(path), moved.kept);
        if (!moved.failure.isEmpty())
            tell(QStringLiteral("%1: %2.").arg(store.shownName, moved.failure));
    }
    const QString first = drives_.resolve(store.targets.first());
    const Moved moved = moveStore(finished, first);
    tellKept(first, moved.kept);
    if (!moved.failure.isEmpty())
        tell(QStringLiteral("%1: %2.").arg(store.shownName, moved.failure));
    else
        wrote_ = true;
}

void Importer::merge(const FoundStore& store, const QString& target) {
    SQLite::Database copy(memoryStore.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    const CopyReport report = copyInto(copy, store);
    if (report.foreign)
        return;
    if (!report.sound && !options_.salvage) {
        tell(QStringLiteral("%1: no score was brought over, since the table did not come over whole; "
                            "--salvage brings what "
                            "could be read.")
                 .arg(store.shownName));
        return;
    }
    if (platform::storeFormat(target) != platform::StoreFormat::Store)
        throw ReadError(QStringLiteral("%1 is no store of this program and was left as it is").arg(target));
    SQLite::Database inUse(target.toStdString(), SQLite::OPEN_READWRITE, busyTimeout);
    SQLite::Database trial(memoryStore.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    if (options_.dryRun)
        SQLite::Backup(trial, inUse).executeStep();
    const QString kept = options_.dryRun ? QString() : copyBeside(inUse, target);
    const ScoreMerge merged = mergeScores(copy, options_.dryRun ? trial : inUse);
    wrote_ = wrote_ || !options_.dryRun;
    if (merged.added + merged.renewed == 0)
        QFile::remove(kept);
    else
        tellKept(target, kept);
    out_ << QStringLiteral("  joined with the scores in use: %1 new, %2 renewed, %3 kept, %4 alike\n")
                .arg(merged.added)
                .arg(merged.renewed)
                .arg(merged.kept)
                .arg(merged.alike);
    for (const QString& detail : merged.details)
        out_ << "  " << detail << '\n';
}

void Importer::importMedia(const FoundInstall& install) {
    if (install.media.empty())
        return;
    const MediaReport report =
        copyMedia(install.media, drives_, options_.dryRun, [this](qint64 done, qint64 total) {
            progress_(QStringLiteral("pictures, sounds and videos: %1 of %2").arg(done).arg(total));
        });
    problems_ += report.problems;
    if (report.kept > 0)
        notes_.append(
            QStringLiteral("%1 pictures, sounds or videos were there with another content; they are "
                           "kept under names that end in \".before-import\".")
                .arg(report.kept));
    wrote_ = wrote_ || (report.copied > 0 && !options_.dryRun);
    out_ << QStringLiteral("\nPictures, sounds and videos: %1 copied, %2 there already, %3 bytes in all.\n")
                .arg(report.copied)
                .arg(report.present)
                .arg(report.bytes);
}

void Importer::printHead(const FoundStore& store, const QString& targets) {
    out_ << QStringLiteral("\n%1 (%2, %3 bytes) to %4\n")
                .arg(store.shownName, formatOf(store.file))
                .arg(QFileInfo(store.file).size())
                .arg(targets);
}

void Importer::printProof(const CopyReport& report) {
    out_ << proofTable(report.tables);
}

void Importer::printEnd(const FoundInstall& install) {
    progress_({});
    if (!install.reports.isEmpty())
        notes_.append(QStringLiteral("%1 report templates were left out, worksheets have their own here: %2.")
                          .arg(install.reports.size())
                          .arg(install.reports.mid(0, 3).join(QStringLiteral(", "))));
    if (!install.stores.empty() && !install.missing.isEmpty())
        notes_.append(QStringLiteral("Not found, and the course does not run without: %1.")
                          .arg(install.missing.join(QStringLiteral(", "))));
    if (!notes_.isEmpty())
        out_ << QStringLiteral("\nNotes\n  ") << notes_.join(QStringLiteral("\n  ")) << '\n';
    if (!problems_.isEmpty())
        out_ << QStringLiteral("\nProblems\n  ") << problems_.join(QStringLiteral("\n  ")) << '\n';
    if (options_.dryRun)
        out_ << QStringLiteral("\nNothing was written.\n");
    out_.flush();
}

}  // namespace tools
