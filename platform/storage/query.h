#pragma once

#include <QString>

namespace platform {

/// The one shape of query that record sets open: `Select * from T [where C] [order by O]`.
struct Query {
    QString table;
    QString where;    // empty: every row
    QString orderBy;  // empty: stored order

    /// Takes a query apart; key words in any case. Throws SyntaxError for any other shape.
    static Query parse(const QString& sql);
};

}  // namespace platform
