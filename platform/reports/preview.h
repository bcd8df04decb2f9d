#pragma once

#include "platform/desktop/message_box.h"
#include "platform/reports/layout.h"

#include <QPagedPaintDevice>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QPushButton;
class QScrollArea;

namespace platform {

/// A device that was chosen to print on, or a PDF file that takes its place, and which pages of the report it
/// is to get, counted from 0.
struct PrintJob {
    std::shared_ptr<QPagedPaintDevice> device;
    int first = 0;
    int last = 0;
    /// What the device says went wrong once it has all pages; empty when nothing did.
    std::function<QString()> problem = {};
    QString pdfFile = {};
};

/// Lets the user choose a printer, and hands the job on when one was chosen.
using PrinterChoice =
    std::function<void(QWidget* owner, const ReportLayout& layout, std::function<void(PrintJob)> chosen)>;

/// The desktop's print dialog; without any printer, a name for a PDF file is asked for instead.
void choosePrinter(QWidget* owner, const ReportLayout& layout, std::function<void(PrintJob)> chosen);

/// Asks for the name of a PDF file in the learner's documents folder, and hands it on when one was chosen.
void choosePdfFile(QWidget* owner, const ReportLayout& layout,
                   std::function<void(const QString& file)> chosen);

class ReportSheet;

/// `frmReport`: a report on the screen, page by page, with ways to print it and to save it as PDF. Modal over
/// its owner, but nobody waits inside it: `onClosed` tells when it is gone.
class ReportPreview final : public QWidget {
    Q_OBJECT
   public:
    ReportPreview(ReportLayout layout, MessageBoxes& boxes, PrinterChoice printers, QWidget* owner);
    ~ReportPreview() override;

    int page() const { return page_; }
    int pageCount() const { return static_cast<int>(layout_.pages.size()); }
    void showPage(int page);
    /// Shows the page as wide as the window instead of as a whole.
    void setWide(bool wide);

    /// Asks for a printer. One that refuses is told of, and the window stays.
    void print();
    /// Asks for a file and writes the report into it.
    void saveAsPdf();

    std::function<void()> onClosed;

   protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

   private:
    void buildBar();
    QPushButton* addButton(const char* name, const QString& caption, const QString& tip,
                           std::function<void()> click);
    void fitSheet();
    void printOn(const PrintJob& job);
    void savePdf(const QString& file, int first, int last);

    ReportLayout layout_;
    MessageBoxes& boxes_;
    PrinterChoice printers_;
    QWidget* bar_ = nullptr;
    QScrollArea* area_ = nullptr;
    ReportSheet* sheet_ = nullptr;
    QLabel* pageLabel_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* width_ = nullptr;
    int page_ = 0;
    bool wide_ = false;
    bool closed_ = false;
};

}  // namespace platform
