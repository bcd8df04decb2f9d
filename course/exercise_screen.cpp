#include "course/exercise_screen.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "course/walk.h"

#include <QPointer>

namespace course {

using platform::TextRole;

namespace {

constexpr QSize sideButton(104, 76);
constexpr QSize topButton(136, 44);
constexpr int captionHeight = 20;

QString picturePath(const char* picture, int state) {
    return QStringLiteral("button\\%1%2.jpg").arg(QLatin1String(picture)).arg(state);
}

}  // namespace

ExerciseScreen::ExerciseScreen(core::Context& context, const QString& name, const ChromeLayout& layout)
    : Screen(context, name, exerciseSize) {
    setAccessibleName(session().stepTitle);
    loadBackground(QStringLiteral("interface\\") + QLatin1String(layout.picture));
    buildChrome(layout);
    buildCaptions(layout);
    hoverArmed_ = 1;
    hoverLit_ = 1;
    onMouseMove = [this] { formHovered(); };
    timerGo_ = new platform::Timer(QStringLiteral("TimerGo"), layout.timerInterval, this);
    timerGo_->onTick = [this] { tick(); };
    timerGo_->setEnabled(true);
}

void ExerciseScreen::buildChrome(const ChromeLayout& layout) {
    const auto add = [this](const char* name, const char* picture, const QRect& place, const char* spoken,
                            void (ExerciseScreen::*clicked)()) {
        PictureButton& button = addPictureButton(QLatin1String(name), place, QLatin1String(spoken));
        loadDesignPicture(button, picturePath(picture, 1));
        button.setCursor(Qt::PointingHandCursor);
        button.onMouseMove = [this, &button, picture, isExit = clicked == &ExerciseScreen::exitClicked] {
            buttonHovered(button, picture, isExit);
        };
        button.onClick = [this, clicked] { (this->*clicked)(); };
        return &button;
    };
    const auto side = [](int top) { return QRect(QPoint(sideLeft, top), sideButton); };
    picExit_ =
        add("picExit", "exits", QRect(QPoint(832, 16), topButton), "Exit", &ExerciseScreen::exitClicked);
    picTable_ = add("picTable", "backs", QRect(QPoint(688, 16), topButton), "Back to table",
                    &ExerciseScreen::tableClicked);
    if (layout.hasQuiz) {
        picQuiz_ =
            add("picQuiz", "quiz", side(layout.quizTop), layout.quizCaption, &ExerciseScreen::quizClicked);
        picQuiz_->hide();
    }
    if (layout.hasBegin)
        picBegin_ = add("picBegin", "begin", side(layout.beginTop), "Begin", &ExerciseScreen::beginClicked);
    picNext_ = add("picNext", "next", side(layout.nextTop), layout.nextCaption, &ExerciseScreen::nextClicked);
    picPre_ = add("picPre", "pre", side(layout.preTop), layout.preCaption, &ExerciseScreen::preClicked);
    picPre_->hide();
}

void ExerciseScreen::buildCaptions(const ChromeLayout& layout) {
    const auto caption = [this](const QString& name, int buttonTop, const char* text) {
        Label& label =
            addLabel(name, QRect(sideLeft - 8, buttonTop + sideButton.height() + 2, 120, captionHeight),
                     TextRole::Caption, QString::fromUtf8(text));
        label.setAlignment(Qt::AlignCenter);
        return &label;
    };
    if (layout.hasQuiz) {
        quizLabel_ = caption(QLatin1String(layout.quizLabelName), layout.quizTop, layout.quizCaption);
        quizLabel_->hide();
    }
    if (*layout.nextCaption != '\0')
        caption(QLatin1String(layout.nextLabelName), layout.nextTop, layout.nextCaption);
    if (*layout.preCaption != '\0')
        caption(QLatin1String(layout.preLabelName), layout.preTop, layout.preCaption);
    addLabel(QLatin1String(layout.topicName), QRect(24, 20, 640, 36), TextRole::Title, session().stepTitle);
}

std::vector<QWidget*> ExerciseScreen::afterAnswers() const {
    return {picQuiz_, picBegin_};
}

void ExerciseScreen::orderTabs() {
    putLast(afterAnswers());
    putLast({picNext_, picPre_, picTable_, picExit_});
}

void ExerciseScreen::tick() {
    if (!timerGo_->enabled() || isUnloaded())
        return;
    stayEnabled_ = false;
    const QPointer<ExerciseScreen> alive(this);
    firstTick();
    if (!alive)
        return;
    // A timer that stays starts its interval anew, so that a message at each tick leaves room for a click.
    timerGo_->setEnabled(false);
    timerGo_->setEnabled(stayEnabled_ && !isUnloaded());
}

void ExerciseScreen::showPreByWords() {
    picPre_->setVisible(session().stepHasWords());
}

void ExerciseScreen::showQuizButton(bool visible) {
    picQuiz_->setVisible(visible);
    quizLabel_->setVisible(visible);
}

void ExerciseScreen::showBegin(bool visible) {
    picBegin_->setVisible(visible);
}

void ExerciseScreen::buttonHovered(PictureButton& button, const char* picture, bool pictureFirst) {
    if (hoverArmed_ != 1)
        return;
    if (pictureFirst)
        loadPicture(button, picturePath(picture, 2));
    core::PlaySound(context(), QStringLiteral("touchit.wav"), core::Effect);
    if (!pictureFirst)
        loadPicture(button, picturePath(picture, 2));
    hoverLit_ = 1;
    hoverArmed_ = 2;
}

bool ExerciseScreen::spendHover() {
    if (hoverArmed_ != 1)
        return false;
    hoverLit_ = 1;
    hoverArmed_ = 2;
    return true;
}

void ExerciseScreen::formHovered() {
    if (hoverLit_ != 1)
        return;
    hoverArmed_ = 1;
    const auto rest = [this](PictureButton* button, const char* picture) {
        if (button != nullptr)
            loadPicture(*button, picturePath(picture, 1));
    };
    rest(picExit_, "exits");
    rest(picNext_, "next");
    rest(picPre_, "pre");
    rest(picTable_, "backs");
    rest(picQuiz_, "quiz");
    rest(picBegin_, "begin");
    restoreHover();
    hoverLit_ = 2;
}

void ExerciseScreen::leave() {
    closeRecordsets();
    contentDb.close();
    unload();
}

void ExerciseScreen::leaveTo(const QString& screen) {
    leave();
    context().navigator.open(screen);
}

void ExerciseScreen::nextClicked() {
    if (!context().boxes.ask(QStringLiteral("다음 레슨을 학습하시겠습니까?"), QStringLiteral("Tovalin"))) {
        closeRecordsetsForNo();
        contentDb.close();
        unload();
        context().navigator.open(QStringLiteral("frmTable"));
        return;
    }
    if (!session().passesUnfinished()) {
        session().quizzesComplete = QStringLiteral("NO");
        CheckQuizCompleted(context());
        if (session().quizzesComplete != QStringLiteral("YES")) {
            context().boxes.notice(
                QStringLiteral("현재 학습이 끝나지 않은 데이타가 있습니다.\n\n"
                               "<Back to Table>을 클릭하여 학습이 끝나지 않은 레슨을 학습하십시오."),
                QStringLiteral("Tovalin"));
            return;
        }
    }
    leave();
    NextStep(context());
}

void ExerciseScreen::preClicked() {
    closeRecordsetsForPre();
    contentDb.close();
    unload();
    context().navigator.open(QStringLiteral("frmVoca2"));
}

void ExerciseScreen::tableClicked() {
    leaveTo(QStringLiteral("frmTable"));
}

void ExerciseScreen::exitClicked() {
    closeRecordsets();
    contentDb.close();
    endProgram();
}

}  // namespace course
