#include "platform/reports/preview.h"

#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace platform {

namespace {

/// The report's name as a file's: signs that no file may be named with become dashes.
QString fileName(QString name) {
    static const QString signs = QStringLiteral("/\\:*?\"<>|");
    for (QChar& letter : name)
        if (signs.contains(letter) || letter.category() == QChar::Other_Control)
            letter = u'-';
    return name.trimmed() + QStringLiteral(".pdf");
}

/// The folder of the learner's documents, or the nearest one above it that is there.
QString documentsFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    while (!QFileInfo(folder).isDir() && folder.count(u'/') > 1)
        folder = folder.section(u'/', 0, -2);
    return folder;
}

/// What the print dialog was left with. It offers a file beside the printers too.
PrintJob jobOf(const std::shared_ptr<QPrinter>& printer, int count) {
    const bool range = printer->printRange() == QPrinter::PageRange && printer->fromPage() > 0;
    const int first = range ? printer->fromPage() - 1 : 0;
    const int last = range ? std::min(printer->toPage(), count) - 1 : count - 1;
    if (printer->outputFormat() == QPrinter::PdfFormat && !printer->outputFileName().isEmpty())
        return {nullptr, first, last, {}, printer->outputFileName()};
    return {printer, first, last, [printer] {
                return printer->printerState() == QPrinter::Error ||
                               printer->printerState() == QPrinter::Aborted
                           ? QStringLiteral("The printer reports an error.")
                           : QString();
            }};
}

}  // namespace

void choosePdfFile(QWidget* owner, const ReportLayout& layout,
                   std::function<void(const QString& file)> chosen) {
    auto* dialog = new QFileDialog(owner, QStringLiteral("Save as PDF"), documentsFolder(),
                                   QStringLiteral("PDF (*.pdf)"));
    dialog->setObjectName(QStringLiteral("dlgSavePdf"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("pdf"));
    dialog->selectFile(fileName(layout.name));
    QObject::connect(dialog, &QFileDialog::fileSelected, owner, std::move(chosen));
    dialog->open();
}

void choosePrinter(QWidget* owner, const ReportLayout& layout, std::function<void(PrintJob)> chosen) {
    const int count = static_cast<int>(layout.pages.size());
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        choosePdfFile(owner, layout, [count, chosen = std::move(chosen)](const QString& file) {
            chosen({nullptr, 0, count - 1, {}, file});
        });
        return;
    }
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(layout.name);
    printer->setPageSize(layout.pageSize);
    printer->setFullPage(true);
    auto* dialog = new QPrintDialog(printer.get(), owner);
    dialog->setObjectName(QStringLiteral("dlgPrint"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMinMax(1, count);
    dialog->setFromTo(1, count);
    QObject::connect(
        dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), owner,
        [printer, count, chosen = std::move(chosen)](QPrinter*) { chosen(jobOf(printer, count)); });
    dialog->open();
}

}  // namespace platform
