#include "platform/reports/report.h"

#include "platform/desktop/waiting.h"
#include "platform/error.h"

#include <utility>

namespace platform {

Report::Report(const QString& name, const Drives& drives, MessageBoxes& boxes, QWidget* owner)
    : QObject(owner), drives_(drives), boxes_(boxes), owner_(owner) {
    setObjectName(name);
}

void Report::setOutput(int output) {
    if (output != ToWindow)
        throw RuntimeError(ErrorCode::InvalidCall, QStringLiteral("Reports have no output %1.").arg(output));
}

void Report::prepare() {
    if (file_.isEmpty())
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("Report file not found: no report was chosen."));
    const ReportTemplate report = readReportTemplate(drives_, file_);
    prepared_ = layOutReport(report, readReportData(drives_, report));
}

void Report::start() {
    if (!prepared_)
        throw RuntimeError(ErrorCode::InvalidCall,
                           QStringLiteral("A report was started before it was prepared."));
    auto* window = new ReportPreview(std::move(*prepared_), boxes_, printers, owner_);
    prepared_.reset();
    window_ = window;
    window->onClosed = [this] {
        window_ = nullptr;
        // From the event loop, so that what the owner does next is not done inside a window that is going.
        later(this, [this] { run(onClosed); });
    };
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace platform
