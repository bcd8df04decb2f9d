#include "app/screens.h"

#include "core/login_panel.h"
#include "core/study_time.h"
#include "course/course_table.h"
#include "lessons/drill_maker.h"
#include "quizzes/quiz_maker.h"

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
    for (const lessons::Drill& drill : lessons::drillCatalogue())
        makers.insert(QString::fromUtf8(drill.name),
                      [&drill](core::Context& context) { return lessons::makeDrill(context, drill); });
    for (const quizzes::QuizEntry& quiz : quizzes::quizEntries())
        makers.insert(QLatin1String(quiz.form),
                      [&quiz](core::Context& context) { return quizzes::makeQuiz(context, quiz); });
    return makers;
}

}  // namespace app
