#pragma once

#include "tools/access/reader.h"
#include "tools/import/layout.h"
#include "tools/import/store.h"

#include "platform/drives.h"
#include "tools/support/root_hold.h"

#include <QTextStream>

namespace tools {

struct ImportOptions {
    QString from;
    QString root;
    bool dryRun = false;
    bool salvage = false;
    int codePage = unknownPage;
};

/// Brings the stores, pictures, sounds and videos of an old install over to a root folder and writes the
/// report.
class Importer {
   public:
    /// `progress` gets a line now and then that the next one may replace.
    Importer(ImportOptions options, ReaderMaker maker, QTextStream& out,
             std::function<void(const QString& line)> progress);

    /// True when everything came over whole.
    bool run();

    const QStringList& problems() const { return problems_; }
    /// True when a store, scores or media below the root were written.
    bool wrote() const { return wrote_; }

   private:
    bool takeRoot();
    void importStore(const FoundStore& store);
    QString obstacle(const QString& schemaStore, const QString& path) const;
    void tellKept(const QString& place, const QString& kept);
    CopyReport copyInto(SQLite::Database& store, const FoundStore& source);
    bool mayReplace(const FoundStore& store);
    void writeNew(const FoundStore& store, const QString& target);
    bool verify(const QString& file, const FoundStore& store, const CopyReport& report);
    void merge(const FoundStore& store, const QString& target);
    void place(const FoundStore& store, const QString& finished);
    void importMedia(const FoundInstall& install);
    void noteCutFile(const FoundStore& store);
    void tell(const QString& problem) { problems_.append(problem); }
    void printHead(const FoundStore& store, const QString& targets);
    void printProof(const CopyReport& report);
    void printEnd(const FoundInstall& install);

    ImportOptions options_;
    ReaderMaker maker_;
    QTextStream& out_;
    std::function<void(const QString& line)> progress_;
    platform::Drives drives_;
    QStringList problems_;
    QStringList notes_;
    RootHold root_;
    CourseHold course_;
    bool wrote_ = false;
};

}  // namespace tools
