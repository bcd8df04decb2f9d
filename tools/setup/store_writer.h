#pragma once

#include "tools/coursefiles/course_source.h"

#include <QByteArray>
#include <QString>

namespace tools {

/// Four bytes that every store written here carries, so that a set-up knows its own work again.
QByteArray storeMark();

/// Makes a store with all its tables of the schema, empty, and fills those that the course has rows for.
/// The file appears whole or not at all. `schemaStore` names the store as the schema does. Throws
/// std::runtime_error with a sentence that names the file.
void writeStore(const QString& file, const QString& schemaStore, const std::vector<BuiltTable>& content);

}  // namespace tools
