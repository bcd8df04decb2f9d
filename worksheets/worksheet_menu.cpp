#include "worksheets/worksheet_menu.h"

#include "catalogue/sheets.h"
#include "core/play_sound.h"
#include "core/stores.h"
#include "course/preparation.h"
#include "course/walk.h"
#include "worksheets/sheet_builders.h"

namespace worksheets {

using catalogue::isRefused;
using catalogue::SheetTemplate;
using catalogue::templateOf;

using platform::Recordset;
using platform::TextRole;

namespace {

constexpr QSize menuSize(950, 700);
constexpr int topicPitch = 23;
constexpr int focusMargin = 6;
constexpr int lessonColumns = 5;
constexpr QSize lessonSize(100, 76);
constexpr QSize lessonPitch(112, 92);

const QString exitAtRest = QStringLiteral("button\\back1.jpg");
const QString exitLit = QStringLiteral("button\\back2.jpg");
// Templates are named with the backslash that follows the folder.
const QString templateFolder = core::worksheetFolder.chopped(1);

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void setGround(Label& lesson, QRgb fill, QRgb border) {
    lesson.setBackColor(fill);
    // The panel shows the colour, with round corners.
    lesson.setAutoFillBackground(false);
    lesson.setPanel(fill, border);
}

}  // namespace

WorksheetMenu::WorksheetMenu(core::Context& context)
    : Screen(context, QStringLiteral("frmWorkSheet"), menuSize) {
    setAccessibleName(QStringLiteral("Worksheets"));
    hoverArmed_ = 1;
    hoverLit_ = 1;
    loadBackground(QStringLiteral("interface\\table2011.jpg"));
    buildHeader();
    buildTopics();
    buildLessons();
    prtReport_ = new platform::Report(QStringLiteral("prtReport"), context.drives, context.boxes, this);
    load();
}

void WorksheetMenu::buildHeader() {
    addLabel(QStringLiteral("lblBookTitle"), QRect(64, 12, 400, 36), TextRole::Title,
             QStringLiteral("Grammar WorkSheet"));
    addLabel(
        QStringLiteral("Label2"), QRect(24, 65, 902, 21), TextRole::Body,
        QStringLiteral(
            "아래의 번호를 클릭하면 해당 레슨의 WorkSheet가 출력됩니다. (빨간 색은 제공되지 않습니다.)"));
    addLabel(QStringLiteral("Label4"), QRect(24, 87, 902, 21), TextRole::Body,
             QStringLiteral("<Final>인 경우에는 랜덤으로 데이타가 선정되어 매번 출력문이 다릅니다."));
    picExit_ = &addPictureButton(QStringLiteral("picExit"), QRect(726, 10, 100, 40), QStringLiteral("Back"));
    loadPicture(*picExit_, exitAtRest);
    picExit_->onClick = [this] { exitClicked(); };
    picExit_->onMouseMove = [this] { exitHovered(); };
    onMouseMove = [this] { formHovered(); };
}

void WorksheetMenu::buildTopics() {
    for (int i = 0; i < topicCount; ++i) {
        Label& topic = addLabel(lblTopic_, QRect(30, 122 + i * topicPitch, 280, 22), TextRole::Body);
        // The focus mark must not touch the text.
        topic.setContentsMargins(qRound(focusMargin * scale()), 0, 0, 0);
        topic.setFocusPolicy(Qt::TabFocus);
        topic.onClick = [this, i] { topicClicked(i); };
    }
}

void WorksheetMenu::buildLessons() {
    lblTopic2_ = &addLabel(QStringLiteral("lblTopic2"), QRect(356, 124, 550, 28), TextRole::Heading);
    addLabel(QStringLiteral("Label1"), QRect(356, 162, 200, 20), TextRole::Caption,
             QStringLiteral("Unit No"));
    for (int i = 0; i < lessonCount; ++i) {
        const QPoint place(356 + i % lessonColumns * lessonPitch.width(),
                           194 + i / lessonColumns * lessonPitch.height());
        Label& lesson = addLabel(lblLessonNo_, QRect(place, lessonSize), TextRole::Letter);
        lesson.setAlignment(Qt::AlignCenter);
        lesson.setFocusPolicy(Qt::TabFocus);
        lesson.onClick = [this, i] { lessonClicked(i); };
    }
}

void WorksheetMenu::load() {
    courseDb_ = core::openStore(context(), core::worksheetCoursePath());
    stepRs_ = courseDb_.openRecordset(QStringLiteral("Select * From tablework order by recordno"));
    stepRs_.moveLast();
    lastRecordNo_ = stepRs_.integer(QStringLiteral("recordno"));
    Recordset topics = courseDb_.openRecordset(QStringLiteral("Select * From topic order by topicno"));
    for (int i = 0; !topics.eof(); ++i, topics.moveNext()) {
        lblTopic_(i).setCaption(topics.text(QStringLiteral("Title")));
        setHandCursor(lblTopic_(i), QStringLiteral("harrow.cur"));
    }
    topics.findFirst(QStringLiteral("topicno=%1").arg(session().topicNo));
    if (!topics.noMatch())
        lblTopic2_->setCaption(topics.text(QStringLiteral("Title")));
    listLessons(session().topicNo);
    stepRs_ = courseDb_.openRecordset(QStringLiteral("Select * From tablework"));
}

void WorksheetMenu::listLessons(int topicNo) {
    for (Label* lesson : lblLessonNo_) {
        lesson->hide();
        setGround(*lesson, platform::colour::white, platform::colour::choiceLine);
    }
    Recordset lessons = courseDb_.openRecordset(
        QStringLiteral("Select * from tablework where topicno=%1 order by recordno").arg(topicNo));
    for (int i = 0; !lessons.eof(); ++i, lessons.moveNext()) {
        Label& lesson = lblLessonNo_(i);
        const bool isFinal = lessons.textOrEmpty(QStringLiteral("Type")) == QStringLiteral("Final");
        lesson.setCaption(isFinal ? QStringLiteral("F") : lessons.text(QStringLiteral("pageno")));
        lesson.show();
        if (lessons.textOrEmpty(QStringLiteral("usedata")) == QStringLiteral("NO"))
            setGround(lesson, platform::colour::red, platform::colour::red);
    }
}

void WorksheetMenu::topicClicked(int index) {
    session().topicNo = index + 1;
    listLessons(session().topicNo);
    lblTopic2_->setCaption(lblTopic_(index).caption());
}

void WorksheetMenu::lessonClicked(int index) {
    core::Session& s = session();
    QString guide;
    // A final is found by its place among the lessons like any other.
    stepRs_.findFirst(QStringLiteral("topicno=%1 and pageno=%2").arg(s.topicNo).arg(index + 1));
    if (!stepRs_.noMatch()) {
        s.topicNo = stepRs_.integer(QStringLiteral("topicno"));
        s.pageNo = stepRs_.integer(QStringLiteral("pageno"));
        guide = stepRs_.textOrEmpty(QStringLiteral("guide2"));
        s.recordNo = stepRs_.integer(QStringLiteral("recordno"));
    }
    ChooseStep();
    if (isRefused(s.recordNo)) {
        context().boxes.notice(QStringLiteral("해당 레슨은 워크시트가 제공되지 않는 레슨입니다."));
        return;
    }
    if (fillTables(s.recordNo, s.pageNo, guide))
        runReports(s.recordNo);
}

void WorksheetMenu::ChooseStep() {
    stepRs_.findFirst(QStringLiteral("recordno=%1").arg(session().recordNo));
    if (!stepRs_.noMatch())
        course::loadStep(session(), stepRs_);
    if (session().isFinal())
        course::PrepareFinalDataForSheet(context());
    else
        course::PrepareStepDataForSheet(context());
}

bool WorksheetMenu::fillTables(int recordNo, int pageNo, const QString& guide) {
    platform::Transaction transaction(courseDb_);
    reportRs_ = courseDb_.openRecordset(QStringLiteral("Select * From tablework_final"));
    writeHeader(recordNo, pageNo, guide);
    const BuildResult result = buildSheet(courseDb_, session().topicNo, recordNo);
    transaction.commit();
    if (result == BuildResult::Built)
        return true;
    context().boxes.notice(
        QStringLiteral("데이타 오류입니다.  Tovalin 프로그램을 재설치하십시오.\n"
                       "재설치후 같은 오류인 경우에는 본사로 연락하십시오."));
    return false;
}

void WorksheetMenu::writeHeader(int recordNo, int pageNo, const QString& guide) {
    for (const char* table : {"student", "guide", "tempword"}) {
        Recordset rows = courseDb_.openRecordset(QStringLiteral("Select * From ") + QLatin1String(table));
        deleteAll(rows);
    }
    Recordset student = courseDb_.openRecordset(QStringLiteral("Select * From student"));
    student.addNew();
    student.set(QStringLiteral("Name"), session().userName);
    student.set(QStringLiteral("topic"), lblTopic2_->caption());
    student.set(QStringLiteral("lessonno"), pageNo);
    student.update();
    Recordset guides = courseDb_.openRecordset(QStringLiteral("Select * From guide"));
    guides.addNew();
    guides.set(QStringLiteral("recordno"), recordNo);
    guides.set(QStringLiteral("guide"), guide);
    guides.update();
}

void WorksheetMenu::runReports(int recordNo) {
    const SheetTemplate* row = templateOf(recordNo);
    // Sets that only hold the tables while the reports read them.
    const auto hold = [this](const QString& table) {
        reportRs_ = courseDb_.openRecordset(QStringLiteral("Select * From ") + table);
        heldSets_.push_back(reportRs_);
    };
    for (const char* table : {"student", "guide", "tempword", "basic_data"})
        hold(QLatin1String(table));
    if (row != nullptr) {
        for (const std::string_view table : row->openedFirst)
            if (!table.empty())
                hold(fromView(table));
        prtReport_->setFile(templateFolder + fromView(row->file));
    }
    prtReport_->onClosed = [this, recordNo] {
        if (session().isTeacher())
            runTeacherReport(recordNo);
        else
            closeReportSets();
    };
    runReport();
}

void WorksheetMenu::runTeacherReport(int recordNo) {
    if (const SheetTemplate* row = templateOf(recordNo))
        prtReport_->setFile(templateFolder + fromView(row->teacherFile));
    prtReport_->onClosed = [this] { closeReportSets(); };
    runReport();
}

void WorksheetMenu::runReport() {
    prtReport_->setOutput(platform::Report::ToWindow);
    prtReport_->prepare();
    prtReport_->start();
}

void WorksheetMenu::closeReportSets() {
    heldSets_.clear();
}

void WorksheetMenu::exitClicked() {
    heldSets_.clear();
    reportRs_.close();
    stepRs_.close();
    courseDb_.close();
    unload();
}

void WorksheetMenu::exitHovered() {
    if (hoverArmed_ != 1)
        return;
    loadPicture(*picExit_, exitLit);
    core::PlaySound(context(), QStringLiteral("touchit.wav"), core::Effect);
    hoverLit_ = 1;
    hoverArmed_ = 2;
}

void WorksheetMenu::formHovered() {
    if (hoverLit_ != 1)
        return;
    hoverArmed_ = 1;
    loadPicture(*picExit_, exitAtRest);
    hoverLit_ = 2;
}

}  // namespace worksheets
