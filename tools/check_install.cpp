#include "tools/check_install.h"

#include "core/schema.h"
#include "platform/database.h"
#include "platform/drives.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace tools::check {

namespace {

struct StoreTable {
    const char* store;
    const char* path;
    const char* table;
};

constexpr const char* courseStore = "D:\\tovalin.mdb";
constexpr const char* masterStore = "D:\\Tovalin_Data.mdb";

constexpr std::array storeTables{
    StoreTable{"tovalin.mdb", courseStore, "topic"},
    StoreTable{"tovalin.mdb", courseStore, "tablework"},
    StoreTable{"tovalin.mdb", courseStore, "newword"},
    StoreTable{"tovalin.mdb", courseStore, "gram_tip2"},
    StoreTable{"tovalin.mdb", courseStore, "basic_data3"},
    StoreTable{"tovalin.mdb", courseStore, "tablework_final_data"},
    StoreTable{"Tovalin_Data.mdb", masterStore, "tovalin1_quiz_data"},
    StoreTable{"Tovalin_Data.mdb", masterStore, "tovalin1_Basic_Data"},
    StoreTable{"Tovalin_Data.mdb", masterStore, "tovalin1_gram_tip"},
    StoreTable{"Tovalin_Data.mdb", masterStore, "tovalin1_BasicData_115"},
};

// Worksheets print from a copy of the course store, which must agree with it in these tables.
constexpr const char* sheetStore = "C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb";
constexpr std::array sheetTables{"topic", "tablework", "basic_data3", "tablework_final_data"};

platform::Value columnValue(const SQLite::Column& column) {
    if (column.isNull())
        return {};
    if (column.isInteger())
        return static_cast<std::int64_t>(column.getInt64());
    if (column.isFloat())
        return column.getDouble();
    return QString::fromUtf8(column.getText());
}

class InstallReader {
   public:
    explicit InstallReader(const QString& root) : drives_(root) {}

    InstallTables read() {
        for (const StoreTable& wanted : storeTables)
            readTable(wanted, found_.tables);
        compareSheetStore();
        readMedia();
        return std::move(found_);
    }

   private:
    void damage(const QString& place, const QString& sentence) {
        found_.damages.emplace_back(SourcePlace{place, 0, {}}, sentence);
    }

    bool isReadable(const StoreTable& wanted) {
        const QString file = drives_.resolve(QLatin1String(wanted.path));
        switch (platform::storeFormat(file)) {
            case platform::StoreFormat::Store: return true;
            case platform::StoreFormat::Missing:
                damage(file, QStringLiteral("the store is not there"));
                break;
            case platform::StoreFormat::AccessFile:
                damage(file,
                       QStringLiteral("this is a genuine Access file, which `course import` brings over"));
                break;
            case platform::StoreFormat::Unknown: damage(file, QStringLiteral("this is no store")); break;
        }
        return false;
    }

    void readTable(const StoreTable& wanted, std::vector<BuiltTable>& tables) {
        if (!isReadable(wanted))
            return;
        const QString place = QLatin1String(wanted.store) + u'/' + QLatin1String(wanted.table);
        try {
            SQLite::Database store(drives_.resolve(QLatin1String(wanted.path)).toStdString(),
                                   SQLite::OPEN_READONLY);
            SQLite::Statement rows(store, "SELECT rowid, * FROM \"" + std::string(wanted.table) +
                                              "\" ORDER BY " + orderOf(wanted));
            BuiltTable table{QLatin1String(wanted.store), QLatin1String(wanted.table), {}, {}};
            for (int i = 1; i < rows.getColumnCount(); ++i)
                table.fields.append(QString::fromUtf8(rows.getColumnName(i)));
            compareFields(table, place);
            while (rows.executeStep()) {
                BuiltRow row{{}, {place, rows.getColumn(0).getInt(), {}}};
                for (int i = 1; i < rows.getColumnCount(); ++i)
                    row.values.push_back(columnValue(rows.getColumn(i)));
                table.rows.push_back(std::move(row));
            }
            tables.push_back(std::move(table));
        } catch (const SQLite::Exception& failure) {
            damage(place,
                   QStringLiteral("the table cannot be read: %1").arg(QString::fromUtf8(failure.what())));
        }
    }

    /// Master rows are read in the order in which the preparation takes them.
    static std::string orderOf(const StoreTable& wanted) {
        return std::string_view(wanted.path) == masterStore ? "autono, rowid" : "rowid";
    }

    /// Rows are copied between tables by position, so that the order of fields is part of the format.
    void compareFields(const BuiltTable& table, const QString& place) {
        const core::TableDefinition* definition =
            core::findTable(table.store.toStdString(), table.table.toStdString());
        QStringList wanted;
        for (const core::FieldShape& field : definition->fields)
            wanted.append(QString::fromUtf8(field.name.data(), static_cast<qsizetype>(field.name.size())));
        const QStringList first = table.fields.mid(0, wanted.size());
        if (first.join(u',').compare(wanted.join(u','), Qt::CaseInsensitive) != 0)
            damage(place,
                   QStringLiteral("the fields are %1, and the program counts on %2")
                       .arg(table.fields.join(QStringLiteral(", ")), wanted.join(QStringLiteral(", "))));
    }

    const BuiltTable* courseTable(const QString& name) const {
        for (const BuiltTable& table : found_.tables)
            if (table.table == name)
                return &table;
        return nullptr;
    }

    static bool sameRows(const BuiltTable& one, const BuiltTable& other) {
        return std::equal(one.rows.begin(), one.rows.end(), other.rows.begin(), other.rows.end(),
                          [](const BuiltRow& a, const BuiltRow& b) {
                              return std::equal(a.values.begin(), a.values.end(), b.values.begin(),
                                                b.values.end(),
                                                [](const platform::Value& x, const platform::Value& y) {
                                                    return x.content() == y.content();
                                                });
                          });
    }

    void compareSheetStore() {
        for (const char* name : sheetTables) {
            std::vector<BuiltTable> copy;
            readTable({"tovalin.mdb", sheetStore, name}, copy);
            const BuiltTable* original = courseTable(QLatin1String(name));
            if (!copy.empty() && original != nullptr && !sameRows(copy.front(), *original))
                damage(drives_.resolve(QLatin1String(sheetStore)),
                       QStringLiteral("the table %1 of the worksheets is not that of the course")
                           .arg(QLatin1String(name)));
        }
    }

    void readMedia() {
        const QDir sounds(drives_.resolve(QStringLiteral("D:\\A_Mendori\\ABCSound")));
        for (const QFileInfo& file : sounds.entryInfoList({QStringLiteral("*.wav")}, QDir::Files))
            if (file.size() > 0)
                found_.media.sounds.insert(file.completeBaseName().toLower());
        static const QRegularExpression name(QStringLiteral("^lesson_(\\d+)\\.wmv$"),
                                             QRegularExpression::CaseInsensitiveOption);
        const QDir videos(drives_.resolve(QStringLiteral("D:\\A_Mendori\\Mendori_Program\\Tovalin1_Video")));
        for (const QString& file : videos.entryList(QDir::Files))
            if (const auto match = name.match(file); match.hasMatch())
                found_.media.videos.insert(match.captured(1).toInt());
    }

    platform::Drives drives_;
    InstallTables found_;
};

}  // namespace

InstallTables readInstall(const QString& root) {
    return InstallReader(root).read();
}

}  // namespace tools::check
