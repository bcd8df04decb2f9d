// Reads one file as the import does and ends with an abort where the import would say anything but clean
// sentences. Made for afl-fuzz: `fuzz_import FILE`. With FUZZ_DIRECT set the reader runs in this very
// process, which shows where a damaged file brings it down.

#include "tools/access/jet.h"
#include "tools/import/isolated.h"
#include "tools/import/store.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int patienceMs = 2000;

void insist(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

void checkReport(const tools::CopyReport& report) {
    for (const QString& problem : report.problems)
        insist(problem.startsWith(QStringLiteral("fuzz.mdb")) && problem.endsWith(u'.'),
               "a problem is a sentence");
    for (const tools::TableProof& proof : report.tables)
        insist(proof.leftOut || proof.proven() || proof.problems > 0, "a difference is told");
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2)
        return 2;
    const QString file = QString::fromLocal8Bit(argv[1]);
    const bool direct = std::getenv("FUZZ_DIRECT") != nullptr;
    const tools::ReaderMaker maker =
        direct ? tools::openJetFile : tools::isolatedMaker(tools::openJetFile, patienceMs);
    try {
        const auto reader = maker(file, tools::unknownPage);
        SQLite::Database store(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        checkReport(tools::copyStore(*reader,
                                     {file, QStringLiteral("fuzz.mdb"), QStringLiteral("tovalin.mdb")}, store,
                                     true, [](const QString&, qint64) {}));
    } catch (const tools::ReadError& error) {
        insist(!error.sentence().isEmpty(), "an error is a sentence");
    }
    return 0;
}
