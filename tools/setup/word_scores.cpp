#include "tools/setup/word_scores.h"

#include "platform/storage/store_errors.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace tools {

namespace {

// How long a save of the running program is waited for, in milliseconds.
constexpr int saveWait = 5000;

QStringList stepsWithWords(const BuiltTable& steps) {
    QStringList numbers;
    for (const BuiltRow& row : steps.rows)
        if (steps.value(row, QStringLiteral("wordno")).toInt16() > 0)
            numbers.append(steps.value(row, QStringLiteral("recordno")).toText());
    return numbers;
}

/// The word exercises read these columns as numbers. A step without words stores "N/A" there, a watched video
/// an empty text.
std::string openColumn(const char* column, const QStringList& steps) {
    return QStringLiteral(
               "UPDATE score SET %1='0' WHERE ifnull(%1,'') IN ('','N/A') AND program='Tovalin1' "
               "AND recordno IN (%2)")
        .arg(QLatin1String(column), steps.join(u','))
        .toStdString();
}

void openRows(const QString& file, const QStringList& steps) {
    SQLite::Database store(file.toStdString(), SQLite::OPEN_READWRITE, saveWait);
    store.exec("PRAGMA synchronous=EXTRA");
    SQLite::Transaction transaction(store);
    for (const char* column : {"s1", "s2", "s3"})
        store.exec(openColumn(column, steps));
    transaction.commit();
}

}  // namespace

void openWordParts(const QDir& root, const BuiltTable& steps) {
    const QStringList numbers = stepsWithWords(steps);
    const QDir scores(root.filePath(QStringLiteral("C/A_Mendori/Main")));
    for (const QString& name : scores.entryList({QStringLiteral("DbScore_*.mdb")}, QDir::Files)) {
        const QString file = scores.filePath(name);
        if (numbers.isEmpty() || platform::storeFormat(file) != platform::StoreFormat::Store)
            continue;
        try {
            openRows(file, numbers);
        } catch (const SQLite::Exception&) {
            // It may be another user's, or damaged: its learner is told so by the program, and no course has
            // to wait for it.
            continue;
        }
    }
}

}  // namespace tools
