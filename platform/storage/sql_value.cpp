#include "platform/storage/sql_value.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <type_traits>
#include <variant>

namespace platform {

Value readColumn(const SQLite::Column& column) {
    switch (column.getType()) {
        case SQLITE_INTEGER: return {static_cast<std::int64_t>(column.getInt64())};
        case SQLITE_FLOAT: return {column.getDouble()};
        case SQLITE_TEXT: return {QString::fromUtf8(column.getText(), column.getBytes())};
        default: return {};
    }
}

void bindValue(SQLite::Statement& statement, int position, const Value& value) {
    std::visit(
        [&](const auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                statement.bind(position);
            else if constexpr (std::is_same_v<Content, QString>)
                statement.bind(position, content.toStdString());
            else
                statement.bind(position, content);
        },
        value.content());
}

}  // namespace platform
