#include "platform/reports/template.h"

#include "platform/error.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Drives;
using platform::ErrorCode;
using platform::readReportTemplate;
using platform::RuntimeError;

namespace {

/// A folder of templates on drive C.
class ReportTemplateTest : public ::testing::Test {
   protected:
    ReportTemplateTest() { QDir(folder_.path()).mkpath(QStringLiteral("C/reports")); }

    static QString path(const QString& name) { return QStringLiteral("C:\\reports\\") + name; }
    void write(const QString& name, const QByteArray& content) const {
        QFile file(drives_.resolve(path(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    platform::ReportTemplate read(const QString& name) const {
        return readReportTemplate(drives_, path(name));
    }
    /// The sentence of the error that reading ends in.
    QString error(const QString& name) const {
        try {
            read(name);
        } catch (const RuntimeError& failure) {
            code_ = failure.code();
            return failure.sentence();
        }
        return {};
    }

    QTemporaryDir folder_;
    Drives drives_{folder_.path()};
    mutable ErrorCode code_{};
};

const QByteArray least = "store = \"s.mdb\"\nrows = \"t\"\n[[item]]\nprompts = [\"{a}\"]\n";

}  // namespace

TEST_F(ReportTemplateTest, AMissingFileIsNotFound) {
    EXPECT_TRUE(error(QStringLiteral("none.rpt")).contains(path(QStringLiteral("none.rpt"))));
    EXPECT_EQ(code_, ErrorCode::FileNotFound);
}

TEST_F(ReportTemplateTest, ABrokenFileIsToldWithFileAndLine) {
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"store = \"s\"\nrows = t\n", QStringLiteral("line 2")},
        {"store = \"s\"\n\n[page\n", QStringLiteral("line 3")},
        {"store = \"s\"\nrows = 5\n", QStringLiteral("line 2: 'rows' must be a text")},
        {"# a note\nstor = \"s\"\n", QStringLiteral("line 2: There is no setting 'stor' here")},
        {"[page]\nmargins = [1, 2]\n", QStringLiteral("line 2: Margins are four numbers")},
        {"[page]\nmargins = [60, 1, 60, 1]\n", QStringLiteral("line 2: Margins leave too little")},
        {"[page]\nsize = \"A0\"\n", QStringLiteral("line 2: The page size must be")},
        {"[size]\n\n\ntitle = 500\n", QStringLiteral("line 4")},
        {"[page]\ngap_most = -1\n", QStringLiteral("line 2")},
        {"key = 1\n", QStringLiteral("line 1: 'key' must be true or false")},
        {"[group]\ntext = \"x\"\n", QStringLiteral("line 1: A group needs")},
        {"[[item]]\nwords = [\"{a}\"]\n", QStringLiteral("line 1: An item needs as many")},
        {"item = []\n", QStringLiteral("line 1: A row prints one item or two")},
        {"head = 1\n", QStringLiteral("line 1: 'head' must be a section")},
        {"include = \"none.rpt\"\n", QStringLiteral("line 1: There is no file")},
        {"", QStringLiteral("It needs 'store'")},
        {"store = \"\xff\xfe\"\n", QStringLiteral("line 1")},
    };
    for (const auto& [content, expected] : cases) {
        write(QStringLiteral("bad.rpt"), content);
        const QString sentence = error(QStringLiteral("bad.rpt"));
        EXPECT_TRUE(sentence.contains(expected)) << content.toStdString() << "\n" << sentence.toStdString();
        EXPECT_TRUE(sentence.contains(path(QStringLiteral("bad.rpt")))) << sentence.toStdString();
        EXPECT_EQ(code_, ErrorCode::SyntaxError);
    }
}

TEST_F(ReportTemplateTest, AnErrorInAnIncludedFileNamesThatFile) {
    write(QStringLiteral("base.rpt"), "rows = \"t\"\nwrong = 1\n");
    write(QStringLiteral("top.rpt"), "include = \"base.rpt\"\n");
    EXPECT_TRUE(error(QStringLiteral("top.rpt")).contains(QStringLiteral("base.rpt' is broken in line 2")));
}

TEST_F(ReportTemplateTest, TemplatesThatIncludeOneAnotherInARingAreRefused) {
    write(QStringLiteral("a.rpt"), "include = \"b.rpt\"\n");
    write(QStringLiteral("b.rpt"), "include = \"a.rpt\"\n");
    EXPECT_TRUE(error(QStringLiteral("a.rpt")).contains(QStringLiteral("in a ring")));
}

TEST_F(ReportTemplateTest, ATemplateChangesWhatItIncludes) {
    write(QStringLiteral("base.rpt"), least + "[page]\ngap_most = 9\nblank_least = 20\n");
    write(QStringLiteral("key.rpt"), "include = \"base.rpt\"\nkey = true\n[page]\ngap_most = 5\n");
    const auto report = read(QStringLiteral("key.rpt"));
    EXPECT_TRUE(report.key);
    EXPECT_EQ(report.gapMost, 5);
    EXPECT_EQ(report.blankLeast, 20);
    EXPECT_EQ(report.items.size(), 1U);
    EXPECT_EQ(report.items[0].prompts[0].text, QStringLiteral("{a}"));
    EXPECT_EQ(report.items[0].prompts[0].line, 4);
}

TEST_F(ReportTemplateTest, AFileSavedByANotepadIsRead) {
    write(QStringLiteral("bom.rpt"), "\xef\xbb\xbf" + QByteArray(least).replace('\n', "\r\n"));
    EXPECT_EQ(error(QStringLiteral("bom.rpt")), QString());
}

TEST_F(ReportTemplateTest, TheOtherSpellingOfASuffixIsFoundWhereOnlyOneIsThere) {
    write(QStringLiteral("gram1_T.rpt"), least);
    EXPECT_EQ(error(QStringLiteral("gram1_t.rpt")), QString());
}

TEST_F(ReportTemplateTest, EveryTemplateOfTheCourseIsWellFormed) {
    const QDir reports(QStringLiteral(MENDORI_SOURCE "/reports"));
    const QStringList names = reports.entryList({QStringLiteral("*.rpt")});
    for (const QString& name : names)
        QFile::copy(reports.filePath(name), drives_.resolve(path(name)));
    EXPECT_GE(names.size(), 20);
    for (const QString& name : names) {
        if (name == QStringLiteral("gram_base.rpt"))
            continue;
        EXPECT_EQ(error(name), QString()) << name.toStdString();
        const bool teachers = name.contains(QStringLiteral("_t."), Qt::CaseInsensitive);
        EXPECT_EQ(read(name).key, teachers) << name.toStdString();
    }
}
