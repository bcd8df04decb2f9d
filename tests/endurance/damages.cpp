#include "tests/endurance/damages.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace endurance {

namespace {

QByteArray contentOf(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

void replace(const QString& file, const QByteArray& bytes) {
    QFile::remove(file);
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
        throw std::runtime_error("no room for the install");
}

template <typename List>
const auto& pick(Chance& chance, const List& list) {
    return list[below(chance, std::size(list))];
}

QStringList filesOf(const QString& root, bool stores) {
    QStringList files;
    for (QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString file = it.next();
        if (file.endsWith(QStringLiteral(".mdb")) == stores && !file.endsWith(QStringLiteral(".lock")) &&
            !QFileInfo(file).fileName().startsWith(u'.'))
            files.append(file);
    }
    files.sort();
    return files;
}

using Change = QString (*)(Chance&, QByteArray&);

QString cut(Chance& chance, QByteArray& bytes) {
    bytes.truncate(static_cast<qsizetype>(below(chance, bytes.size())));
    return QStringLiteral("cut to %1 bytes").arg(bytes.size());
}

QString zero(Chance& chance, QByteArray& bytes) {
    constexpr qsizetype page = 4096;
    const auto pages = static_cast<std::uint64_t>((bytes.size() + page - 1) / page);
    const auto from = static_cast<qsizetype>(below(chance, pages)) * page;
    const qsizetype length =
        std::min(static_cast<qsizetype>(1 + below(chance, 3)) * page, bytes.size() - from);
    std::fill_n(bytes.begin() + from, length, '\0');
    return QStringLiteral("%1 bytes from %2 zeroed").arg(length).arg(from);
}

QString flip(Chance& chance, QByteArray& bytes) {
    const std::uint64_t count = 1 + below(chance, 24);
    for (std::uint64_t i = 0; i < count; ++i) {
        char& byte = bytes[static_cast<qsizetype>(below(chance, bytes.size()))];
        byte = static_cast<char>(byte ^ static_cast<char>(1 + below(chance, 255)));
    }
    return QStringLiteral("%1 bytes flipped").arg(count);
}

QString flipHead(Chance& chance, QByteArray& bytes) {
    const auto at = static_cast<qsizetype>(below(chance, std::min<qsizetype>(bytes.size(), 100)));
    bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(1 + below(chance, 255)));
    return QStringLiteral("byte %1 of its head flipped").arg(at);
}

QString putText(Chance& chance, QByteArray& bytes) {
    const QByteArray text =
        QByteArray("once upon a time; ").repeated(1 + static_cast<qsizetype>(below(chance, 40)));
    const auto at = static_cast<qsizetype>(below(chance, bytes.size()));
    bytes.replace(at, std::min(text.size(), bytes.size() - at), text);
    return QStringLiteral("%1 bytes of text at %2").arg(text.size()).arg(at);
}

QString grow(Chance& chance, QByteArray& bytes) {
    const auto size = static_cast<qsizetype>(1 + below(chance, 9000));
    bytes.append(QByteArray(size, '\xA5'));
    return QStringLiteral("%1 bytes behind its end").arg(size);
}

QString empty(Chance&, QByteArray& bytes) {
    bytes.clear();
    return QStringLiteral("emptied");
}

QString widen(Chance&, QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    bytes = QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char*>(text.utf16()),
                                                text.size() * static_cast<qsizetype>(sizeof(char16_t)));
    return QStringLiteral("written in UTF-16");
}

QString changeBytes(Chance& chance, const QString& file, bool settings) {
    static const std::vector<Change> changes{cut,  cut,      zero,    zero, flip, flip,
                                             flip, flipHead, putText, grow, empty};
    QByteArray bytes = contentOf(file);
    if (bytes.isEmpty())
        bytes = QByteArray("x");
    const Change change = settings && below(chance, 5) == 0 ? widen : pick(chance, changes);
    const QString what = change(chance, bytes);
    replace(file, bytes);
    return what;
}

QString swap(Chance& chance, const QString& file, const QStringList& others) {
    const QString& other = pick(chance, others);
    replace(file, contentOf(other));
    return QStringLiteral("replaced by ") + QFileInfo(other).fileName();
}

