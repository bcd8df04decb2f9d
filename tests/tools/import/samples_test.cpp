// The import held against genuine Access files. A small install of invented rows lies in
// tests/samples/access; the tests of ForeignAccessFiles need files of other schemas that are no part of the
// project, and run where the environment variable MENDORI_ACCESS_SAMPLES names their folder.

#include "tests/tools/import/fake.h"

#include "tools/access/jet.h"
#include "tools/check/install.h"
#include "tools/import/command.h"
#include "tools/import/isolated.h"
#include "tools/import/run.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace tools;

const QString miniInstall = QStringLiteral(MENDORI_SOURCE "/tests/samples/access/mini-install");

class AccessSamples : public ::testing::Test {
   protected:
    static QString mini(const char* path) { return miniInstall + u'/' + QLatin1String(path); }

    /// A copy of a sample that a test may spoil.
    QString copyOf(const QString& sample) {
        const QString file = folder_.filePath(QStringLiteral("spoilt.mdb"));
        QFile::remove(file);
        QFile::copy(sample, file);
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        return file;
    }

    static QByteArray bytesOf(const QString& file) {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }

    /// Reads a file into a store of its own, or tells why not.
    struct Reading {
        SQLite::Database store{":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
        CopyReport report;
        QString error;

        explicit Reading(const QString& file, int codePage = unknownPage) {
            try {
                const auto reader = isolatedMaker(openJetFile)(file, codePage);
                report = copyStore(*reader, {file, QStringLiteral("file"), {}}, store, true,
                                   [](const QString&, qint64) {});
            } catch (const ReadError& failure) {
                error = failure.sentence();
            }
        }

        /// "Table1 2, Table2 0"
        QString rows() const {
            QStringList tables;
            for (const TableProof& proof : report.tables)
                tables.append(QStringLiteral("%1 %2").arg(proof.table).arg(proof.copyRows));
            return tables.join(QStringLiteral(", "));
        }
        bool whole() const {
            return error.isEmpty() && report.problems.isEmpty() &&
                   std::all_of(report.tables.begin(), report.tables.end(),
                               [](const TableProof& p) { return p.proven(); });
        }
        QString sum(const char* table) const {
            for (const TableProof& proof : report.tables)
                if (proof.table == QLatin1String(table))
                    return proof.copySum;
            return {};
        }
        QStringList sums() const {
            QStringList list;
            for (const TableProof& proof : report.tables)
                list.append(proof.table + proof.copySum);
            return list;
        }
        QStringList ask(const char* sql) {
            SQLite::Statement query(store, sql);
            QStringList lines;
            while (query.executeStep()) {
                QStringList fields;
                for (int i = 0; i < query.getColumnCount(); ++i)
                    fields.append(query.getColumn(i).isNull()
                                      ? QStringLiteral("NULL")
                                      : QString::fromUtf8(query.getColumn(i).getText()));
                lines.append(fields.join(u'|'));
            }
            return lines;
        }
    };

    QTemporaryDir folder_;
};

class ForeignAccessFiles : public AccessSamples {
   protected:
    void SetUp() override {
        if (!QFileInfo::exists(folder()))
            GTEST_SKIP() << "MENDORI_ACCESS_SAMPLES names no folder with files of other schemas";
    }

