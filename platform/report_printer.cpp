#include "platform/report_preview.h"

#include <QPrintDialog>
#include <QPrinter>

namespace platform {

void choosePrinter(QWidget* owner, const ReportLayout& layout, std::function<void(PrintJob)> chosen) {
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(layout.name);
    printer->setPageSize(layout.pageSize);
    printer->setFullPage(true);
    auto* dialog = new QPrintDialog(printer.get(), owner);
    dialog->setObjectName(QStringLiteral("dlgPrint"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const int count = static_cast<int>(layout.pages.size());
    dialog->setMinMax(1, count);
    dialog->setFromTo(1, count);
    QObject::connect(dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), owner,
                     [printer, count, chosen = std::move(chosen)](QPrinter*) {
                         const bool range =
                             printer->printRange() == QPrinter::PageRange && printer->fromPage() > 0;
                         const int first = range ? printer->fromPage() - 1 : 0;
                         const int last = range ? std::min(printer->toPage(), count) - 1 : count - 1;
                         chosen({printer, first, last, [printer] {
                                     return printer->printerState() == QPrinter::Error ||
                                                    printer->printerState() == QPrinter::Aborted
                                                ? QStringLiteral("The printer reports an error.")
                                                : QString();
                                 }});
                     });
    dialog->open();
}

}  // namespace platform
