#include "course/walk.h"

#include "core/stores.h"
#include "course/dispatch.h"
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

struct Skip {
    int from;
    NextRecord next;
};

// Holes of the course, and one way back: from 98 the row of 100 must exist, yet the walk returns to 10.
constexpr std::array skips{
    Skip{64, {66, 66}},    Skip{98, {100, 10}},   Skip{116, {118, 118}}, Skip{123, {125, 125}},
    Skip{130, {132, 132}}, Skip{143, {145, 145}}, Skip{149, {151, 151}}, Skip{153, {156, 156}},
    Skip{166, {169, 169}}, Skip{177, {180, 180}}, Skip{199, {201, 201}}, Skip{220, {221, 221}},
    Skip{248, {250, 250}}, Skip{255, {256, 256}},
};

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
    const NextRecord next = nextRecord(session.recordNo);
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

NextRecord nextRecord(int recordNo) {
    const auto skip =
        std::find_if(skips.begin(), skips.end(), [&](const Skip& s) { return s.from == recordNo; });
    if (skip != skips.end())
        return skip->next;
    return {recordNo + 1, recordNo + 1};
}

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
