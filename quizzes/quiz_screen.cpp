#include "quizzes/quiz_screen.h"

#include "catalogue/score_slots.h"
#include "core/play_sound.h"
#include "core/stores.h"
#include "course/score.h"
#include "course/shuffle.h"
#include "course/walk.h"
#include "platform/desktop/input_gate.h"
#include "quizzes/final_road.h"
#include "quizzes/fitted_text.h"

#include <QKeyEvent>

namespace quizzes {

using catalogue::Shape;

namespace {

constexpr int lastDigit = 5;

course::ChromeLayout chromeOf(const QuizEntry& entry) {
    course::ChromeLayout layout;
    layout.picture = "quiz.jpg";
    layout.hasQuiz = entry.quizCaption != nullptr;
    layout.quizLabelName = "lblQuiz";
    if (layout.hasQuiz)
        layout.quizCaption = entry.quizCaption;
    return layout;
}

}  // namespace

QuizScreen::QuizScreen(core::Context& context, const QuizEntry& entry)
    : ExerciseScreen(context, QLatin1String(entry.form), chromeOf(entry)), entry_(entry) {
    session().scoreSlot = catalogue::MainExercise;
    setAccessibleName(QStringLiteral("Grammar quiz"));
    showBegin(false);
    if (hasQuizButton())
        showQuizButton(true);
    Label& guide =
        addLabel(QStringLiteral("lblSubTopic"), QRect(cardLeft, 92, cardWidth, 26), TextRole::Heading);
    guide.setForeColor(platform::colour::accent);
    showFitted(guide, session().guideText, TextRole::Heading, scale());
    buildSide();
}

void QuizScreen::buildSide() {
    const auto add = [this](const char* name, int top, int height, TextRole role, const QString& text) {
        Label& label = addLabel(QLatin1String(name), QRect(course::sideLeft, top, 104, height), role, text);
        label.setAlignment(Qt::AlignCenter);
        return &label;
    };
    counterLabels_ = {add("lblCurrent2", 88, 16, TextRole::Small, QStringLiteral("Current No")),
                      add("lblCurrent", 104, 30, TextRole::Letter, QString()),
                      add("lblTotal2", 144, 16, TextRole::Small, QStringLiteral("Total No")),
                      add("lblTotal", 160, 30, TextRole::Letter, QString())};
    lblCurrent_ = counterLabels_[1];
    lblTotal_ = counterLabels_[3];
    if (!entry_.hasAnswerLine)
        return;
    const bool table = entry_.shape == Shape::Table;
    const QRect place = table ? QRect(cardLeft, 120, cardWidth, 24) : QRect(cardLeft, 644, cardWidth, 44);
    lblAnswer = &addLabel(QStringLiteral("lblAnswer"), place, table ? TextRole::Answer : TextRole::Row);
    lblAnswer->setPanel(0xfffff3dd, platform::colour::lightOrange);
    lblAnswer->setWordWrap(true);
    lblAnswer->setContentsMargins(12, 0, 12, 0);
    lblAnswer->hide();
}

void QuizScreen::addHint(int top) {
    if (entry_.hint == nullptr)
        return;
    Label& hint = addLabel(QStringLiteral("lblHint"), QRect(cardLeft, top, cardWidth, 20), TextRole::Body,
                           QString::fromUtf8(entry_.hint));
    hint.setForeColor(0xff5a5a5a);
    if (entry_.shape == Shape::OneAtATime)
        hint.setAlignment(Qt::AlignCenter);
}

void QuizScreen::focusContent() {
    // The form itself has the keyboard where nothing had asked for it as the screen came up.
    const auto isSide = [this](QWidget* control) {
        return control == this || qobject_cast<platform::PictureButton*>(control) != nullptr;
    };
    if (focusWidget() != nullptr && focusWidget()->isVisible() && !isSide(focusWidget()))
        return;
    for (QWidget* control = nextInFocusChain(); control != this; control = control->nextInFocusChain())
        if ((control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible() && !isSide(control)) {
            control->setFocus(Qt::TabFocusReason);
            return;
        }
}

void QuizScreen::firstTick() {
    prepare();
    contentDb = core::openCourse(context());
    start();
    showPreByWords();
    picNext().setVisible(!isFinal());
    if (isFinal())
        picPre().hide();
    if (lblAnswer != nullptr && session().isTeacher())
        lblAnswer->show();
    focusContent();
}

void QuizScreen::openRows(const char* order) {
    const core::Session& s = session();
    QString sql = QStringLiteral("Select * from quiz_data_new3 where topicno=%1 and recordno=%2")
                      .arg(s.topicNo)
                      .arg(s.recordNo);
    if (order != nullptr)
        sql += QStringLiteral(" order by ") + QLatin1String(order);
    quizRs = contentDb.openRecordset(sql);
    if (quizRs.isEmpty())
        failRows(platform::ErrorCode::NoCurrentRecord,
                 QStringLiteral("there are no questions for topicno %1 and recordno %2 in quiz_data_new3.")
                     .arg(s.topicNo)
                     .arg(s.recordNo));
}

QString QuizScreen::rowScope() const {
    return QStringLiteral("topicno=%1 and recordno=%2 and ").arg(session().topicNo).arg(session().recordNo);
}

void QuizScreen::shuffle(std::span<const char* const> orders, const char* emptied) {
    platform::Transaction transaction(contentDb);
    for (quizRs.moveFirst(); !quizRs.eof(); quizRs.moveNext()) {
        quizRs.edit();
        for (const char* order : orders)
            if (order != nullptr)
                quizRs.set(QLatin1String(order), 0);
        if (emptied != nullptr)
            quizRs.set(QLatin1String(emptied), QString::fromLatin1(""));
        quizRs.update();
    }
    quizRs.moveLast();
    itemTotal = quizRs.recordCount();
    for (const char* order : orders)
        if (order != nullptr)
            course::shuffleRows(context(), quizRs, QLatin1String(order), itemTotal, rowScope());
    transaction.commit();
}

QString QuizScreen::required(const char* field) const {
    const platform::Value& content = quizRs.value(QLatin1String(field));
    if (content.isNull())
        failRows(platform::ErrorCode::InvalidUseOfNull,
                 QStringLiteral("the question \"%1\" has no value in its field %2.")
                     .arg(quizRs.textOrEmpty(QStringLiteral("q1")), QLatin1String(field)));
    return content.toText();
}

void QuizScreen::failRows(platform::ErrorCode code, const QString& what) const {
    throw platform::RuntimeError(code, QStringLiteral("Step %1 (%2): %3 (%4)")
                                           .arg(session().recordNo)
                                           .arg(objectName(), what, quizRs.description()));
}

void QuizScreen::showAnswerLine() {
    if (lblAnswer != nullptr)
        showFitted(*lblAnswer,
                   QStringLiteral("Answer: ") + required("a1") + QStringLiteral(" / ") + required("a2"),
                   entry_.shape == Shape::Table ? TextRole::Answer : TextRole::Row, scale());
}

void QuizScreen::showCounters(int item, int total) {
    lblCurrent_->setCaption(QString::number(item));
    lblTotal_->setCaption(QString::number(total));
}

void QuizScreen::showFinalCounters() {
    showCounters(session().finalItemNo, session().finalItemTotal);
    setCountersVisible(true);
}

void QuizScreen::setCountersVisible(bool visible) {
    for (Label* label : counterLabels_)
        label->setVisible(visible);
}

void QuizScreen::setRunning(bool running) {
    quizRunning_ = running ? QStringLiteral("YES") : QStringLiteral("NO");
}

void QuizScreen::offerQuiz() {
    showBegin(false);
    if (hasQuizButton())
        showQuizButton(true);
}

void QuizScreen::beginClicked() {
    if (loading())
        return;
    begin();
    focusContent();
}

void QuizScreen::quizClicked() {
    if (!loading())
        check();
}

void QuizScreen::nextClicked() {
    if (!session().isReview() || !entry_.knowsReview) {
        ExerciseScreen::nextClicked();
        return;
    }
    if (session().quizFinishedFlag == QStringLiteral("NO") && session().stepType == QStringLiteral("Quiz")) {
        context().boxes.notice(QStringLiteral("현재 레슨을 학습한 후에 다음으로 진행될 수 있습니다."));
        return;
    }
    leave();
    course::NextStep(context());
}

void QuizScreen::exitClicked() {
    if (entry_.exitGoesToTable)
        tableClicked();
    else
        ExerciseScreen::exitClicked();
}

void QuizScreen::finish(const CheckManner& manner, Int16 score) {
    if (isFinal()) {
        finishFinalStep(manner, score);
        return;
    }
    for (const EndAct step : manner.pass)
        act(step, score);
}

void QuizScreen::act(EndAct step, Int16 score) {
    switch (step) {
        case EndAct::Nothing: break;
        case EndAct::CloseGate: setRunning(false); break;
        case EndAct::Chime:
            core::PlaySound(context(), QStringLiteral("contestbegin.wav"), core::Effect);
            break;
        case EndAct::Save:
            session().scoreValue = score;
            course::SaveScore(context());
            break;
        case EndAct::ShowNext: picNext().show(); break;
        case EndAct::HideBoth:
            showQuizButton(false);
            showBegin(false);
            break;
        case EndAct::OfferBegin:
            if (hasQuizButton())
                showQuizButton(false);
            showBegin(true);
            break;
        case EndAct::StartWalk: startWalk(); break;
        case EndAct::TellEnd:
            tell(QStringLiteral("퀴즈가 종료되었습니다.\n\n다음 레슨을 학습하려면 <Next>를 클릭하세요."));
            break;
        case EndAct::TellScore:
            tell(QStringLiteral("Grammar Quiz Completed.\n\n점수는 %1 입니다\n\n다시 문제를 풀려면 <Begin>을 "
                                "클릭하십시오.")
                     .arg(score));
            break;
        case EndAct::TellGoodJob:
            tell(QStringLiteral("Good Job!  다음 레슨을 학습하려면 <Next> 버튼을 클릭하십시오."));
            break;
    }
}

void QuizScreen::tell(const QString& text) {
    if (session().isReview())
        session().quizFinishedFlag = QStringLiteral("YES");
    else
        context().boxes.notice(text);
}

void QuizScreen::finishFinalStep(const CheckManner& manner, Int16 score) {
    core::Session& s = session();
    if (manner.keepsAverage)
        keepStepScore(s, score);
    else
        s.finalStepNo += 1;
    if (hasFurtherStep(s)) {
        leave();
        course::NextFinalStep(context());
        return;
    }
    core::PlaySound(context(), QStringLiteral("contestbegin.wav"), core::Effect);
    QString text = QStringLiteral("Good Job! Grammar Final Quiz Completed!");
    if (entry_.finalMessage.tellsScore)
        text += QStringLiteral("\n\n점수는 %1 입니다.").arg(s.scoreValue);
    const auto icon = entry_.finalMessage.hasIcon ? platform::BoxIcon::Information : platform::BoxIcon::None;
    context().boxes.show({text, icon, {}, false});
    if (!manner.keepsAverage)
        s.scoreValue = score;
    course::SaveScore(context());
    leaveTo(QStringLiteral("frmTable"));
}

void QuizScreen::chooseByDigit(int) {}

void QuizScreen::keyPressEvent(QKeyEvent* event) {
    const int number = event->key() - Qt::Key_0;
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (number < 1 || number > lastDigit || !plain) {
        ExerciseScreen::keyPressEvent(event);
        return;
    }
    // A key that is held down answers once, not a whole run of questions.
    if (!event->isAutoRepeat() && !loading())
        chooseByDigit(number);
    // With the keyboard on a button of the side the digit may as well begin an answer such as "2 books".
    if (qobject_cast<platform::PictureButton*>(focusWidget()) == nullptr)
        platform::noteShortcut();
    event->accept();
}

}  // namespace quizzes
