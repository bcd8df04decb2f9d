#include "app/screens.h"

#include "catalogue/drills.h"
#include "catalogue/quizzes.h"
#include "core/login_panel.h"
#include "core/study_time.h"
#include "course/course_table.h"
#include "lessons/drill_maker.h"
#include "quizzes/quiz_maker.h"
#include "video/player_window.h"
#include "video/step_video.h"
#include "video/video_menu.h"
#include "vocabulary/spelling_coach.h"
#include "vocabulary/word_matching.h"
#include "vocabulary/word_quiz.h"
#include "worksheets/worksheet_menu.h"

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
    for (const catalogue::QuizEntry& quiz : catalogue::quizEntries())
        makers.insert(QLatin1String(quiz.form),
                      [&quiz](core::Context& context) { return quizzes::makeQuiz(context, quiz); });
    for (const catalogue::Drill& drill : catalogue::drillCatalogue())
        makers.insert(QString::fromUtf8(drill.name),
                      [&drill](core::Context& context) { return lessons::makeDrill(context, drill); });
    makers.insert(QStringLiteral("frmVideo"), maker<video::VideoMenu>());
    makers.insert(QStringLiteral("frmVideo2"), maker<video::PlayerWindow>());
    makers.insert(QStringLiteral("frmVideo_2014"), maker<video::StepVideo>());
    makers.insert(QStringLiteral("frmVoca2"), maker<vocabulary::SpellingCoach>());
    makers.insert(QStringLiteral("frmVoca3"), maker<vocabulary::WordMatching>());
    makers.insert(QStringLiteral("frmVoca4"), maker<vocabulary::WordQuiz>());
    makers.insert(QStringLiteral("frmWorkSheet"), maker<worksheets::WorksheetMenu>());
    return makers;
}

}  // namespace app