    static QString folder() {
        const QString named = qEnvironmentVariable("MENDORI_ACCESS_SAMPLES");
        return named.isEmpty() ? QString() : named + QStringLiteral("/foreign");
    }
    static QString foreign(const char* name) { return folder() + u'/' + QLatin1String(name); }
};

TEST_F(AccessSamples, OfASmallInstallComeOverWhole) {
    struct Expected {
        const char* file;
        const char* rows;
    };
    constexpr std::array expected{
        Expected{"C/A_Mendori/Main/dicword.mdb", "allword 6, dicword 7"},
        Expected{"C/A_Mendori/Main/DbScore_1001.mdb", "score 6"},
        Expected{"C/A_Mendori/Main/Pversion_2026.mdb", "pversion 2"},
        Expected{"D/tovalin.mdb",
                 "tablework 8, tablework_Final 2, tablework_final_data 3, topic 3, newword 7, quiz_data_New3 "
                 "3, basic_Data 4, "
                 "basic_Data2 3, basic_data3 2, gram_tip 1, gram_tip2 3, blankno 2, blankno2 0, tempword 2, "
                 "student 1, "
                 "guide 1, sample 1"},
        Expected{
            "D/Tovalin_Data.mdb",
            "tovalin1_quiz_data 9, tovalin1_Basic_Data 5, tovalin1_gram_tip 5, tovalin1_BasicData_115 3"},
        Expected{"D/testword_im.mdb", "word_book 3"},
        Expected{"D/testword_2013.mdb", "testword 3, testword2 2, testword3 0, testword4 0, testword6 3"},
        Expected{"D/dicword_K.mdb", "allword 4"},
    };
    for (const Expected& sample : expected) {
        const Reading reading(mini(sample.file));
        EXPECT_TRUE(reading.whole()) << sample.file;
        EXPECT_EQ(reading.rows().toStdString(), sample.rows) << sample.file;
    }
}

TEST_F(ForeignAccessFiles, OfOtherFormatsComeOverWhole) {
    EXPECT_EQ(Reading(foreign("testV1997.mdb")).rows(),
              QStringLiteral("Table1 2, Table2 0, Table3 0, Table4 0"));
    EXPECT_EQ(Reading(foreign("testV2010.accdb")).rows(),
              QStringLiteral("Table1 2, Table2 0, Table3 0, Table4 0"));
    EXPECT_EQ(Reading(foreign("compIndexTestV1997.mdb")).rows(), QStringLiteral("Table1 512"));
    EXPECT_EQ(Reading(foreign("test2V2007.accdb")).rows(),
              QStringLiteral("MSP_PROJECTS 1, MSysCompactError 1"));
    for (const char* name :
         {"testV1997.mdb", "test2V1997.mdb", "compIndexTestV1997.mdb", "delColTestV2000.mdb",
          "test2V2000.mdb", "testUnicodeCompV2003.mdb", "test2V2007.accdb", "testV2010.accdb"})
        EXPECT_TRUE(Reading(foreign(name)).whole()) << name;
}

TEST_F(ForeignAccessFiles, OfTheSameRowsInThreeFormatsHaveTheSameChecksum) {
    const QString sum = Reading(foreign("test2V1997.mdb")).sum("MSP_PROJECTS");
    EXPECT_FALSE(sum.isEmpty());
    EXPECT_EQ(Reading(foreign("test2V2000.mdb")).sum("MSP_PROJECTS"), sum);
    EXPECT_EQ(Reading(foreign("test2V2007.accdb")).sum("MSP_PROJECTS"), sum);
    EXPECT_EQ(Reading(foreign("testV1997.mdb")).sum("Table1"),
              Reading(foreign("testV2010.accdb")).sum("Table1"));
}

TEST_F(AccessSamples, KeepTheirScoresAndDates) {
    Reading reading(mini("C/A_Mendori/Main/DbScore_1001.mdb"));
    EXPECT_EQ(reading.ask("SELECT recordno, s3, s4, vDate, studentname FROM score ORDER BY recordno"),
              (QStringList{QStringLiteral("1|N/A|100.0|2025-12-31 23:59:59|김하늘"),
                           QStringLiteral("2|0|66.67|1999-12-31 09:05:30|김하늘"),
                           QStringLiteral("3|87.5|0.0|2026-01-15|김하늘"),
                           QStringLiteral("14||92.5|2026-02-28 18:30:00|O'Neil 지우"),
                           QStringLiteral("22|NULL|NULL|NULL|NULL"),
                           QStringLiteral("45||100.0|2024-02-29|김하늘")}));
}

TEST_F(AccessSamples, KeepMemosOverSeveralPagesAndNullsApartFromEmptyOnes) {
    Reading reading(mini("D/Tovalin_Data.mdb"));
    EXPECT_EQ(reading.ask("SELECT autono, length(tips) FROM tovalin1_gram_tip ORDER BY rowid"),
              (QStringList{QStringLiteral("3|14"), QStringLiteral("1|9437"), QStringLiteral("2|32"),
                           QStringLiteral("5|0"), QStringLiteral("4|NULL")}));
    const QString tips = reading.ask("SELECT tips FROM tovalin1_gram_tip WHERE autono=1").value(0);
    EXPECT_EQ(std::count_if(tips.begin(), tips.end(),
                            [](QChar c) { return c.unicode() >= 0xac00 && c.unicode() <= 0xd7a3; }),
              5628);
    EXPECT_EQ(reading.ask("SELECT max(length(q1)), min(orderno2), max(orderno2) FROM tovalin1_quiz_data"),
              QStringList{QStringLiteral("3000|-32768|32767")});
}

TEST_F(AccessSamples, KeepARowThatMovedInItsPlace) {
    Reading reading(mini("D/Tovalin_Data.mdb"));
    EXPECT_EQ(reading.ask("SELECT autono FROM tovalin1_Basic_Data ORDER BY rowid"),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"),
                           QStringLiteral("5")}));
}

