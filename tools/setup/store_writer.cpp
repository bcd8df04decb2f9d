#include "tools/setup/store_writer.h"

#include "core/schema.h"
#include "platform/letter_case.h"
#include "platform/storage/sql_value.h"
#include "tools/support/replace_store.h"
#include "tools/support/unfinished_file.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace tools {

namespace {

constexpr int markNumber = 0x4D6E6472;

void fill(SQLite::Database& store, const BuiltTable& table) {
    QStringList marks;
    QStringList names;
    for (const QString& field : table.fields) {
        names.append(u'"' + field + u'"');
        marks.append(QStringLiteral("?"));
    }
    SQLite::Statement insert(store, QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)")
                                        .arg(table.table, names.join(u','), marks.join(u','))
                                        .toStdString());
    for (const BuiltRow& row : table.rows) {
        for (std::size_t i = 0; i < row.values.size(); ++i)
            platform::bindValue(insert, static_cast<int>(i) + 1, row.values[i]);
        insert.exec();
        insert.reset();
    }
}

void writeTables(const QString& file, const QString& schemaStore, const std::vector<BuiltTable>& content) {
    SQLite::Database store(file.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    // Indexes stand in the order that the course will look rows up by.
    platform::compareStoredTextsButForCase(store.getHandle());
    if (schemaStore == QStringLiteral("DbScore"))
        keepFromOthers(file);
    // Nobody sees the file before it is whole, so that no journal has to lie beside it.
    store.exec("PRAGMA journal_mode=MEMORY; PRAGMA application_id=" + std::to_string(markNumber));
    SQLite::Transaction transaction(store);
    for (const core::TableDefinition& definition : core::tableDefinitions())
        if (QLatin1String(definition.store.data(), static_cast<qsizetype>(definition.store.size())) ==
            schemaStore)
            for (const QString& statement : core::createStatements(definition))
                store.exec(statement.toStdString());
    for (const BuiltTable& table : content)
        if (table.store == schemaStore)
            fill(store, table);
    transaction.commit();
}

}  // namespace

QByteArray storeMark() {
    return QByteArrayLiteral("\x4D\x6E\x64\x72");
}

void writeStore(const QString& file, const QString& schemaStore, const std::vector<BuiltTable>& content) {
    const UnfinishedFile half(file + QStringLiteral(".new"));
    try {
        writeTables(half.name(), schemaStore, content);
    } catch (const SQLite::Exception& failure) {
        throw std::runtime_error(QStringLiteral("%1 cannot be written: %2.")
                                     .arg(file, QString::fromUtf8(failure.what()))
                                     .toStdString());
    }
    moveIntoPlace(half.name(), file);
}

}  // namespace tools
