#include "platform/reports/preview.h"

#include "platform/desktop/look.h"
#include "platform/desktop/waiting.h"
#include "platform/reports/paint.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace platform {

namespace {

constexpr int sheetMargin = 18;
constexpr int buttonPadding = 10;
constexpr QRgb desk = 0xffdcd6c9;
constexpr QRgb shade = 0x30000000;

QRect previewPlace() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(0, 0, std::min(screen.width(), 1000), screen.height() - std::min(40, screen.height() / 20));
    place.moveCenter(screen.center());
    return place;
}

}  // namespace

/// The page on view.
class ReportSheet final : public QWidget {
   public:
    explicit ReportSheet(const ReportLayout& layout) : layout_(layout) {
        setObjectName(QStringLiteral("reportSheet"));
    }
    void setPage(int page) {
        page_ = page;
        setAccessibleName(QStringLiteral("Page %1").arg(page + 1));
        update();
    }

   protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect paper = rect().adjusted(sheetMargin, sheetMargin, -sheetMargin, -sheetMargin);
        painter.fillRect(paper.translated(3, 4), QColor::fromRgba(shade));
        painter.fillRect(paper, Qt::white);
        paintReportPage(painter, layout_, page_, paper);
    }

   private:
    const ReportLayout& layout_;
    int page_ = 0;
};

ReportPreview::ReportPreview(ReportLayout layout, MessageBoxes& boxes, PrinterChoice printers, QWidget* owner)
    : QWidget(owner, Qt::Dialog), layout_(std::move(layout)), boxes_(boxes), printers_(std::move(printers)) {
    setObjectName(QStringLiteral("frmReport"));
    setAccessibleName(QStringLiteral("Worksheet preview"));
    setWindowTitle(layout_.name);
    setWindowModality(Qt::ApplicationModal);
    setFocusPolicy(Qt::StrongFocus);
    sheet_ = new ReportSheet(layout_);
    area_ = new QScrollArea;
    area_->setObjectName(QStringLiteral("reportArea"));
    area_->setFrameShape(QFrame::NoFrame);
    area_->setAlignment(Qt::AlignCenter);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(sheet_);
    area_->viewport()->installEventFilter(this);
    QPalette palette = area_->palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(desk));
    area_->setPalette(palette);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    bar_ = new QWidget;
    column->addWidget(bar_);
    column->addWidget(area_, 1);
    buildBar();
    setGeometry(previewPlace());
    showPage(0);
    setFocus();
}

ReportPreview::~ReportPreview() = default;

QPushButton* ReportPreview::addButton(const char* name, const QString& caption, const QString& tip,
                                      std::function<void()> click) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(caption);
    button->setToolTip(tip);
    button->setFont(roleFont(TextRole::Caption, 1.0));
    button->setMinimumSize(button->sizeHint().width() + 2 * buttonPadding, 34);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [click = std::move(click)] { run(click); });
    bar_->layout()->addWidget(button);
    return button;
}

void ReportPreview::buildBar() {
    auto* row = new QHBoxLayout(bar_);
    row->setContentsMargins(sheetMargin, 8, sheetMargin, 8);
    row->setSpacing(8);
    addButton("cmdPrint", QStringLiteral("Print"), QStringLiteral("Ctrl+P"), [this] { print(); });
    addButton("cmdSavePdf", QStringLiteral("Save as PDF"), QStringLiteral("Ctrl+S"), [this] { saveAsPdf(); });
    row->addStretch();
    previous_ = addButton("cmdPrevious", QStringLiteral("Previous"), QStringLiteral("Page Up"),
                          [this] { showPage(page_ - 1); });
    pageLabel_ = new QLabel;
    pageLabel_->setObjectName(QStringLiteral("lblPage"));
    pageLabel_->setFont(roleFont(TextRole::Answer, 1.0));
    pageLabel_->setAlignment(Qt::AlignCenter);
    pageLabel_->setMinimumWidth(64);
    row->addWidget(pageLabel_);
    next_ = addButton("cmdNext", QStringLiteral("Next"), QStringLiteral("Page Down"),
                      [this] { showPage(page_ + 1); });
    row->addStretch();
    width_ = addButton("cmdWidth", QStringLiteral("Page width"), QStringLiteral("+  -"),
                       [this] { setWide(!wide_); });
    addButton("cmdClose", QStringLiteral("Close"), QStringLiteral("Esc"), [this] { close(); });
}