TEST_F(ForeignAccessFiles, LeaveOutDeletedRowsAndColumns) {
    Reading course(mini("D/tovalin.mdb"));
    EXPECT_EQ(course.ask("SELECT count(*) FROM tablework WHERE recordno=9"),
              QStringList{QStringLiteral("0")});
    EXPECT_EQ(
        course.ask(
            "SELECT group_concat(recordno) FROM (SELECT recordno FROM tablework NOT INDEXED ORDER BY rowid)"),
        QStringList{QStringLiteral("14,3,1,22,2,21,15,4")});
    Reading columns(foreign("delColTestV2000.mdb"));
    EXPECT_EQ(columns.ask("SELECT count(*) FROM pragma_table_info('Table1')"),
              QStringList{QStringLiteral("4")});
}

TEST_F(ForeignAccessFiles, KeepEveryCodeOfCompressedTexts) {
    Reading reading(foreign("testUnicodeCompV2003.mdb"));
    const QStringList columns = reading.ask("SELECT name FROM pragma_table_info('Table')");
    QString all;
    for (const QString& column : columns)
        all +=
            reading
                .ask(QStringLiteral("SELECT %1 FROM \"Table\"").arg(quotedName(column)).toUtf8().constData())
                .join(QString());
    for (char16_t code = 1; code < 256; ++code)
        EXPECT_TRUE(all.contains(QChar(code))) << static_cast<int>(code);
}

TEST_F(ForeignAccessFiles, ReadAKoreanFileOfTheOldFormatInItsCodePage) {
    const QString file = copyOf(foreign("compIndexTestV1997.mdb"));
    import_test::writeText(file, bytesOf(file).replace("abcdef", "\xbc\xb6.\xb9\xb0."));
    Reading reading(file);
    EXPECT_TRUE(reading.whole());
    const QStringList row = reading.ask("SELECT * FROM Table1 LIMIT 1").value(0).split(u'|');
    EXPECT_EQ(row.mid(1), (QStringList{QStringLiteral("섬."), QStringLiteral("물.")}));
}

TEST_F(ForeignAccessFiles, NameTheColumnOfATextThatIsNotValidInItsCodePage) {
    const QString file = copyOf(foreign("compIndexTestV1997.mdb"));
    QByteArray bytes = bytesOf(file);
    const qsizetype place = bytes.indexOf("abcdef");
    ASSERT_GT(place, 0);
    import_test::writeText(file, bytes.replace(place, 3, "ab\xbc"));
    const Reading reading(file, 949);
    ASSERT_EQ(reading.report.problems.size(), 1);
    EXPECT_TRUE(reading.report.problems[0].startsWith(QStringLiteral("file, table Table1, row ")));
    EXPECT_TRUE(
        reading.report.problems[0].endsWith(QStringLiteral(": the text is not valid in code page 949.")));
    EXPECT_TRUE(reading.report.problems[0].contains(QStringLiteral(", column ")));
    EXPECT_EQ(reading.rows(), QStringLiteral("Table1 512"));
}

/// Marks the first text column of a table of nine columns as calculated. Its definition lies behind the
/// counts of columns and indexes at the bytes 45 and 51 of a page that begins with a 2.
void markCalculated(QByteArray& bytes) {
    constexpr int pageSize = 4096;
    for (int page = 0; page + pageSize <= bytes.size(); page += pageSize) {
        if (bytes[page] != 2 || bytes[page + 45] != 9)
            continue;
        const int first = page + 63 + 12 * static_cast<unsigned char>(bytes[page + 51]);
        for (int column = first; column < first + 9 * 25; column += 25)
            if (bytes[column] == 10) {
                bytes[column + 16] = static_cast<char>(bytes[column + 16] | 0xc0);
                return;
            }
    }
    FAIL() << "no such table";
}