QString takeAway(Chance& chance, const QString& file) {
    QFile::remove(file);
    if (below(chance, 2) == 0)
        return QStringLiteral("taken away");
    QDir().mkpath(file);
    return QStringLiteral("replaced by a folder");
}

/// A table of a store with its columns.
struct Table {
    std::string name;
    std::vector<std::string> columns;
};

std::vector<Table> tablesOf(SQLite::Database& store) {
    std::vector<Table> tables;
    SQLite::Statement names(store, "select name from sqlite_master where type='table' order by name");
    while (names.executeStep()) {
        Table table{names.getColumn(0).getString(), {}};
        SQLite::Statement columns(store, "select name from pragma_table_info('" + table.name + "')");
        while (columns.executeStep())
            table.columns.push_back(columns.getColumn(0).getString());
        tables.push_back(table);
    }
    return tables;
}

std::string quoted(const std::string& name) {
    return '"' + name + '"';
}

/// A statement that spoils what a store holds and leaves the file whole.
std::string spoiling(Chance& chance, const Table& table) {
    const std::string name = quoted(table.name);
    const std::string column = quoted(pick(chance, table.columns));
    const std::string some =
        below(chance, 2) == 0 ? "" : " where _rowid_ % 5 = " + std::to_string(below(chance, 5));
    static const std::array values{"NULL",
                                   "''",
                                   "'once upon a time'",
                                   "99999999999",
                                   "-1",
                                   "1e300",
                                   "x'00FF80C3'",
                                   "printf('%.*c', 3000000, 'x')",
                                   "'it''s'",
                                   "char(0xD7A3, 0, 0xFFFD)",
                                   "replace(hex(zeroblob(20000)), '0', 'word ')"};
    switch (below(chance, 8)) {
        case 0: return "delete from " + name + some;
        case 1: return "drop table " + name;
        case 2: return "alter table " + name + " rename column " + column + " to lost";
        case 3:
            return "insert into " + name + " select * from " + name + "; insert into " + name +
                   " select * from " + name;
        case 4:
            return "pragma writable_schema=on; update sqlite_master set sql=replace(sql,'NOCASE','KOREAN') "
                   "where name='" +
                   table.name + "'";
        default: return "update " + name + " set " + column + "=" + pick(chance, values) + some;
    }
}

QString spoil(Chance& chance, const QString& file) {
    replace(file, contentOf(file));
    SQLite::Database store(file.toStdString(), SQLite::OPEN_READWRITE);
    const std::vector<Table> tables = tablesOf(store);
    std::string statement = spoiling(chance, pick(chance, tables));
    try {
        store.exec(statement);
    } catch (const SQLite::Exception& failure) {
        statement += std::string(" (") + failure.what() + ')';
    }
    return QString::fromStdString(statement).left(160);
}

}  // namespace

std::uint64_t below(Chance& chance, std::uint64_t limit) {
    return limit == 0 ? 0 : chance() % limit;
}

Damage damageOneFile(Chance& chance, const QString& root, const QString& settings) {
    const QStringList stores = filesOf(root, true);
    const QStringList others = filesOf(root, false);
    const std::uint64_t kind = below(chance, 10);
    const bool isSettings = kind == 9;
    Damage damage;
    damage.store = kind < 6;
    const QString file = isSettings ? settings : pick(chance, damage.store ? stores : others);
    damage.file = isSettings ? QFileInfo(settings).fileName() : QDir(root).relativeFilePath(file);
    const std::uint64_t way = below(chance, 10);
    damage.inside = damage.store && way < 4;
    if (damage.inside)
        damage.what = spoil(chance, file);
    else if (way == 8)
        damage.what = swap(chance, file, below(chance, 2) == 0 ? stores : others);
    else if (way == 9)
        damage.what = takeAway(chance, file);
    else
        damage.what = changeBytes(chance, file, isSettings);
    return damage;
}

bool isSound(const QString& store) {
    try {
        const SQLite::Database opened(store.toStdString(), SQLite::OPEN_READONLY, 1000);
        SQLite::Statement check(const_cast<SQLite::Database&>(opened), "pragma integrity_check(1)");
        return check.executeStep() && check.getColumn(0).getString() == "ok";
    } catch (const SQLite::Exception&) {
        return false;
    }
}

}  // namespace endurance
