#include "tools/coursefiles/course_source.h"

#include "core/schema.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

namespace tools {

using platform::Value;

namespace {

/// A table that authors write, the store that it lands in, and the fields that no row of it does without.
struct AuthoredTable {
    const char* table;
    const char* store;
    const char* needed;
    const char* authorsField = "";  // kept for the check, and in no store
};

constexpr const char* pointField = "point";

constexpr std::array authoredTables{
    AuthoredTable{"topic", "tovalin.mdb", "topicno Title"},
    AuthoredTable{"tablework", "tovalin.mdb", "recordno Type Title Data useform"},
    AuthoredTable{"newword", "tovalin.mdb", "recordno word korean"},
    AuthoredTable{"gram_tip2", "tovalin.mdb", "recordno tip2", pointField},
    AuthoredTable{"basic_data3", "tovalin.mdb", "recordno word1 vtitle"},
    AuthoredTable{"tablework_final_data", "tovalin.mdb", "recordno recordno2"},
    AuthoredTable{"tovalin1_quiz_data", "Tovalin_Data.mdb", "recordno q1 a1", pointField},
    AuthoredTable{"tovalin1_basic_data", "Tovalin_Data.mdb", "recordno word1", pointField},
    AuthoredTable{"tovalin1_gram_tip", "Tovalin_Data.mdb", "recordno tips", pointField},
    AuthoredTable{"tovalin1_basicdata_115", "Tovalin_Data.mdb", "word"},
};

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const AuthoredTable* findAuthored(const QString& table) {
    const auto found =
        std::find_if(authoredTables.begin(), authoredTables.end(), [&](const AuthoredTable& t) {
            return table.compare(QLatin1String(t.table), Qt::CaseInsensitive) == 0;
        });
    return found == authoredTables.end() ? nullptr : &*found;
}

QString tableNames() {
    QStringList names;
    for (const AuthoredTable& authored : authoredTables)
        names.append(QLatin1String(authored.table) + QStringLiteral(".csv"));
    return names.join(QStringLiteral(", "));
}

/// Tells of each field that the table needs and its first line does not name.
bool hasNeededFields(const TableFile& table, const AuthoredTable& authored, ReadErrors* damages) {
    bool whole = true;
    for (const QString& field : QString::fromLatin1(authored.needed).split(u' '))
        if (table.column(field) < 0) {
            whole = false;
            complain(damages,
                     {{table.file, 1, field},
                      QStringLiteral("the first line does not name this field, and the table is left out; it "
                                     "names %1")
                          .arg(table.columns.join(QStringLiteral(", "))),
                      QStringLiteral("a column '%1'").arg(field)});
        }
    return whole;
}

void readFolder(CourseSource& course, const QString& folder, const QString& shownPrefix, int topicNo,
                ReadErrors* damages) {
    const QDir dir(folder);
    for (const QString& name : dir.entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name)) {
        try {
            const AuthoredTable* authored = findAuthored(QFileInfo(name).completeBaseName());
            if (authored == nullptr)
                throw SourceError({shownPrefix + name, 0, {}},
                                  QStringLiteral("a course has no table of this name"),
                                  QStringLiteral("one of %1").arg(tableNames()));
            TableFile table = readTableFile(dir.filePath(name), shownPrefix + name, damages);
            if (hasNeededFields(table, *authored, damages))
                course.tables.push_back({topicNo, std::move(table)});
        } catch (const SourceError& error) {
            complain(damages, error);
        }
    }
}

bool holdsTables(const QDir& folder, const QString& table = QStringLiteral("*")) {
    return !folder.entryList({table + QStringLiteral(".csv")}, QDir::Files).isEmpty();
}

/// The number in a unit folder's name; nothing for a folder of another name.
std::optional<int> unitNumber(const QString& name) {
    static const QRegularExpression unitName(QStringLiteral("^unit0*([1-9]\\d{0,3})$"));
    const auto match = unitName.match(name);
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
}

void readUnit(CourseSource& course, const QDir& dir, const QString& name, std::map<int, QString>& known,
              ReadErrors* damages) {
    const QDir folder(dir.filePath(name));
    const std::optional<int> number = unitNumber(name);
    if (!number) {
        if (holdsTables(folder))
            complain(damages,
                     {{name, 0, {}},
                      QStringLiteral("the tables of this folder are left out, since its name is that of no "
                                     "unit"),
                      QStringLiteral("a name such as unit02")});
        return;
    }
    if (const auto [first, isNew] = known.emplace(*number, name); !isNew)
        complain(damages,
                 {{name, 0, {}},
                  QStringLiteral("unit %1 has the folder %2 already").arg(*number).arg(first->second),
                  QStringLiteral("one folder for each unit")});
    readFolder(course, folder.path(), name + u'/', *number, damages);
    if (!holdsTables(folder, QStringLiteral("tablework")))
        complain(damages, {{name + QStringLiteral("/tablework.csv"), 0, {}},
                           QStringLiteral("the table is missing, so that the unit has no step"),
                           QStringLiteral("a table with a row for each step")});
}

// Running numbers order rows and are not read into 16 bits; all other numbers are.
bool holdsNumber(const core::FieldShape& field, qlonglong number) {
    return field.name == "autono" || (number >= -32768 && number <= 32767);
}

Value parseValue(const QString& text, const core::FieldShape& field, const SourcePlace& place,
                 ReadErrors* damages) {
    if (field.kind == core::FieldKind::Text || field.kind == core::FieldKind::Date)
        return text;
    if (text.isEmpty())
        return {};
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber && holdsNumber(field, number))
        return static_cast<std::int64_t>(number);
    complain(damages, SourceError(place, QStringLiteral("'%1' is no number of this field").arg(text),
                                  QStringLiteral("a whole number of -32768 to 32767")));
    return {};
}

