#include "course/walk.h"

#include "catalogue/steps.h"
#include "core/stores.h"
#include "course/preparation.h"
#include "course/score.h"
#include "platform/desktop/cursor.h"

#include <algorithm>
#include <array>

namespace course {

using core::Context;
using core::Int16;
using core::Session;
using platform::Database;
using platform::Recordset;

namespace {

QString stepType(const QString& type) {
    if (type == QStringLiteral("Final") || type == QStringLiteral("Lesson"))
        return type;
    return QStringLiteral("Quiz");
}

int lastRecordNo(const Database& course) {
    Recordset steps = course.openRecordset(QStringLiteral("Select * From tablework order by recordno"));
    steps.moveLast();
    return steps.integer(QStringLiteral("recordno"));
}

/// The number of the step that follows. A step that has to exist and does not ends the run.
Int16 followingRecordNo(const Session& session, const Database& course) {
    if (session.isReview())
        return session.reviewRecordNo;
    const catalogue::NextRecord next = catalogue::nextRecord(session.recordNo);
    Recordset preliminary = course.openRecordset(
        QStringLiteral("Select * from tablework where recordno=%1").arg(next.preliminary));
    preliminary.moveFirst();
    return next.taken;
}

/// Finds the next step and loads it. A number that no row carries leaves the session as it was.
void findNextStep(Session& session, const Database& course) {
    session.recordNo = followingRecordNo(session, course);
    Recordset steps = course.openRecordset(QStringLiteral("Select * from tablework"));
    steps.findFirst(QStringLiteral("recordno=%1").arg(session.recordNo));
    if (steps.noMatch())
        return;
    session.useData = steps.textOrEmpty(QStringLiteral("usedata"));
    loadStep(session, steps);
}

}  // namespace

void loadStep(Session& session, const Recordset& row) {
    session.topicNo = row.integer(QStringLiteral("topicno"));
    session.recordNo = row.integer(QStringLiteral("recordno"));
    session.pageNo = row.integer(QStringLiteral("pageno"));
    session.stepTitle = row.text(QStringLiteral("Title")) + u' ' + row.text(QStringLiteral("pageno"));
    session.guideText = row.textOrEmpty(QStringLiteral("guide"));
    session.wordNo = row.integer(QStringLiteral("wordno"));
    session.stepType = stepType(row.text(QStringLiteral("Type")));
    session.useForm = row.textOrEmpty(QStringLiteral("useform"));
    session.hasWords = session.wordNo >= 1 ? QStringLiteral("YES") : QStringLiteral("NO");
}

void loadFinalStep(Session& session, const Recordset& row) {
    session.useForm = row.textOrEmpty(QStringLiteral("useform"));
    session.topicNo = row.integer(QStringLiteral("topicno"));
    session.recordNo = row.integer(QStringLiteral("recordno"));
    session.stepTitle = row.text(QStringLiteral("Title")) + u' ' + row.text(QStringLiteral("pageno"));
    session.guideText = row.textOrEmpty(QStringLiteral("guide"));
}

void NextStep(const Context& context) {
    Session& session = context.session;
    Database course = core::openCourse(context);
    if (session.recordNo + 1 > lastRecordNo(course)) {
        course.close();
        context.boxes.notice(QStringLiteral("Grammar의 마지막 레슨입니다."));
        return;
    }
    findNextStep(session, course);
    std::fill(session.partDone.begin(), session.partDone.begin() + 3, QStringLiteral("YES"));
    course.close();
    if (!session.isFinal()) {
        PrepareStepData(context);
        openPreparedStep(context);
        return;
    }
    PrepareFinalData(context);
    session.finalBaseRecordNo = session.recordNo;
    context.boxes.notice(QStringLiteral("다음은 Final Quiz가 진행됩니다."));
    openPreparedFinal(context);
}

void openPreparedStep(const Context& context) {
    const Session& session = context.session;
    if (session.wordNo > 0 && session.vocaFirst == QStringLiteral("YES"))
        context.navigator.open(QStringLiteral("frmVoca2"));
    else
        ShowFormByName(context);
}

void openPreparedFinal(const Context& context) {
    Session& session = context.session;
    Database course = core::openCourse(context);
    Recordset steps = course.openRecordset(QStringLiteral("Select * From tablework_Final"));
    steps.moveLast();
    session.finalStepCount = steps.recordCount();
    session.hasWords = QStringLiteral("NO");
    session.finalStepNo = 1;
    steps.moveFirst();
    loadFinalStep(session, steps);
    steps.close();
    course.close();
    ShowFormByName(context);
}

void NextFinalStep(const Context& context) {
    Session& session = context.session;
    Database course = core::openCourse(context);
    Recordset steps = course.openRecordset(QStringLiteral("Select * From tablework_Final"));
    steps.moveFirst();
    steps.move(session.finalStepNo - 1);
    session.hasWords = QStringLiteral("NO");
    loadFinalStep(session, steps);
    steps.close();
    course.close();
    ShowFormByName(context);
}

void CheckQuizCompleted(const Context& context) {
    Session& session = context.session;
    session.scoreDb = core::openScores(context);
    session.scoreRs =
        session.scoreDb.openRecordset(QStringLiteral("Select * from score where ") +
                                      core::learnerCriterion(session) + QStringLiteral(" and S4 =0"));
    if (session.scoreRs.isEmpty()) {
        session.quizzesComplete = QStringLiteral("YES");
    } else {
        const QString title = session.scoreRs.textOrEmpty(QStringLiteral("vtitle"));
        context.boxes.notice(title + QStringLiteral("의 퀴즈가 끝나지 않은 데이타가 있습니다.\n\n") + title +
                             QStringLiteral(" Quiz completion Required"));
        session.quizzesComplete = QStringLiteral("NO");
    }
    session.scoreRs.close();
    session.scoreDb.close();
}

}  // namespace course
