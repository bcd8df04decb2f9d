#pragma once

#include "platform/drives.h"
#include "platform/reports/preview.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace platform {

/// The report control of a form: runs template files over the tables of the store that lies beside them.
class Report final : public QObject {
    Q_OBJECT
   public:
    /// Where a run goes to; there is only the window.
    enum Output { ToWindow = 0 };

    Report(const QString& name, const Drives& drives, MessageBoxes& boxes, QWidget* owner);

    /// The template of the next run, by its drive path. It stays until another one is set.
    void setFile(const QString& path) { file_ = path; }
    const QString& file() const { return file_; }
    void setOutput(int output);
    /// Reads template and tables and lays the pages out. Throws FileNotFound where there is no template,
    /// SyntaxError with file and line where it is broken.
    void prepare();
    /// Shows the prepared pages and returns; `onClosed` tells when the window is gone.
    void start();

    /// The window of the run that is on, or null.
    ReportPreview* window() const { return window_; }

    std::function<void()> onClosed;
    PrinterChoice printers = choosePrinter;

   private:
    const Drives& drives_;
    MessageBoxes& boxes_;
    QWidget* owner_;
    QString file_;
    std::optional<ReportLayout> prepared_;
    QPointer<ReportPreview> window_;
};

}  // namespace platform