TEST_F(ForeignAccessFiles, WithACalculatedFieldAreToldSoAndItsValuesAreNoGarbage) {
    const QString file = copyOf(foreign("testV2010.accdb"));
    QByteArray bytes = bytesOf(file);
    markCalculated(bytes);
    import_test::writeText(file, bytes);
    Reading reading(file);
    ASSERT_EQ(reading.report.problems.size(), 1) << reading.error.toStdString();
    EXPECT_TRUE(reading.report.problems[0].startsWith(QStringLiteral("file, table Table1, column A: ")));
    EXPECT_TRUE(reading.report.problems[0].contains(QStringLiteral("Access calculates the values")));
    EXPECT_EQ(reading.ask("SELECT count(*), count(A), count(B) FROM Table1"), QStringList{"2|0|2"});
    EXPECT_GT(reading.report.tables[0].problems, 0) << "the proof does not call it the same";
}

TEST_F(ForeignAccessFiles, WithAPasswordAreToldSo) {
    for (const char* name : {"testV1997.mdb", "delColTestV2000.mdb"}) {
        const QString file = copyOf(foreign(name));
        QByteArray bytes = bytesOf(file);
        // The password lies under a cipher that is a plain exclusive-or: one bit changed is a password set.
        bytes[0x42] = static_cast<char>(bytes[0x42] ^ 0x41);
        import_test::writeText(file, bytes);
        EXPECT_TRUE(Reading(file).error.contains(QStringLiteral("protected with a password"))) << name;
    }
}

TEST_F(ForeignAccessFiles, NeverLoseARowInSilenceWhicheverPageIsWiped) {
    struct Sample {
        QString file;
        qsizetype pageSize;
    };
    for (const Sample& sample :
         {Sample{mini("D/Tovalin_Data.mdb"), 4096}, Sample{foreign("compIndexTestV1997.mdb"), 2048}}) {
        const QStringList whole = Reading(sample.file).sums();
        const QByteArray bytes = bytesOf(sample.file);
        for (qsizetype place = 0; place < bytes.size(); place += sample.pageSize) {
            const QString file = copyOf(sample.file);
            import_test::writeText(
                file, QByteArray(bytes).replace(place, sample.pageSize, QByteArray(sample.pageSize, '\0')));
            const Reading reading(file);
            EXPECT_TRUE(!reading.whole() || reading.sums() == whole)
                << sample.file.toStdString() << " page " << place / sample.pageSize;
        }
    }
}

TEST_F(AccessSamples, CutAtAnyPlaceEndInASentence) {
    const QString sample = mini("D/Tovalin_Data.mdb");
    const QStringList whole = Reading(sample).sums();
    const QByteArray bytes = bytesOf(sample);
    for (qsizetype length = 0; length < bytes.size(); length += 7001) {
        const QString file = copyOf(sample);
        import_test::writeText(file, bytes.left(length));
        const Reading reading(file);
        EXPECT_TRUE(!reading.whole() || reading.sums() == whole) << length;
    }
}

TEST_F(AccessSamples, GoThroughTheWholeImport) {
    ImportOptions options;
    options.from = miniInstall;
    options.root = folder_.filePath(QStringLiteral("root"));
    QString report;
    QTextStream out(&report);
    Importer importer(options, isolatedMaker(openJetFile), out, [](const QString&) {});
    EXPECT_TRUE(importer.run()) << report.toStdString();
    EXPECT_TRUE(importer.wrote());
    for (const char* path :
         {"C/A_Mendori/Main/DbScore_1001.mdb", "C/Larkfield/Larkfield2013/Tovalin1/tovalin.mdb",
          "D/tovalin.mdb", "D/Tovalin_Data.mdb", "D/dicword_K.mdb"})
        EXPECT_TRUE(QFileInfo::exists(options.root + u'/' + QLatin1String(path))) << path;
    // The tips' fields stand in another order there, which their readers do not mind.
    for (const SourceError& damage : check::readInstall(options.root).damages)
        ADD_FAILURE() << damage.what();
}

TEST_F(AccessSamples, AreCheckedBehindTheImport) {
    const QString root = folder_.filePath(QStringLiteral("root"));
    QString checked;
    const auto check = [&](const QString& folder) {
        checked = folder;
        return 0;
    };
    const QString from = miniInstall;
    testing::internal::CaptureStdout();
    EXPECT_EQ(runImport({from, QStringLiteral("--root"), root, QStringLiteral("--dry-run")}, check), 0);
    EXPECT_TRUE(checked.isEmpty());
    EXPECT_EQ(runImport({from, QStringLiteral("--root"), root}, check), 0);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(checked, root);
}

}  // namespace
