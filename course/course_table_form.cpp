#include "course/course_table.h"

#include "platform/desktop/cursor.h"

// How the course table's form is put together; what it does is in course_table.cpp.

namespace course {

using platform::TextRole;

namespace {

constexpr QSize tableSize(950, 700);
constexpr int pitch = 23;
constexpr int lineHeight = 18;
// Between a clickable text and its focus mark.
constexpr int focusMargin = 6;
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
    HoverButton{"picVideo", "video", QRect(726, 10, 100, 40), "Video lessons"},
    HoverButton{"picFinal", "finaltest", QRect(514, 10, 100, 40), "Final test"},
    HoverButton{"picRepeat", "worksheet", QRect(620, 10, 100, 40), "Worksheets"},
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
        Label& topic = addLabel(lblTopic_, QRect(30, 122 + i * pitch, 204, pitch - 1), TextRole::Body);
        topic.setContentsMargins(qRound(focusMargin * scale()), 0, 0, 0);
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
    for (int i = 0; i < rowsPerPage; ++i)
        buildRow(i);
    lblCurrentPage_ = &addLabel(QStringLiteral("lblCurrentPage"), QRect(826, 648, 40, 22), TextRole::Caption);
    lblCurrentPage_->setAlignment(Qt::AlignCenter);
    buildWait();
    setHandCursor(lblRecordNo_(0), handCursor);
    for (const auto* column : {&lblRecordNo_, &lblTitle_, &lblLesson_, &lblDate_})
        for (Label* label : *column)
            label->setCursor(lblRecordNo_(0).cursor());
}

void CourseTable::buildRow(int i) {
    const int y = 178 + i * pitch;
    Label& number = addLabel(lblRecordNo_, QRect(264, y, 52, lineHeight), TextRole::Body);
    Label& title = addLabel(lblTitle_, QRect(322, y - 1, 214, pitch - 1), TextRole::Body);
    title.setContentsMargins(qRound(focusMargin * scale()), 0, 0, 0);
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
    PictureButton& star =
        addPictureButton(picScore_.memberName(i), QRect(884, y - 1, 20, 20), QStringLiteral("Full marks"));
    star.setFocusPolicy(Qt::NoFocus);
    loadDesignPicture(star, QStringLiteral("button\\star.jpg"));
    picScore_.add(&star);
}

void CourseTable::buildWait() {
    auto& wait =
        addPictureButton(QStringLiteral("picWait"), QRect(265, 270, 420, 160), QStringLiteral("Please wait"));
    auto& bar =
        addPictureButton(QStringLiteral("picBar"), QRect(375, 366, 280, 20), QStringLiteral("Progress"));
    Label& show = addLabel(QStringLiteral("lblShow"), QRect(375, 318, 280, 36), TextRole::Heading,
                           QStringLiteral("Please Wait..."));
    for (QWidget* hidden :
         {static_cast<QWidget*>(&wait), static_cast<QWidget*>(&bar), static_cast<QWidget*>(&show)})
        hidden->hide();
}

/// Tab goes down the units and the steps, then along the buttons.
void CourseTable::orderTabs() {
    std::vector<QWidget*> stops(lblTopic_.begin(), lblTopic_.end());
    stops.insert(stops.end(), lblTitle_.begin(), lblTitle_.end());
    stops.insert(stops.end(), {picUp_, picDown_});
    for (const char* name : {"picStudy", "picRepeat", "picVideo", "picFinal", "picExit"})
        stops.push_back(findChild<PictureButton*>(QLatin1String(name)));
    putLast(stops);
}

void CourseTable::showButton(int index, int state) {
    loadPicture(*buttons_[index], buttonPicture(hoverButtons[index].picture, state));
}

}  // namespace course
