#include "quizzes/question_quiz.h"

#include "catalogue/quizzes.h"
#include "core/play_sound.h"
#include "course/score.h"
#include "platform/desktop/input_gate.h"
#include "quizzes/fitted_text.h"
#include "quizzes/quiz_places.h"

namespace quizzes {

using catalogue::Look;
using catalogue::ShownField;

namespace {

constexpr int keyWidth = 22;

}  // namespace

QuestionQuiz::QuestionQuiz(core::Context& context, const QuizEntry& entry) : QuizScreen(context, entry) {
    const auto places = placesOf(entry.form).shown;
    for (std::size_t i = 0; i < entry.shown.size(); ++i) {
        const ShownField& field = entry.shown[i];
        const QRect& place = places[i];
        Label& label = addLabel(QLatin1String(field.control), place, roleOf(field.look));
        applyLook(label, field.look);
        shown_.push_back(&label);
        if (field.look != Look::Choice)
            continue;
        makeClickable(label);
        choices_.push_back(&label);
        Label& key = addLabel(QStringLiteral("lblKey(%1)").arg(choices_.size() - 1),
                              QRect(place.left() - keyWidth, place.top(), keyWidth - 4, place.height()),
                              TextRole::Caption, QString::number(choices_.size()));
        key.setAlignment(Qt::AlignCenter);
        key.setForeColor(platform::colour::accent);
        keyOf_[&label] = &key;
    }
    lblMark_ =
        &addLabel(QStringLiteral("lblMark"), QRect(course::sideLeft + 34, 212, 36, 36), TextRole::Caption);
    lblMark_->setAccessibleName(QStringLiteral("Last answer"));
}

void QuestionQuiz::startRun() {
    openRows();
    shuffle(restartOrder);
    openRows("orderno");
    setRunning(true);
    itemNo_ = 1;
    correctCount_ = 0;
    showItem();
    showAnswerLine();
    lblMark_->setMark(platform::BoxMark::None);
    showQuestion(true);
}

void QuestionQuiz::begin() {
    startRun();
    offerQuiz();
}

void QuestionQuiz::showItem() {
    if (isFinal())
        showCounters(session().finalItemNo, session().finalItemTotal);
    else
        showCounters(itemNo_, itemTotal);
}

void QuestionQuiz::fillShown(std::size_t index) {
    const ShownField& field = entry().shown[index];
    Label& label = *shown_[index];
    const QString text =
        field.hidesWhenEmpty ? quizRs.textOrEmpty(QLatin1String(field.field)) : required(field.field);
    showFitted(label, text, roleOf(field.look), scale());
    if (!field.hidesWhenEmpty)
        return;
    label.setVisible(!text.isEmpty());
    if (const auto key = keyOf_.find(&label); key != keyOf_.end())
        key->second->setVisible(!text.isEmpty());
}

void QuestionQuiz::fillAllShown() {
    for (std::size_t i = 0; i < shown_.size(); ++i)
        fillShown(i);
}

void QuestionQuiz::positionRow() {
    quizRs.findFirst(QStringLiteral("topicno=%1 AND recordno=%2 and orderno=%3")
                         .arg(session().topicNo)
                         .arg(session().recordNo)
                         .arg(itemNo_));
}

void QuestionQuiz::announce(const Verdict& verdict) {
    if (verdict.outcome == Outcome::Right) {
        core::PlaySound(context(), QStringLiteral("correct.wav"), core::Effect);
        correctCount_ += 1;
        lblMark_->setMark(platform::BoxMark::Right);
    }
    if (verdict.outcome != Outcome::Wrong)
        return;
    if (verdict.sounds)
        core::PlaySound(context(), QStringLiteral("wrongit.wav"), core::Effect);
    lblMark_->setMark(platform::BoxMark::Wrong);
    context().boxes.notice(verdict.message);
    if (!entry().marksWrongRows || !verdict.marksRow)
        return;
    quizRs.edit();
    quizRs.set(QStringLiteral("correct"), QStringLiteral("NO"));
    quizRs.update();
}

void QuestionQuiz::advance() {
    itemNo_ += 1;
    if (isFinal())
        session().finalItemNo += 1;
    if (itemNo_ <= itemTotal) {
        currentCounter().setCaption(QString::number(isFinal() ? session().finalItemNo : itemNo_));
        quizRs.moveNext();
        showAnswerLine();
        showQuestion(false);
        // The button that checks looks the same and stands for the next question.
        if (hasQuizButton())
            platform::noteChange(picQuiz());
        return;
    }
    setRunning(false);
    finish(entry().check, course::percentScore(correctCount_, itemTotal));
}

void QuestionQuiz::chooseByDigit(int number) {
    if (number > static_cast<int>(choices_.size()))
        return;
    const Label& choice = *choices_[static_cast<std::size_t>(number - 1)];
    if (choice.isVisible() && choice.onClick)
        choice.onClick();
}

Label& QuestionQuiz::addSlot(const char* name, const QRect& place, const QString& spoken) {
    Label& slot = addLabel(QLatin1String(name), place, TextRole::Choice);
    applyLook(slot, Look::Slot);
    slot.setAccessibleName(spoken);
    return slot;
}

Label& QuestionQuiz::addHeading(const char* name, const QRect& place, const char* text) {
    Label& heading = addLabel(QLatin1String(name), place, TextRole::Caption, QString::fromUtf8(text));
    heading.setForeColor(platform::colour::accent);
    return heading;
}

}  // namespace quizzes
