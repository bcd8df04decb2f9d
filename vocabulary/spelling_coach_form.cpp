// What stands where on the spelling coach.

#include "vocabulary/spelling_coach.h"

#include "catalogue/score_slots.h"
#include "core/stores.h"

namespace vocabulary {

using platform::TextRole;

namespace {

constexpr int left = 44;
constexpr QPoint panel(24, 342);
constexpr int firstRowTop = 360;
constexpr int rowPitch = 59;
constexpr int boxLeft = 94;

const course::ChromeLayout chrome{
    .picture = "diary.jpg",
    .hasBegin = false,
    .hasQuiz = false,
    .nextLabelName = "Label4",
    .nextCaption = "Next Quiz",
    .preLabelName = "Label6",
    .preCaption = "Back to Table",
    .topicName = "lblTitle",
    .timerInterval = 1000,
};

constexpr std::array rowNames{"Copy", "Copy again", "Vowels", "Consonants", "Whole word"};

}  // namespace

SpellingCoach::SpellingCoach(core::Context& context)
    : ExerciseScreen(context, QStringLiteral("frmVoca2"), chrome) {
    setAccessibleName(QStringLiteral("Spelling coach"));
    session().scoreSlot = catalogue::Spelling;
    picPre().show();
    buildTexts();
    buildEntry();
    buildMethod();
    buildLookup();
    bookDb_ = core::openWordBook(context);
    txtWord_->setFocus();
}

std::vector<QWidget*> SpellingCoach::afterAnswers() const {
    std::vector<QWidget*> controls{cmdAnswer_, cmdPractice_};
    controls.insert(controls.end(), picUp_.begin(), picUp_.end());
    return controls;
}

void SpellingCoach::buildTexts() {
    addLabel(
        QStringLiteral("lblMemo"), QRect(left, 106, 790, 22), TextRole::Body,
        QStringLiteral(
            "단어의 뜻에 해당하는 단어를 입력한 후 자판의 Enter 키를 누르거나 <Next Quiz>를 클릭하세요 "));
    addLabel(QStringLiteral("Label2"), QRect(left, 130, 152, 22), TextRole::Body,
             QStringLiteral("틀린 단어를 입력하거나 "));
    addLabel(
        QStringLiteral("Label1"), QRect(left + 152, 130, 640, 22), TextRole::Body,
        QStringLiteral("단어를 모르는 경우에는 <Practice>를 클릭하여 브린들 단어음절학습법으로 학습합니다"));
    addLabel(QStringLiteral("Label5"), QRect(course::sideLeft, 100, 104, 20), TextRole::Caption,
             QStringLiteral("Current No."));
    lblNow_ = &addLabel(QStringLiteral("lblNow"), QRect(course::sideLeft, 122, 104, 26), TextRole::Letter);
    addLabel(QStringLiteral("Label3"), QRect(course::sideLeft, 164, 104, 20), TextRole::Caption,
             QStringLiteral("Total No."));
    lblTotal_ =
        &addLabel(QStringLiteral("lblTotal"), QRect(course::sideLeft, 186, 104, 26), TextRole::Letter);
    for (const char* counter : {"Label5", "lblNow", "Label3", "lblTotal"})
        findChild<Label*>(QLatin1String(counter))->setAlignment(Qt::AlignCenter);
}

void SpellingCoach::buildEntry() {
    lblDef2_ = &addLabel(QStringLiteral("lblDef2"), QRect(left, 172, 790, 44), TextRole::Meaning);
    lblHint_ = &addLabel(QStringLiteral("lblHint"), QRect(left, 220, 790, 36), TextRole::Letter);
    lblHint_->setForeColor(platform::colour::accent);
    txtWord_ = &addTextBox(QStringLiteral("txtWord"), QRect(left, 268, 380, 48), TextRole::Letter);
    txtWord_->setAccessibleName(QStringLiteral("Word"));
    txtWord_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    txtWord_->setTextMargins(8, 0, 8, 0);
    txtWord_->onKeyDown = [this](int keyCode) {
        if (keyCode == platform::key::enter && wordEntryOpen_)
            cmdAnswer_->onClick();
    };
    cmdAnswer_ =
        &addButton(QStringLiteral("cmdAnswer"), QRect(left + 396, 268, 120, 48), QStringLiteral("Next Quiz"));
    cmdPractice_ = &addButton(QStringLiteral("cmdPractice"), QRect(left + 528, 268, 120, 48),
                              QStringLiteral("Practice"));
    cmdAnswer_->onClick = [this] { answerClicked(); };
    cmdPractice_->onClick = [this] { practiceClicked(); };
    const auto hiddenButton = [this](const char* name, const char* caption,
                                     void (SpellingCoach::*pressed)()) {
        CommandButton& button =
            addButton(QLatin1String(name), QRect(left + 660, 268, 120, 48), QLatin1String(caption));
        button.hide();
        button.onClick = [this, pressed] { (this->*pressed)(); };
        return &button;
    };
    cmdMakeQuiz_ = hiddenButton("cmdMakeQuiz", "Make Quiz", &SpellingCoach::makeQuiz);
    cmdNextQuiz_ = hiddenButton("cmdNextQuiz", "Next Quiz ", &SpellingCoach::nextQuiz);
    cmdNextQuiz2_ = hiddenButton("cmdNextQuiz2", "Next Quiz 2", &SpellingCoach::nextQuiz2);
}

void SpellingCoach::buildMethod() {
    picBack_ = &addPictureButton(QStringLiteral("picBack"), QRect(panel, QSize(820, 330)),
                                 QStringLiteral("Spelling method"));
    picBack_->setFocusPolicy(Qt::NoFocus);
    loadPicture(*picBack_, QStringLiteral("button\\wordpanel.jpg"));
    picBack_->hide();
    for (int i = 0; i < rowCount; ++i) {
        auto* letters = new LetterRow(*this, QStringLiteral("txtType%1").arg(i + 1),
                                      QPoint(boxLeft, firstRowTop + i * rowPitch),
                                      QLatin1String(rowNames[static_cast<std::size_t>(i)]));
        const auto stage = static_cast<Stage>(i + 1);
        letters->onLetter = [this, stage](int index) { boxTyped(stage, index); };
        letters->onKeyDown = [this, stage, letters](int index, int keyCode) {
            if (stage_ == stage)
                letters->stepBack(index, keyCode);
        };
        rows_[static_cast<std::size_t>(i)] = letters;
    }
    for (int i = 0; i < 3; ++i) {
        const QString name = i == 0 ? QStringLiteral("picUp") : QStringLiteral("picUp%1").arg(i + 1);
        PictureButton& up = addPictureButton(name, QRect(42, firstRowTop + (i + 2) * rowPitch + 8, 40, 30),
                                             QStringLiteral("Back to the row above"));
        loadPicture(up, QStringLiteral("button\\up1.jpg"));
        up.setCursor(Qt::PointingHandCursor);
        up.onClick = [this] { take(Event::StepBack); };
        up.hide();
        picUp_[static_cast<std::size_t>(i)] = &up;
    }
}

void SpellingCoach::buildLookup() {
    list_ = new QListWidget(this);
    list_->setObjectName(QStringLiteral("List1"));
    list_->setAccessibleName(QStringLiteral("Words"));
    place(*list_, QRect(700, 168, 140, 160));
    list_->hide();
    connect(list_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { listClicked(*item); });
    txtdef_ = &addTextBox(QStringLiteral("txtdef"), QRect(left, 676, 790, 26), TextRole::Body);
    txtdef_->setAccessibleName(QStringLiteral("Definition"));
    txtdef_->setLocked(true);
    txtdef_->hide();
    txtdef_->onChange = [this] { txtdef_->setVisible(!txtdef_->text().isEmpty()); };
    lblDef_ = &addLabel(QStringLiteral("lblDef"), QRect(left + 396, 220, 300, 36), TextRole::Letter);
    lblDef_->hide();
    web1_ = new WordPlayer(context(), QStringLiteral("Web1"), this);
    // These came with the form; nothing uses them.
    new WordPlayer(context(), QStringLiteral("Web2"), this);
    addLabel(QStringLiteral("lblWord"), QRect(left, 676, 200, 22), TextRole::Body).hide();
    addPictureButton(QStringLiteral("Picture1"), QRect(700, 168, 140, 160), QStringLiteral("Picture")).hide();
}

}  // namespace vocabulary
