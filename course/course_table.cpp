#include "course/course_table.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "course/preparation.h"
#include "course/walk.h"
#include "platform/cursor.h"

namespace course {

using platform::TextRole;

namespace {

constexpr QSize tableSize(950, 700);
constexpr int pitch = 23;
constexpr int lineHeight = 18;
const QString handCursor = QStringLiteral("harrow.cur");

/// A picture button with its two images, in the order in which the at-rest images are put back.
struct HoverButton {
    const char* name;
    const char* picture;
    QRect place;
    const char* spoken;
};

constexpr int downButton = 0;
constexpr int upButton = 1;
const std::array hoverButtons{
    HoverButton{"picDown", "down", QRect(872, 644, 40, 30), "Next page"},
    HoverButton{"picUp", "up", QRect(780, 644, 40, 30), "Previous page"},
    HoverButton{"picVideo", "video", QRect(620, 10, 100, 40), "Video lessons"},
    HoverButton{"picFinal", "finaltest", QRect(726, 10, 100, 40), "Final test"},
    HoverButton{"picRepeat", "worksheet", QRect(514, 10, 100, 40), "Worksheets"},
    HoverButton{"picStudy", "study", QRect(408, 10, 100, 40), "Study"},
    HoverButton{"picExit", "exit", QRect(832, 10, 100, 40), "Exit"},
};

QString buttonPicture(const char* name, int state) {
    return QStringLiteral("button\\%1%2.jpg").arg(QLatin1String(name)).arg(state);
}

}  // namespace

CourseTable::CourseTable(core::Context& context) : Screen(context, QStringLiteral("frmTable"), tableSize) {
    setAccessibleName(QStringLiteral("Course table"));
    hoverArmed_ = 1;
    loadBackground(QStringLiteral("interface\\table.jpg"));
    buildHeader();
    buildTopics();
    buildRows();
    clearRows();
    orderTabs();
    timerGo_ = new platform::Timer(QStringLiteral("TimerGo"), 1, this);
    timerGo_->onTick = [this] { firstTick(); };
    timerGo_->setEnabled(true);
}

void CourseTable::buildHeader() {
    addLabel(QStringLiteral("lblBookTitle"), QRect(64, 12, 300, 36), TextRole::Title,
             QStringLiteral("Feskugru"));
    Label& memo = addLabel(
        QStringLiteral("lblMemo"), QRect(24, 66, 902, 42), TextRole::Body,
        QStringLiteral(
            "학습할 문법 제목을 선택하고, 해당 Unit No를 클릭합니다.  <My Checkpoints>에 나타난 제목을 "
            "클릭하면 학습이 진행됩니다."));
    memo.setWordWrap(true);
    for (int i = 0; i < hoverButtonCount; ++i) {
        const HoverButton& button = hoverButtons[i];
        buttons_[i] =
            &addPictureButton(QLatin1String(button.name), button.place, QLatin1String(button.spoken));
        loadDesignPicture(*buttons_[i], buttonPicture(button.picture, 1));
        buttons_[i]->onMouseMove = [this, i] { buttonHovered(i); };
    }
    picDown_ = buttons_[downButton];
    picUp_ = buttons_[upButton];
    const std::array<std::function<void()>, hoverButtonCount> clicks{
        [this] { downClicked(); },
        [this] { upClicked(); },
        [this] { this->context().navigator.open(QStringLiteral("frmVideo")); },
        [this] { finalClicked(); },
        [this] { this->context().navigator.open(QStringLiteral("frmWorkSheet")); },
        [this] { studyClicked(); },
        [this] { endProgram(); }};
    for (int i = 0; i < hoverButtonCount; ++i)
        buttons_[i]->onClick = clicks[i];
    picDown_->hide();
    picUp_->hide();
    onMouseMove = [this] { formHovered(); };
}

void CourseTable::buildTopics() {
    for (int i = 0; i < topicCount; ++i) {
        Label& topic = addLabel(lblTopic_, QRect(36, 124 + i * pitch, 192, lineHeight), TextRole::Body);
        topic.setFocusPolicy(Qt::TabFocus);
        topic.onClick = [this, i] { topicClicked(i); };
        topic.onMouseMove = [this, i] { topicHovered(i); };
    }
    lblTopic2_ = &addLabel(QStringLiteral("lblTopic2"), QRect(268, 118, 640, 28), TextRole::Heading);
}

void CourseTable::buildRows() {
    struct Heading {
        const char* name;
        QRect place;
        const char* text;
    };
    const std::array headings{Heading{"Label1", QRect(264, 153, 56, 18), "Unit No"},
                              Heading{"Label2", QRect(328, 153, 200, 18), "<My Checkpoints>"},
                              Heading{"Label3", QRect(538, 153, 180, 18), "Lesson"},
                              Heading{"Label4", QRect(734, 153, 80, 18), "Date"},
                              Heading{"Label5", QRect(824, 153, 50, 18), "Score"}};
    for (const Heading& heading : headings)
        addLabel(QLatin1String(heading.name), heading.place, TextRole::Caption, QLatin1String(heading.text));
    for (int i = 0; i < rowsPerPage; ++i) {
        const int y = 178 + i * pitch;
        Label& number = addLabel(lblRecordNo_, QRect(264, y, 52, lineHeight), TextRole::Body);
        Label& title = addLabel(lblTitle_, QRect(328, y, 204, lineHeight), TextRole::Body);
        addLabel(lblLesson_, QRect(538, y, 192, lineHeight), TextRole::Body);
        addLabel(lblDate_, QRect(734, y, 84, lineHeight), TextRole::Body);
        addLabel(lblScore_, QRect(824, y, 48, lineHeight), TextRole::Body);
        addLabel(lblAutoNo_, QRect(910, y, 10, lineHeight), TextRole::Small).hide();
        number.setAlignment(Qt::AlignCenter);
        title.setFocusPolicy(Qt::TabFocus);
        for (Label* clickable : {&number, &title}) {
            clickable->onClick = [this, i] { rowClicked(i); };
            clickable->onMouseMove = [this, i] { rowHovered(i); };
        }
        PictureButton& star = addPictureButton(picScore_.memberName(i), QRect(884, y - 1, 20, 20),
                                               QStringLiteral("Full marks"));
        star.setFocusPolicy(Qt::NoFocus);
        loadDesignPicture(star, QStringLiteral("button\\star.jpg"));
        picScore_.add(&star);
    }
    lblCurrentPage_ = &addLabel(QStringLiteral("lblCurrentPage"), QRect(826, 648, 40, 22), TextRole::Caption);
    lblCurrentPage_->setAlignment(Qt::AlignCenter);
    auto& wait =
        addPictureButton(QStringLiteral("picWait"), QRect(265, 270, 420, 160), QStringLiteral("Please wait"));
    auto& bar =
        addPictureButton(QStringLiteral("picBar"), QRect(375, 366, 280, 20), QStringLiteral("Progress"));
    Label& show = addLabel(QStringLiteral("lblShow"), QRect(375, 318, 280, 36), TextRole::Heading,
                           QStringLiteral("Please Wait..."));
    for (QWidget* hidden :
         {static_cast<QWidget*>(&wait), static_cast<QWidget*>(&bar), static_cast<QWidget*>(&show)})
        hidden->hide();
    setHandCursor(lblRecordNo_(0), handCursor);
    for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_, &lblDate_})
        for (Label* label : *column)
            label->setCursor(lblRecordNo_(0).cursor());
}

