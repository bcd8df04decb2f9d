#pragma once

#include "platform/error.h"
#include "platform/storage/database.h"
#include "platform/storage/recordset.h"
#include "tests/support/desk.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace support {

/// A store of a test's own, made by statements and gone with the test.
class TemporaryStore {
   public:
    explicit TemporaryStore(const std::string& sql) : file_(folder_.filePath(QStringLiteral("tovalin.mdb"))) {
        SQLite::Database made(file_.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        made.exec(sql);
    }

    const QString& file() const { return file_; }
    platform::Database open() const {
        return platform::Database::open(file_, QStringLiteral("D:\\tovalin.mdb"));
    }

    /// The rows of a query, read by an onlooker, as texts joined by "|".
    QStringList rows(const std::string& sql) const {
        SQLite::Database store(file_.toStdString(), SQLite::OPEN_READONLY, 5000);
        SQLite::Statement query(store, sql);
        QStringList rows;
        while (query.executeStep()) {
            QStringList fields;
            for (int i = 0; i < query.getColumnCount(); ++i)
                fields.append(query.getColumn(i).isNull() ? QStringLiteral("NULL")
                                                          : QString::fromUtf8(query.getColumn(i).getText()));
            rows.append(fields.join(u'|'));
        }
        return rows;
    }

   private:
    QTemporaryDir folder_;
    QString file_;
};

/// The number of the run-time error that the work ends in, 0 without one; `sentence` takes its words.
template <typename Work>
int errorOf(Work work, QString* sentence = nullptr) {
    try {
        work();
    } catch (const platform::RuntimeError& error) {
        if (sentence != nullptr)
            *sentence = error.sentence();
        return error.number();
    }
    return 0;
}

}  // namespace support
