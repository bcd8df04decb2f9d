#include "course/course_table.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "course/preparation.h"
#include "course/walk.h"
#include "platform/desktop/cursor.h"

namespace course {

void CourseTable::firstTick() {
    if (!timerGo_->enabled())
        return;
    core::Session& s = session();
    formDb_ = core::openCourse(context());
    stepRs_ = formDb_.openRecordset(QStringLiteral("Select * From tablework order by recordno"));
    stepRs_.moveLast();
    topicRs_ = formDb_.openRecordset(QStringLiteral("Select * From topic order by topicno"));
    for (int i = 0; !topicRs_.eof(); ++i, topicRs_.moveNext()) {
        if (i == topicCount)
            throw platform::RuntimeError(
                platform::ErrorCode::SubscriptOutOfRange,
                QStringLiteral(
                    "Subscript out of range: the course table shows %1 units, and there are more in %2.")
                    .arg(topicCount)
                    .arg(topicRs_.description()));
        Label& topic = lblTopic_(i);
        topic.setCaption(topicRs_.text(QStringLiteral("Title")));
        topic.setCursor(lblRecordNo_(0).cursor());
    }
    // Tab passes by the places that no unit has taken.
    for (Label* topic : lblTopic_)
        if (topic->caption().isEmpty())
            topic->setFocusPolicy(Qt::NoFocus);
    const platform::Hourglass hourglass;
    s.scoreDb = core::openScores(context());
    s.scoreRs =
        s.scoreDb.openRecordset(QStringLiteral("Select * from score where ") + core::learnerCriterion(s) +
                                QStringLiteral(" order by recordno desc"));
    s.topicNo = s.scoreRs.isEmpty() ? Int16(1) : s.scoreRs.integer(QStringLiteral("datapage"));
    s.scoreRs.close();
    s.scoreDb.close();
    showTopicTitle();
    ListTopicRows();
    timerGo_->setEnabled(false);
}

void CourseTable::showTopicTitle() {
    topicRs_.findFirst(QStringLiteral("topicno=%1").arg(session().topicNo));
    if (!topicRs_.noMatch())
        lblTopic2_->setCaption(topicRs_.text(QStringLiteral("Title")));
}

void CourseTable::clearRows() {
    for (int i = 0; i < rowsPerPage; ++i) {
        for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_, &lblDate_, &lblScore_}) {
            (*column)(i).setCaption(QString());
            (*column)(i).hide();
        }
        lblAutoNo_(i).setCaption(QString());
        picScore_(i).hide();
    }
}

void CourseTable::ListTopicRows() {
    session().reviewCount = 0;
    clearRows();
    const platform::Hourglass hourglass;
    stepRs_ = formDb_.openRecordset(
        QStringLiteral("Select * from tablework where topicno=%1 order by pageno").arg(session().topicNo));
    stepRs_.moveLast();
    rowCount_ = stepRs_.recordCount();
    stepRs_.moveFirst();
    // The first page shows the word part's result; once pages are turned it is the main exercise's.
    fillRows(QStringLiteral("s3"));
    showPage(1, QStringLiteral("Down"));
    picUp_->hide();
    picDown_->setVisible(rowCount_ > rowsPerPage);
}

void CourseTable::fillRows(const QString& scoreField) {
    session().scoreDb = core::openScores(context());
    for (int i = 0; i < rowsPerPage && !stepRs_.eof(); ++i, stepRs_.moveNext()) {
        const QString pageNo = stepRs_.text(QStringLiteral("pageno"));
        const QString recordNo =
            QString::number(static_cast<int>(stepRs_.integer(QStringLiteral("recordno"))));
        lblRecordNo_(i).setCaption(pageNo);
        lblTitle_(i).setCaption(stepRs_.text(QStringLiteral("Title")) + u' ' + pageNo + u' ' +
                                stepRs_.text(QStringLiteral("Type")));
        lblLesson_(i).setCaption(stepRs_.textOrEmpty(QStringLiteral("Data")));
        lblAutoNo_(i).setCaption(recordNo);
        showRowScore(i, recordNo, scoreField);
        for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_})
            (*column)(i).show();
    }
    session().scoreRs.close();
    session().scoreDb.close();
}

void CourseTable::showRowScore(int row, const QString& recordNo, const QString& scoreField) {
    core::Session& s = session();
    s.scoreRs = s.scoreDb.openRecordset(QStringLiteral("Select * from score where ") +
                                        core::learnerCriterion(s) + QStringLiteral(" and page2=") + recordNo);
    if (s.scoreRs.isEmpty())
        return;
    lblDate_(row).setCaption(s.scoreRs.textOrEmpty(QStringLiteral("vDate")));
    lblScore_(row).setCaption(s.scoreRs.textOrEmpty(scoreField));
    picScore_(row).setVisible(lblScore_(row).caption() == QStringLiteral("100"));
    lblDate_(row).show();
    lblScore_(row).show();
}

