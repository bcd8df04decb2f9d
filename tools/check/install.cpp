#include "tools/check/install.h"

#include "core/schema.h"
#include "platform/drives.h"
#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace tools::check {

namespace {

struct Store {
    const char* name;
    const char* path;
    const char* order;
};

// Master rows are read in the order in which the preparation takes them.
constexpr std::array stores{
    Store{"tovalin.mdb", "D:\\tovalin.mdb", "rowid"},
    Store{"Tovalin_Data.mdb", "D:\\Tovalin_Data.mdb", "autono, rowid"},
    Store{"testword_im.mdb", "D:\\testword_im.mdb", "rowid"},
    Store{"testword_2013.mdb", "D:\\testword_2013.mdb", "rowid"},
    Store{"dicword_K.mdb", "D:\\dicword_K.mdb", "rowid"},
    Store{"dicword.mdb", "C:\\A_Mendori\\Main\\dicword.mdb", "rowid"},
    Store{"Pversion_2026.mdb", "C:\\A_Mendori\\Main\\Pversion_2026.mdb", "rowid"},
};

// The tables that the rules read; of the others it is enough that they are there.
constexpr std::array readTables{"topic",
                                "tablework",
                                "newword",
                                "gram_tip2",
                                "basic_data3",
                                "tablework_final_data",
                                "tovalin1_quiz_data",
                                "tovalin1_Basic_Data",
                                "tovalin1_gram_tip",
                                "tovalin1_BasicData_115"};

// Worksheets print from a copy of the course store, which must agree with it in these tables.
constexpr Store sheetStore{"tovalin.mdb", "C:\\Larkfield\\Larkfield2013\\Tovalin1\\tovalin.mdb", "rowid"};
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

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool isOf(const core::TableDefinition& definition, const Store& store) {
    return definition.store == store.name;
}

class InstallReader {
   public:
    InstallReader(const QString& root, const QString& pictures) : drives_(root), pictures_(pictures) {}

    InstallTables read() {
        for (const Store& store : stores)
            if (isReadable(store))
                for (const core::TableDefinition& definition : core::tableDefinitions())
                    if (isOf(definition, store))
                        readStoreTable(store, definition);
        if (isReadable(sheetStore))
            compareSheetStore();
        readMedia();
        for (const char* folder : {"interface", "button"})
            readPictures(QLatin1String(folder));
        return std::move(found_);
    }

   private:
    void damage(const QString& place, const QString& sentence, const QString& right) {
        found_.damages.emplace_back(SourcePlace{place, 0, {}}, sentence, right);
    }

    bool isReadable(const Store& store) {
        const QString file = drives_.resolve(QLatin1String(store.path));
        switch (platform::storeFormat(file)) {
            case platform::StoreFormat::Store: return true;
            case platform::StoreFormat::Missing:
                damage(file, QStringLiteral("the store is not there, and the program ends without it"),
                       QStringLiteral("a store that course build, setup or course import makes"));
                break;
            case platform::StoreFormat::AccessFile:
                damage(file, QStringLiteral("this is a genuine Access file"),
                       QStringLiteral("the store that course import makes of it in another folder"));
                break;
            case platform::StoreFormat::Unknown:
                damage(file, QStringLiteral("this is no store"),
                       QStringLiteral("a store that course build, setup or course import makes"));
                break;
        }
        return false;
    }

    void readStoreTable(const Store& store, const core::TableDefinition& definition) {
        const bool isRead = std::any_of(readTables.begin(), readTables.end(),
                                        [&](const char* name) { return definition.table == name; });
        readTable(store, fromView(definition.table), isRead, found_.tables);
    }

    void readTable(const Store& store, const QString& name, bool rowsToo, std::vector<BuiltTable>& tables) {
        const QString place = QLatin1String(store.name) + u'/' + name;
        try {
            SQLite::Database database(drives_.resolve(QLatin1String(store.path)).toStdString(),
                                      SQLite::OPEN_READONLY);
            if (!database.tableExists(name.toStdString())) {
                damage(place, QStringLiteral("the store has no table of this name"),
                       QStringLiteral("the table, if only an empty one"));
                return;
            }
            SQLite::Statement rows(database,
                                   QStringLiteral("SELECT rowid, * FROM \"%1\"").arg(name).toStdString() +
                                       (rowsToo ? " ORDER BY " + std::string(store.order) : " LIMIT 0"));
            BuiltTable table{QLatin1String(store.name), name, {}, {}};
            for (int i = 1; i < rows.getColumnCount(); ++i)
                table.fields.append(QString::fromUtf8(rows.getColumnName(i)));
            findFields(table, place);
            while (rows.executeStep()) {
                BuiltRow row{{}, {place, rows.getColumn(0).getInt(), {}}};
                for (int i = 1; i < rows.getColumnCount(); ++i)
                    row.values.push_back(columnValue(rows.getColumn(i)));
                table.rows.push_back(std::move(row));
            }
            if (rowsToo)
                tables.push_back(std::move(table));
        } catch (const SQLite::Exception& failure) {
            damage(place,
                   QStringLiteral("the table cannot be read: %1").arg(QString::fromUtf8(failure.what())),
                   QStringLiteral("a store that is whole"));
        }
    }

    /// The program asks for fields by their names, whatever their order is. Those that are only copied along
    /// by their place may have any name.
    void findFields(const BuiltTable& table, const QString& place) {
        const core::TableDefinition* definition =
            core::findTable(table.store.toStdString(), table.table.toStdString());
        for (const core::FieldShape& field : definition->fields)
            if (const QString name = fromView(field.name);
                table.column(name) < 0 && !name.startsWith(QStringLiteral("extra")))
                found_.damages.emplace_back(SourcePlace{place, 0, name},
                                            QStringLiteral("the table has no field of this name; it has %1")
                                                .arg(table.fields.join(QStringLiteral(", "))),
                                            QStringLiteral("a field '%1'").arg(name));
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
            readTable(sheetStore, QLatin1String(name), true, copy);
            const BuiltTable* original = courseTable(QLatin1String(name));
            if (!copy.empty() && original != nullptr && !sameRows(copy.front(), *original))
                damage(drives_.resolve(QLatin1String(sheetStore.path)),
                       QStringLiteral("the table %1 of the worksheets is not that of the course")
                           .arg(QLatin1String(name)),
                       QStringLiteral("a copy of the course's own store"));
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

    void readPictures(const QString& folder) {
        MissingPictures missing{QStringLiteral("D:\\") + folder, {}, 0};
        for (const QString& name :
             QDir(pictures_ + u'/' + folder).entryList({QStringLiteral("*.jpg")}, QDir::Files)) {
            // Larger ones for dense screens may be missing, and the log-in panel's lies elsewhere.
            if (pictures_.isEmpty() || name.contains(u'@') || name == QStringLiteral("login.jpg"))
                continue;
            ++missing.wanted;
            if (!QFileInfo::exists(drives_.resolve(missing.folder + u'\\' + name)))
                missing.names.append(name);
        }
        if (!missing.names.isEmpty())
            found_.media.missing.push_back(missing);
    }

    platform::Drives drives_;
    QString pictures_;
    InstallTables found_;
};

}  // namespace

InstallTables readInstall(const QString& root, const QString& pictures) {
    return InstallReader(root, pictures).read();
}

}  // namespace tools::check