/// Fills empty fields with the number after that of the row before, from 1 on; rows of the same key count
/// together.
void numberRows(BuiltTable& table, const QString& field, const QString& key) {
    const int column = table.column(field);
    std::map<qlonglong, std::int64_t> last;
    for (BuiltRow& row : table.rows) {
        const bool grouped = !key.isEmpty() && !table.value(row, key).isNull();
        const qlonglong group = grouped ? static_cast<int>(table.value(row, key).toInt16()) : 0;
        auto& value = row.values[static_cast<std::size_t>(column)];
        if (value.isNull())
            value = ++last[group];
        else if (const auto* number = std::get_if<std::int64_t>(&value.content()))
            last[group] = *number;
    }
}

std::map<int, int> countByRecord(const BuiltTable& table) {
    std::map<int, int> counts;
    for (const BuiltRow& row : table.rows)
        if (!table.value(row, QStringLiteral("recordno")).isNull())
            ++counts[table.value(row, QStringLiteral("recordno")).toInt16()];
    return counts;
}

}  // namespace

std::vector<const CourseSource::UnitTable*> CourseSource::named(const QString& table) const {
    std::vector<const UnitTable*> found;
    for (const UnitTable& unit : tables)
        if (unit.table.table.compare(table, Qt::CaseInsensitive) == 0)
            found.push_back(&unit);
    return found;
}

CourseSource readCourse(const QString& folder, ReadErrors* damages) {
    CourseSource course{folder, {}};
    readFolder(course, folder, QString(), 0, damages);
    const QDir dir(folder);
    std::map<int, QString> units;
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        readUnit(course, dir, name, units, damages);
    if (course.tables.empty() && (damages == nullptr || damages->empty()))
        throw SourceError({folder, 0, {}}, QStringLiteral("the folder holds no course"),
                          QStringLiteral("a folder with topic.csv and unit01, unit02 …"));
    const QString topic = QStringLiteral("topic");
    const QString right = QStringLiteral("a table with number and name of each unit");
    if (!holdsTables(dir, topic))
        complain(damages, {{QStringLiteral("topic.csv"), 0, {}},
                           QStringLiteral("the table is missing, so that the course has no unit"),
                           right});
    const auto topics = course.named(topic);
    const bool empty = std::all_of(topics.begin(), topics.end(),
                                   [](const CourseSource::UnitTable* t) { return t->table.rows.empty(); });
    if (!topics.empty() && empty)
        complain(damages, {{QStringLiteral("topic.csv"), 1, {}},
                           QStringLiteral("the table has no row, so that the course has no unit"),
                           right});
    return course;
}

