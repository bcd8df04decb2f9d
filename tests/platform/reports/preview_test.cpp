#include "platform/reports/report.h"

#include "platform/error.h"
#include "platform/reports/paint.h"
#include "platform/whole_file.h"
#include "tests/support/desk.h"
#include "tests/support/file_size_limit.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>

#include <gtest/gtest.h>

using platform::PrintJob;
using platform::Report;
using platform::ReportLayout;
using platform::ReportPreview;
using support::find;
using support::settle;

namespace {

const QString templatePath = QStringLiteral("C:\\reports\\list.rpt");

/// A store and a template of a test's own, and the window of a report over them.
class ReportPreviewTest : public ::testing::Test {
   protected:
    ReportPreviewTest() {
        QDir(desk_.root()).mkpath(QStringLiteral("C/reports"));
        QFile::copy(desk_.file(support::sheetStore), desk_.root() + QStringLiteral("/C/reports/list.mdb"));
        writeTemplate(
            "store = \"list.mdb\"\nrows = \"tempword\"\norder = \"orderno\"\nname = \"This / my list\"\n"
            "foot = \"{page}\"\n[[item]]\nprompts = [\"{word1}\"]\n");
    }
    void writeTemplate(const QByteArray& content) {
        QFile file(desk_.root() + QStringLiteral("/C/reports/list.rpt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    void addRows(int count) {
        std::string sql;
        for (int i = 1; i <= count; ++i)
            sql += "insert into tempword(word1,orderno) values('line " + std::to_string(i) + "'," +
                   std::to_string(i) + ");";
        desk_.exec(QStringLiteral("C:\\reports\\list.mdb"), sql);
    }
    ReportPreview* start() {
        report_.setFile(templatePath);
        report_.setOutput(Report::ToWindow);
        report_.prepare();
        report_.start();
        settle();
        return report_.window();
    }
    static QString pageText(ReportPreview* window) {
        return find<QLabel>(window, QStringLiteral("lblPage")).text();
    }

    support::Desk desk_;
    QWidget owner_;
    Report report_{QStringLiteral("prtReport"), desk_.context().drives, desk_.boxes, &owner_};
};

PrintJob jobOn(const QString& file, const ReportLayout& layout) {
    return {std::make_shared<QPdfWriter>(file), 0, static_cast<int>(layout.pages.size()) - 1};
}

}  // namespace

TEST_F(ReportPreviewTest, PagesAreTurnedByKeysAndButtons) {
    addRows(100);
    ReportPreview* window = start();
    const int count = window->pageCount();
    ASSERT_GT(count, 2);
    EXPECT_EQ(pageText(window), QStringLiteral("1 / %1").arg(count));
    QTest::keyClick(window, Qt::Key_PageDown);
    QTest::keyClick(window, Qt::Key_Right);
    EXPECT_EQ(window->page(), 2);
    QTest::keyClick(window, Qt::Key_PageUp);
    EXPECT_EQ(window->page(), 1);
    QTest::keyClick(window, Qt::Key_End);
    EXPECT_EQ(window->page(), count - 1);
    QTest::keyClick(window, Qt::Key_PageDown);
    EXPECT_EQ(window->page(), count - 1);
    EXPECT_FALSE(find<QPushButton>(window, QStringLiteral("cmdNext")).isEnabled());
    QTest::keyClick(window, Qt::Key_Home);
    EXPECT_EQ(window->page(), 0);
    QTest::keyClick(window, Qt::Key_Left);
    EXPECT_EQ(window->page(), 0);
    support::click(find(window, QStringLiteral("cmdNext")));
    EXPECT_EQ(pageText(window), QStringLiteral("2 / %1").arg(count));
    support::click(find(window, QStringLiteral("cmdPrevious")));
    EXPECT_EQ(window->page(), 0);
}

TEST_F(ReportPreviewTest, KeysStillTurnPagesWhenAButtonHasTheFocus) {
    addRows(100);
    ReportPreview* window = start();
    auto& next = find<QPushButton>(window, QStringLiteral("cmdNext"));
    next.setFocus();
    QTest::keyClick(&next, Qt::Key_PageDown);
    EXPECT_EQ(window->page(), 1);
    QTest::keyClick(&next, Qt::Key_End);
    settle();
    EXPECT_TRUE(window->focusWidget() == nullptr || window->focusWidget()->isEnabled());
}

TEST_F(ReportPreviewTest, EscapeAndTheCloseButtonCloseAndTellOnce) {
    addRows(3);
    int closed = 0;
    report_.onClosed = [&] { ++closed; };
    QTest::keyClick(start(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(report_.window(), nullptr);
    EXPECT_EQ(closed, 1);
    support::click(find(start(), QStringLiteral("cmdClose")));
    EXPECT_EQ(report_.window(), nullptr);
    EXPECT_EQ(closed, 2);
}

TEST_F(ReportPreviewTest, TheWindowShowsWhatThePaintFunctionPaints) {
    addRows(3);
    ReportPreview* window = start();
    const QImage picture = window->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            dark += qGray(picture.pixel(x, y)) < 100 ? 1 : 0;
    EXPECT_GT(dark, 200);
    window->setWide(true);
    EXPECT_GT(find(window, QStringLiteral("reportSheet")).height(), window->height());
    QTest::keyClick(window, Qt::Key_Minus);
    EXPECT_LT(find(window, QStringLiteral("reportSheet")).height(), window->height());
}

TEST_F(ReportPreviewTest, ARunReadsTheRowsAsTheyAreWhenItIsPrepared) {
    addRows(1);
    EXPECT_EQ(start()->pageCount(), 1);
    report_.window()->close();
    settle();
    addRows(200);
    EXPECT_GT(start()->pageCount(), 3);
}

TEST_F(ReportPreviewTest, APrinterGetsAllPages) {
    addRows(100);
    ReportPreview* window = start();
    const QString file = desk_.root() + QStringLiteral("/printed.pdf");
    window->close();
    settle();
    report_.printers = [&](QWidget*, const ReportLayout& layout,
                           const std::function<void(PrintJob)>& chosen) { chosen(jobOn(file, layout)); };
    window = start();
    QTest::keyClick(window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_GT(QFileInfo(file).size(), 1000);
    EXPECT_TRUE(desk_.boxes.shown.empty());
    EXPECT_EQ(report_.window(), window);
}

TEST_F(ReportPreviewTest, APrinterThatRefusesSaysSoAndThePreviewStays) {
    addRows(2);
    const std::vector<PrintJob> refusals{
        {},
        {std::make_shared<QPdfWriter>(QStringLiteral("/nowhere/at/all.pdf")), 0, 0},
        {std::make_shared<QPdfWriter>(desk_.root() + QStringLiteral("/out.pdf")), 0, 0,
         [] { return QStringLiteral("Out of paper."); }}};
    std::size_t next = 0;
    report_.printers = [&](QWidget*, const ReportLayout&, const std::function<void(PrintJob)>& chosen) {
        chosen(refusals[next]);
    };
    ReportPreview* window = start();
    for (next = 0; next < refusals.size(); ++next) {
        support::click(find(window, QStringLiteral("cmdPrint")));
        ASSERT_EQ(desk_.boxes.shown.size(), next + 1);
        EXPECT_TRUE(desk_.boxes.lastText().startsWith(QStringLiteral("프린터에서 인쇄하지 못했습니다.")));
        EXPECT_TRUE(window->isVisible());
    }
    EXPECT_TRUE(desk_.boxes.lastText().contains(QStringLiteral("Out of paper.")));
    EXPECT_TRUE(desk_.failure().isEmpty());
}

TEST_F(ReportPreviewTest, AReportIsSavedAsPdfUnderItsName) {
    addRows(40);
    ReportPreview* window = start();
    support::click(find(window, QStringLiteral("cmdSavePdf")));
    auto& dialog = find<QFileDialog>(window, QStringLiteral("dlgSavePdf"));
    EXPECT_EQ(QFileInfo(dialog.selectedFiles().value(0)).fileName(), QStringLiteral("This - my list.pdf"));
    const QString file = desk_.root() + QStringLiteral("/saved.pdf");
    Q_EMIT dialog.fileSelected(file);
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.read(5).startsWith("%PDF-"));
    Q_EMIT dialog.fileSelected(QStringLiteral("/nowhere/at/all.pdf"));
    EXPECT_TRUE(desk_.boxes.lastText().startsWith(QStringLiteral("PDF 파일을 저장하지 못했습니다.")));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ReportPreviewTest, APdfThatCannotBeWrittenWholeIsToldAndTheOlderFileStays) {
    addRows(200);
    ReportPreview* window = start();
    const QString file = desk_.root() + QStringLiteral("/saved.pdf");
    const QByteArray older = "%PDF-older";
    ASSERT_EQ(platform::writeWhole(file, older), QString());
    support::click(find(window, QStringLiteral("cmdSavePdf")));
    auto& dialog = find<QFileDialog>(window, QStringLiteral("dlgSavePdf"));
    {
        const support::FileSizeLimit limit(8192);
        Q_EMIT dialog.fileSelected(file);
    }
    ASSERT_EQ(desk_.boxes.shown.size(), 1U);
    EXPECT_TRUE(desk_.boxes.lastText().startsWith(QStringLiteral("PDF 파일을 저장하지 못했습니다.")));
    EXPECT_TRUE(desk_.boxes.lastText().contains(QStringLiteral("File too large")))
        << desk_.boxes.lastText().toStdString();
    QFile kept(file);
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), older);
    EXPECT_EQ(QDir(desk_.root()).entryList({QStringLiteral("saved*")}), QStringList{"saved.pdf"});
}

TEST_F(ReportPreviewTest, TheTextOfASavedPdfIsCopiedWithItsBlanks) {
    addRows(2);
    const QString file = desk_.root() + QStringLiteral("/saved.pdf");
    start();
    support::click(find(report_.window(), QStringLiteral("cmdSavePdf")));
    Q_EMIT find<QFileDialog>(report_.window(), QStringLiteral("dlgSavePdf")).fileSelected(file);
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    const QByteArray characters = saved.readAll();
    EXPECT_TRUE(characters.contains("<006E> <0065> <0020>")) << "line";
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {file, QStringLiteral("-")});
    if (!reader.waitForStarted())
        GTEST_SKIP() << "pdftotext is not installed";
    ASSERT_TRUE(reader.waitForFinished());
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    EXPECT_TRUE(text.contains(QStringLiteral("line 2"))) << text.toStdString();
    EXPECT_FALSE(text.contains(QChar(1)));
}

TEST_F(ReportPreviewTest, WithoutAPrinterAPdfFileInTheDocumentsFolderIsOffered) {
    ASSERT_TRUE(QPrinterInfo::availablePrinterNames().isEmpty()) << "this test wants a machine without one";
    addRows(3);
    const QString documents = desk_.root() + QStringLiteral("/Documents");
    QDir().mkpath(documents);
    qputenv("HOME", desk_.root().toUtf8());
    ReportPreview* window = start();
    support::click(find(window, QStringLiteral("cmdPrint")));
    EXPECT_EQ(window->findChild<QPrintDialog*>(), nullptr);
    auto& dialog = find<QFileDialog>(window, QStringLiteral("dlgSavePdf"));
    EXPECT_EQ(dialog.selectedFiles().value(0), documents + QStringLiteral("/This - my list.pdf"));
    Q_EMIT dialog.fileSelected(documents);
    EXPECT_TRUE(desk_.boxes.lastText().startsWith(QStringLiteral("PDF 파일을 저장하지 못했습니다.")));
    Q_EMIT dialog.fileSelected(documents + QStringLiteral("/sheet.pdf"));
    EXPECT_EQ(desk_.boxes.shown.size(), 1U);
    EXPECT_GT(QFileInfo(documents + QStringLiteral("/sheet.pdf")).size(), 1000);
}

TEST_F(ReportPreviewTest, AReportThatWasNotPreparedOrHasNoFileIsRefused) {
    EXPECT_THROW(report_.prepare(), platform::RuntimeError);
    EXPECT_THROW(report_.start(), platform::RuntimeError);
    EXPECT_THROW(report_.setOutput(1), platform::RuntimeError);
}

TEST_F(ReportPreviewTest, ATableOrFieldThatTheStoreLacksIsToldWithFileAndLine) {
    report_.setFile(templatePath);
    const std::vector<std::pair<QByteArray, QString>> cases{
        {"store = \"list.mdb\"\nrows = \"nothing\"\n[[item]]\nprompts = [\"a\"]\n",
         QStringLiteral("broken in line")},
        {"store = \"list.mdb\"\nrows = \"tempword\"\nfoot = \"\"\n[[item]]\nprompts = [\"{none.x}\"]\n",
         QStringLiteral("broken in line 5")},
        {"store = \"list.mdb\"\nrows = \"tempword\"\nname = \"{student.Nobody}\"\n[[item]]\nprompts = "
         "[\"a\"]\n",
         QStringLiteral("broken in line 3")}};
    for (const auto& [content, expected] : cases) {
        writeTemplate(content);
        try {
            report_.prepare();
            FAIL() << content.toStdString();
        } catch (const platform::RuntimeError& failure) {
            EXPECT_TRUE(failure.sentence().contains(expected)) << failure.sentence().toStdString();
        }
    }
}
