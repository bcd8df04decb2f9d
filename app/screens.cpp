#include "app/screens.h"

#include "core/login_panel.h"
#include "core/study_time.h"
#include "course/course_table.h"
#include "vocabulary/spelling_coach.h"
#include "vocabulary/word_matching.h"
#include "vocabulary/word_quiz.h"

namespace app {

namespace {

template <typename Screen>
ScreenMaker maker() {
    return [](core::Context& context) { return new Screen(context); };
}

}  // namespace

ScreenMakers allScreens() {
    ScreenMakers makers;
    makers.insert(QStringLiteral("frmLogIn2"), maker<core::LoginPanel>());
    makers.insert(QStringLiteral("frmTime"), maker<core::StudyTime>());
    makers.insert(QStringLiteral("frmTable"), maker<course::CourseTable>());
    makers.insert(QStringLiteral("frmVoca2"), maker<vocabulary::SpellingCoach>());
    makers.insert(QStringLiteral("frmVoca3"), maker<vocabulary::WordMatching>());
    makers.insert(QStringLiteral("frmVoca4"), maker<vocabulary::WordQuiz>());
    return makers;
}

}  // namespace app