/// Tab goes along the header, then down the units and the steps.
void CourseTable::orderTabs() {
    std::vector<QWidget*> stops;
    for (const char* name : {"picStudy", "picRepeat", "picVideo", "picFinal", "picExit"})
        stops.push_back(findChild<PictureButton*>(QLatin1String(name)));
    stops.insert(stops.end(), lblTopic_.begin(), lblTopic_.end());
    stops.insert(stops.end(), lblTitle_.begin(), lblTitle_.end());
    stops.insert(stops.end(), {picUp_, picDown_});
    for (std::size_t i = 1; i < stops.size(); ++i)
        setTabOrder(stops[i - 1], stops[i]);
}

void CourseTable::firstTick() {
    if (!timerGo_->enabled())
        return;
    core::Session& s = session();
    formDb_ = core::openCourse(context());
    stepRs_ = formDb_.openRecordset(QStringLiteral("Select * From tablework order by recordno"));
    stepRs_.moveLast();
    topicRs_ = formDb_.openRecordset(QStringLiteral("Select * From topic order by topicno"));
    for (int i = 0; !topicRs_.eof(); ++i, topicRs_.moveNext()) {
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
        const QString recordNo = stepRs_.text(QStringLiteral("recordno"));
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
    loadPicture(*buttons_[index], buttonPicture(hoverButtons[index].picture, 2));
    rowHover_ = 1;
    hoverArmed_ = 2;
}

void CourseTable::formHovered() {
    if (rowHover_ != 1)
        return;
    hoverArmed_ = 1;
    blackenRows(true);
    for (int i = 0; i < hoverButtonCount; ++i)
        loadPicture(*buttons_[i], buttonPicture(hoverButtons[i].picture, 1));
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
