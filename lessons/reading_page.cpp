#include "lessons/reading_page.h"

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
    saveFullMarks();
    DrillForm::nextClicked();
}

}  // namespace lessons
