#include "lessons/reading_page.h"

#include "catalogue/steps.h"

namespace lessons {

namespace {

// The step whose cloze the page belongs to.

}  // namespace

void ReadingPage::nextClicked() {
    if (session().recordNo == catalogue::clozeStep) {
        leaveTo(QStringLiteral("frmLesson3_2"));
        return;
    }
    // Elsewhere reading alone counts as full marks, saved before the question is asked.
    saveFullMarks();
    DrillForm::nextClicked();
}

}  // namespace lessons
