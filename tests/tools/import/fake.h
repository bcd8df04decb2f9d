#pragma once

#include "tools/access/reader.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <map>

namespace import_test {

/// A table as a file would have it, made by a test.
struct FakeTable {
    tools::SourceTable shape;
    std::vector<tools::SourceRow> rows;
    QString openError;
    QString endError;  // thrown behind the last row
};

inline tools::SourceRow row(std::vector<QVariant> values) {
    return {std::move(values), {}};
}

/// Stands in for the reader of Access files.
class FakeReader final : public tools::AccessReader {
   public:
    explicit FakeReader(std::vector<FakeTable> tables) : tables_(std::move(tables)) {}

    QStringList tables() override {
        QStringList names;
        for (const FakeTable& table : tables_)
            names.append(table.shape.name);
        return names;
    }
    tools::SourceTable openTable(const QString& name) override {
        for (const FakeTable& table : tables_)
            if (table.shape.name == name) {
                if (!table.openError.isEmpty())
                    throw tools::ReadError(table.openError);
                current_ = &table;
                next_ = 0;
                return table.shape;
            }
        throw tools::ReadError(QStringLiteral("no such table"));
    }
    bool nextRow(tools::SourceRow& row) override {
        if (next_ < current_->rows.size()) {
            row = current_->rows[next_++];
            return true;
        }
        if (!current_->endError.isEmpty())
            throw tools::ReadError(current_->endError);
        return false;
    }
    int codePage() const override { return tools::unicodePage; }

   private:
    std::vector<FakeTable> tables_;
    const FakeTable* current_ = nullptr;
    std::size_t next_ = 0;
};

using tools::SourceType;

inline FakeTable newWords() {
    FakeTable table;
    table.shape = {QStringLiteral("newword"),
                   {{QStringLiteral("recordno"), SourceType::Integer, 3},
                    {QStringLiteral("word"), SourceType::Text, 10},
                    {QStringLiteral("korean"), SourceType::Text, 10},
                    {QStringLiteral("scode"), SourceType::Text, 10}},
                   2};
    table.rows = {row({qlonglong{2}, QStringLiteral("lantern"), QStringLiteral("등불"), QVariant()}),
                  row({qlonglong{1}, QStringLiteral("air"), QStringLiteral("공기"), QStringLiteral("")})};
    return table;
}

/// A score table with the columns that a merge looks at.
inline FakeTable scores(std::vector<tools::SourceRow> rows) {
    FakeTable table;
    table.shape = {QStringLiteral("score"),
                   {{QStringLiteral("recordno"), SourceType::Integer, 3},
                    {QStringLiteral("s4"), SourceType::Number, 7},
                    {QStringLiteral("vDate"), SourceType::Date, 8},
                    {QStringLiteral("studentno"), SourceType::Text, 10},
                    {QStringLiteral("program"), SourceType::Text, 10}},
                   static_cast<qint64>(rows.size())};
    table.rows = std::move(rows);
    return table;
}

/// A file that begins like an Access file and holds nothing that a real reader would take.
inline void writeAccessStub(const QString& file) {
    QDir().mkpath(QFileInfo(file).path());
    QFile opened(file);
    if (opened.open(QIODevice::WriteOnly))
        opened.write(QByteArrayLiteral("\x00\x01\x00\x00Standard Jet DB\x00\x01") + QByteArray(300, '\0'));
}

inline void writeText(const QString& file, const QByteArray& text) {
    QDir().mkpath(QFileInfo(file).path());
    QFile opened(file);
    if (opened.open(QIODevice::WriteOnly))
        opened.write(text);
}

}  // namespace import_test