void CourseTable::showPage(int page, const QString& direction) {
    pageIndex_ = page;
    pageDirection_ = direction;
    lblCurrentPage_->setCaption(QString::number(page));
}

void CourseTable::downClicked() {
    const platform::Hourglass hourglass;
    clearRows();
    stepRs_.moveFirst();
    stepRs_.move(pageIndex_ * rowsPerPage);
    fillRows(QStringLiteral("s4"));
    showPage(pageIndex_ + 1, QStringLiteral("Down"));
    picUp_->show();
    picDown_->setVisible(pageIndex_ * rowsPerPage < rowCount_);
}

void CourseTable::upClicked() {
    const platform::Hourglass hourglass;
    clearRows();
    showPage(pageIndex_ - 1, QStringLiteral("Up"));
    stepRs_.moveFirst();
    stepRs_.move((pageIndex_ - 1) * rowsPerPage);
    fillRows(QStringLiteral("s4"));
    picUp_->setVisible(pageIndex_ > 1);
    picDown_->show();
}

void CourseTable::topicClicked(int index) {
    session().topicNo = index + 1;
    showTopicTitle();
    ListTopicRows();
}

void CourseTable::rowClicked(int index) {
    session().recordNo = platform::textToInt16(lblAutoNo_(index).caption());
    StartSelectedStep();
}

void CourseTable::readStoredStep() {
    core::Session& s = session();
    s.scoreDb = core::openScores(context());
    s.scoreRs =
        s.scoreDb.openRecordset(QStringLiteral("Select * from score where ") + core::learnerStepCriterion(s));
    if (s.scoreRs.isEmpty()) {
        s.partDone.fill(QStringLiteral("NO"));
    } else {
        for (int i = 0; i < 4; ++i)
            s.partDone[i] = s.scoreRs.textOrEmpty(QStringLiteral("s%1").arg(i + 1));
        for (int i = 0; i < 3; ++i)
            if (s.partDone[i] != QStringLiteral("0"))
                s.partDone[i] = QStringLiteral("YES");
        s.topicNo = s.scoreRs.integer(QStringLiteral("datapage"));
        s.recordNo = s.scoreRs.integer(QStringLiteral("page2"));
    }
    s.scoreRs.close();
    s.scoreDb.close();
}

void CourseTable::StartSelectedStep() {
    core::Session& s = session();
    readStoredStep();
    stepRs_.findFirst(QStringLiteral("recordno=%1").arg(s.recordNo));
    if (!stepRs_.noMatch())
        loadStep(s, stepRs_);
    // A step started from the table always starts from the top, whatever its row says.
    s.partDone.fill(QStringLiteral("NO"));
    if (s.isFinal()) {
        startFinal();
        return;
    }
    PrepareStepData(context());
    closeData();
    unload();
    openPreparedStep(context());
}

void CourseTable::startFinal() {
    PrepareFinalData(context());
    session().finalBaseRecordNo = session().recordNo;
    closeData();
    unload();
    openPreparedFinal(context());
}

void CourseTable::studyClicked() {
    if (session().reviewCount != 0) {
        StartSelectedStep();
        return;
    }
    context().boxes.notice(
        QStringLiteral("학습할 데이타가 없습니다.  <New Lesson> 또는 <Unit No>를 클릭하십시오.\n\n"
                       "End of Data, Click <New Lesson> or <Unit No>"));
}

void CourseTable::finalClicked() {
    closeData();
    unload();
    context().boxes.plain(QStringLiteral("Please Contact Home Office"));
}

void CourseTable::closeData() {
    topicRs_.close();
    stepRs_.close();
    formDb_.close();
}

void CourseTable::buttonHovered(int index) {
    if (hoverArmed_ != 1)
        return;
    core::PlaySound(context(), QStringLiteral("touchit.wav"), core::Effect);
    showButton(index, 2);
    rowHover_ = 1;
    hoverArmed_ = 2;
}

void CourseTable::formHovered() {
    if (rowHover_ != 1)
        return;
    hoverArmed_ = 1;
    blackenRows(true);
    for (int i = 0; i < hoverButtonCount; ++i)
        showButton(i, 1);
    rowHover_ = 2;
}

void CourseTable::blackenRows(bool dates) {
    for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_})
        for (Label* label : *column)
            label->setForeColor(platform::colour::black);
    if (dates)
        for (Label* label : lblDate_)
            label->setForeColor(platform::colour::black);
}

void CourseTable::rowHovered(int index) {
    if (hoverArmed_ != 1)
        return;
    blackenRows(false);
    for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_})
        (*column)(index).setForeColor(platform::colour::red);
    lblDate_(index).setForeColor(platform::colour::black);
    rowHover_ = 1;
    hoverArmed_ = 2;
}

void CourseTable::topicHovered(int index) {
    if (hoverArmed_ != 1)
        return;
    for (Label* topic : lblTopic_)
        topic->setForeColor(platform::colour::black);
    lblTopic_(index).setForeColor(platform::colour::red);
    rowHover_ = 1;
    hoverArmed_ = 2;
}

}  // namespace course