int BuiltTable::column(const QString& name) const {
    for (qsizetype i = 0; i < fields.size(); ++i)
        if (fields[i].compare(name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

const Value& BuiltTable::value(const BuiltRow& row, const QString& name) const {
    return row.values[static_cast<std::size_t>(column(name))];
}

BuiltCourse::BuiltCourse(const CourseSource& source, ReadErrors* damages) : damages_(damages) {
    for (const AuthoredTable& authored : authoredTables)
        add(source, QLatin1String(authored.store), QLatin1String(authored.table));
    fillCounts();
    addDictionary();
}

void BuiltCourse::add(const CourseSource& source, const QString& store, const QString& table) {
    const auto* definition = core::findTable(store.toStdString(), table.toStdString());
    BuiltTable built{store, fromView(definition->table), {}, {}};
    for (const core::FieldShape& field : definition->fields)
        built.fields.append(fromView(field.name));
    for (const auto* unit : source.named(table))
        addRows(built, *unit);
    tables_.push_back(std::move(built));
}

/// A spreadsheet writes columns without a name where a cell beside the table was touched; they may be empty.
void BuiltCourse::checkColumns(const BuiltTable& built, const QString& authorsField, const TableFile& table) {
    QStringList known = built.fields;
    if (!authorsField.isEmpty())
        known.append(authorsField);
    for (qsizetype i = 0; i < table.columns.size(); ++i) {
        if (!table.columns[i].isEmpty() && !known.contains(table.columns[i], Qt::CaseInsensitive))
            complain(damages_, {{table.file, 1, table.columns[i]},
                                QStringLiteral("the table has no field of this name"),
                                QStringLiteral("one of %1").arg(known.join(QStringLiteral(", ")))});
        const auto filled = std::find_if(table.rows.begin(), table.rows.end(),
                                         [&](const TableRow& row) { return !row.fields[i].isEmpty(); });
        if (table.columns[i].isEmpty() && filled != table.rows.end())
            complain(damages_, {table.place(*filled),
                                QStringLiteral("'%1' stands in column %2, which the first line does not name")
                                    .arg(filled->fields[i])
                                    .arg(i + 1),
                                QStringLiteral("a name in the first line, or an empty column")});
    }
}

void BuiltCourse::addRows(BuiltTable& built, const CourseSource::UnitTable& unit) {
    const TableFile& table = unit.table;
    const QString authorsField = QLatin1String(findAuthored(built.table)->authorsField);
    checkColumns(built, authorsField, table);
    const auto* definition = core::findTable(built.store.toStdString(), built.table.toStdString());
    std::vector<int> columns;
    for (const QString& field : built.fields)
        columns.push_back(table.column(field));
    const int topic = built.column(QStringLiteral("topicno"));
    const int points = authorsField.isEmpty() ? -1 : table.column(authorsField);
    for (const TableRow& row : table.rows) {
        BuiltRow builtRow{{}, table.place(row)};
        if (points >= 0)
            builtRow.points = row.fields[points].split(u' ', Qt::SkipEmptyParts);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const QString text = columns[i] < 0 ? QString() : row.fields[columns[i]];
            const SourcePlace place = table.place(row, built.fields[static_cast<qsizetype>(i)]);
            builtRow.values.push_back(parseValue(text, definition->fields[i], place, damages_));
        }
        if (topic >= 0 && unit.topicNo > 0)
            if (auto& value = builtRow.values[static_cast<std::size_t>(topic)]; value.isNull())
                value = unit.topicNo;
        built.rows.push_back(std::move(builtRow));
    }
}

const BuiltTable& BuiltCourse::table(const QString& name) const {
    return *std::find_if(tables_.begin(), tables_.end(), [&](const BuiltTable& table) {
        return table.table.compare(name, Qt::CaseInsensitive) == 0;
    });
}

void BuiltCourse::fillCounts() {
    const QString record = QStringLiteral("recordno");
    for (BuiltTable& table : tables_) {
        if (table.table == QStringLiteral("tablework"))
            numberRows(table, QStringLiteral("pageno"), QStringLiteral("topicno"));
        else if (table.column(QStringLiteral("orderno")) >= 0)
            numberRows(table, QStringLiteral("orderno"), record);
        if (table.column(QStringLiteral("autono")) >= 0)
            numberRows(table, QStringLiteral("autono"), QString());
    }
    const auto words = countByRecord(table(QStringLiteral("newword")));
    const auto questions = countByRecord(table(QStringLiteral("tovalin1_quiz_data")));
    BuiltTable& steps = const_cast<BuiltTable&>(table(QStringLiteral("tablework")));
    const auto fill = [&](BuiltRow& row, const QString& field, const std::map<int, int>& counts) {
        auto& value = row.values[static_cast<std::size_t>(steps.column(field))];
        if (!value.isNull() || steps.value(row, record).isNull())
            return;
        const auto count = counts.find(steps.value(row, record).toInt16());
        value = count == counts.end() ? Value(0) : Value(count->second);
    };
    for (BuiltRow& row : steps.rows) {
        fill(row, QStringLiteral("wordno"), words);
        fill(row, QStringLiteral("quizno"), questions);
    }
}

void BuiltCourse::addDictionary() {
    const BuiltTable& newWords = table(QStringLiteral("newword"));
    for (const BuiltRow& row : newWords.rows)
        words_.insert(newWords.value(row, QStringLiteral("word")).toText(),
                      newWords.value(row, QStringLiteral("korean")).toText());
    BuiltTable dictionary{QStringLiteral("dicword.mdb"), QStringLiteral("dicword"), {}, {}};
    dictionary.fields = {QStringLiteral("word"), QStringLiteral("scode"), QStringLiteral("defsen")};
    BuiltTable all{QStringLiteral("dicword.mdb"), QStringLiteral("allword"), {QStringLiteral("word")}, {}};
    BuiltTable allKorean{
        QStringLiteral("dicword_K.mdb"), QStringLiteral("allword"), {QStringLiteral("word")}, {}};
    for (auto word = words_.cbegin(); word != words_.cend(); ++word) {
        dictionary.rows.push_back({{word.key(), word.key(), word.value()}, {}});
        all.rows.push_back({{word.key()}, {}});
        allKorean.rows.push_back({{word.value()}, {}});
    }
    tables_.push_back(std::move(dictionary));
    tables_.push_back(std::move(all));
    tables_.push_back(std::move(allKorean));
}

}  // namespace tools