void ReportPreview::showPage(int page) {
    page_ = std::clamp(page, 0, pageCount() - 1);
    sheet_->setPage(page_);
    pageLabel_->setText(QStringLiteral("%1 / %2").arg(page_ + 1).arg(pageCount()));
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ + 1 < pageCount());
    area_->verticalScrollBar()->setValue(0);
    // A button that has just been disabled must not keep the keys.
    if (focusWidget() != nullptr && !focusWidget()->isEnabled())
        setFocus();
}

void ReportPreview::setWide(bool wide) {
    wide_ = wide;
    width_->setText(wide ? QStringLiteral("Whole page") : QStringLiteral("Page width"));
    width_->setAccessibleName(width_->text());
    fitSheet();
    area_->verticalScrollBar()->setValue(0);
}

void ReportPreview::fitSheet() {
    const double ratio = layout_.pageArea.height() / layout_.pageArea.width();
    const QSize room = area_->maximumViewportSize();
    const int full =
        room.width() - 2 * sheetMargin - (wide_ ? area_->verticalScrollBar()->sizeHint().width() : 0);
    const auto whole = static_cast<int>((room.height() - 2 * sheetMargin) / ratio);
    const int width = std::max(60, wide_ ? full : std::min(full, whole));
    sheet_->resize(width + 2 * sheetMargin, qRound(width * ratio) + 2 * sheetMargin);
}

void ReportPreview::print() {
    printers_(this, layout_, [this](const PrintJob& job) { printOn(job); });
}

void ReportPreview::printOn(const PrintJob& job) {
    if (!job.pdfFile.isEmpty()) {
        savePdf(job.pdfFile, job.first, job.last);
        return;
    }
    QString problem = QStringLiteral("There is no printer.");
    if (job.device != nullptr)
        problem = paintReportPages(*job.device, layout_, job.first, job.last);
    if (problem.isEmpty() && job.problem)
        problem = job.problem();
    if (!problem.isEmpty())
        boxes_.notice(
            QStringLiteral("프린터에서 인쇄하지 못했습니다. 프린터를 확인한 후 다시 인쇄하십시오.\n\n") +
            problem);
}

void ReportPreview::saveAsPdf() {
    choosePdfFile(this, layout_, [this](const QString& file) { savePdf(file, 0, pageCount() - 1); });
}

void ReportPreview::savePdf(const QString& file, int first, int last) {
    const QString problem = writeReportPdf(file, layout_, first, last);
    if (!problem.isEmpty())
        boxes_.notice(QStringLiteral("PDF 파일을 저장하지 못했습니다.\n\n%1\n%2").arg(file, problem));
}

void ReportPreview::keyPressEvent(QKeyEvent* event) {
    QScrollBar* scroll = area_->verticalScrollBar();
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
        case Qt::Key_PageDown:
        case Qt::Key_Right: showPage(page_ + 1); return;
        case Qt::Key_PageUp:
        case Qt::Key_Left: showPage(page_ - 1); return;
        case Qt::Key_Home: showPage(0); return;
        case Qt::Key_End: showPage(pageCount() - 1); return;
        case Qt::Key_Down: scroll->setValue(scroll->value() + 40); return;
        case Qt::Key_Up: scroll->setValue(scroll->value() - 40); return;
        case Qt::Key_Plus:
        case Qt::Key_Equal: setWide(true); return;
        case Qt::Key_Minus: setWide(false); return;
        case Qt::Key_Escape: close(); return;
        case Qt::Key_P:
            if (control)
                print();
            return;
        case Qt::Key_S:
            if (control)
                saveAsPdf();
            return;
        default: QWidget::keyPressEvent(event);
    }
}

void ReportPreview::closeEvent(QCloseEvent* event) {
    event->accept();
    if (closed_)
        return;
    closed_ = true;
    hide();
    // Without a window manager nobody hands the keyboard back to the window below.
    if (parentWidget() != nullptr)
        parentWidget()->window()->activateWindow();
    // The window may be closed from outside while one of its messages stands.
    runOrLater(this, [this] { deleteLater(); });
    if (onClosed)
        onClosed();
}

void ReportPreview::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitSheet();
}

bool ReportPreview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        fitSheet();
    // The wheel turns whole pages; a page wider than the window is scrolled first.
    if (event->type() == QEvent::Wheel && !wide_) {
        const int step = static_cast<QWheelEvent*>(event)->angleDelta().y();
        if (step != 0)
            showPage(page_ + (step < 0 ? 1 : -1));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace platform
