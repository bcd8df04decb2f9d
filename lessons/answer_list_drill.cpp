#include "lessons/answer_list_drill.h"

namespace lessons {

using platform::TextRole;

namespace {

constexpr QRect titlePlace(508, 292, 200, 22);
constexpr QRect listPlace(508, 316, 330, 30);

}  // namespace

AnswerListDrill::AnswerListDrill(core::Context& context, const Drill& drill) : DrillScreen(context, drill) {
    lblTitle_ =
        &addLabel(QStringLiteral("lblTitle"), titlePlace, TextRole::Caption, QStringLiteral("Answer List"));
    comBo1_ = &addDropList(QStringLiteral("ComBo1"), listPlace, QStringLiteral("Answer List"));
    lblTitle_->hide();
    comBo1_->hide();
    // Writes into a locked box too: the lock holds against the keyboard alone.
    comBo1_->onClick = [this] { txtWord(selectedBox_).setText(comBo1_->text()); };
    for (int i = 0; i < txtWord.size(); ++i)
        txtWord(i).onClick = [this, i] { boxClicked(i); };
}

std::vector<QWidget*> AnswerListDrill::afterAnswers() const {
    // Not next to the boxes: a learner who goes on by Tab must not type into the list.
    std::vector<QWidget*> controls = DrillScreen::afterAnswers();
    controls.push_back(comBo1_);
    return controls;
}

void AnswerListDrill::firstTick() {
    DrillScreen::firstTick();
    if (basicRs.isEmpty())
        return;
    for (basicRs.moveFirst(); !basicRs.eof(); basicRs.moveNext())
        comBo1_->addItem(basicRs.text(QStringLiteral("word2")));
    comBo1_->setCurrentIndex(-1);
}

void AnswerListDrill::boxClicked(int box) {
    whitenBoxes();
    txtWord(box).setBackColor(platform::colour::red);
    selectedBox_ = box;
}

void AnswerListDrill::whitenBoxes() {
    for (TextBox* box : txtWord)
        box->setBackColor(platform::colour::white);
}

void AnswerListDrill::beginClicked() {
    whitenBoxes();
    DrillScreen::beginClicked();
    if (loading())
        return;
    comBo1_->show();
    lblTitle_->show();
}

void AnswerListDrill::boxesCleared() {
    if (!session().isTeacher())
        return;
    toFirstRow();
    for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext())
        txtWord(i).setText(basicRs.text(QStringLiteral("word2")));
}

}  // namespace lessons
