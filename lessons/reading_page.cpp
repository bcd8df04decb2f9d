#include "lessons/reading_page.h"

#include "course/score.h"

namespace lessons {

namespace {

// The step whose cloze the page belongs to.
constexpr int clozeRecord = 21;

}  // namespace

void ReadingPage::nextClicked() {
    if (session().recordNo == clozeRecord) {
        leaveTo(QStringLiteral("frmLesson3_2"));
        return;
    }
    // Elsewhere reading alone counts as full marks, saved before the question is asked.
    session().scoreValue = 100;
    course::SaveScore(context());
    DrillForm::nextClicked();
}

}  // namespace lessons
