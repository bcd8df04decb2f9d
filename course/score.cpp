#include "course/score.h"

#include "catalogue/score_slots.h"
#include "core/stores.h"
#include "course/score_store.h"
#include "platform/error.h"
#include "platform/storage/database.h"

#include <QLatin1String>

namespace course {

using core::Int16;
using core::Session;
using platform::Recordset;

namespace {

/// Writes the word part's running average, from the stored texts and not from the raw scores.
void averageWordScores(Recordset& rows) {
    const Int16 sum = rows.integer(QStringLiteral("s2")) + rows.integer(QStringLiteral("s3"));
    rows.set(QStringLiteral("s3"), QString::number(sum / 2.0, 'g', 15));
}

void updateRow(Recordset& rows, Session& session) {
    rows.edit();
    rows.set(QStringLiteral("vDate"), session.today.toString(Qt::ISODate));
    rows.set(QStringLiteral("vtitle"), session.blankTitle);
    switch (session.scoreSlot) {
        case catalogue::Spelling: rows.set(QStringLiteral("s1"), QStringLiteral("100")); break;
        case catalogue::Matching:
            rows.set(QStringLiteral("s2"), QString::number(session.scoreValue));
            averageWordScores(rows);
            break;
        case catalogue::WordQuiz:
            rows.set(QStringLiteral("s3"), QString::number(session.scoreValue));
            averageWordScores(rows);
            break;
        case catalogue::MainExercise: rows.set(QStringLiteral("s4"), session.scoreValue); break;
        case catalogue::SetDrill: rows.set(QStringLiteral("s5"), QString::number(session.scoreValue)); break;
        case catalogue::WholeStep:
            rows.set(QStringLiteral("s4"), 100);
            session.scoreValue = 100;
            break;
        default: break;
    }
    rows.update();
}

void setWordColumns(Recordset& rows, const QString& text) {
    for (const char* column : {"s1", "s2", "s3"})
        rows.set(QLatin1String(column), text);
}

/// A step with words starts its row as begun. A first score of the word quiz lands in s2, as a first score
/// of the matching does, while a later one lands in s3.
void setBegunColumns(Recordset& rows, const Session& session) {
    setWordColumns(rows, QStringLiteral("0"));
    if (session.scoreSlot == catalogue::Spelling)
        rows.set(QStringLiteral("s1"), QStringLiteral("100"));
    if (session.scoreSlot == catalogue::Matching || session.scoreSlot == catalogue::WordQuiz) {
        rows.set(QStringLiteral("s2"), QString::number(session.scoreValue));
        averageWordScores(rows);
    }
    rows.set(QStringLiteral("s4"), 0);
}

void addRow(Recordset& rows, const Session& session) {
    addScoreRow(rows, session, session.blankTitle);
    if (session.wordNo > 0) {
        setBegunColumns(rows, session);
    } else {
        setWordColumns(rows, session.isFinal() ? QString() : QStringLiteral("N/A"));
        rows.set(QStringLiteral("s4"), session.scoreValue);
    }
    if (session.scoreSlot == catalogue::MainExercise)
        rows.set(QStringLiteral("s4"), session.scoreValue);
    if (session.scoreSlot == catalogue::SetDrill)
        rows.set(QStringLiteral("s5"), QString::number(session.scoreValue));
    rows.update();
}

void storeScore(const core::Context& context) {
    Session& session = context.session;
    session.scoreDb = core::openScores(context);
    // Looking and writing are one transaction: a second copy of the program cannot add the same row between
    // the two.
    platform::Transaction saving(session.scoreDb);
    session.scoreRs = session.scoreDb.openRecordset(QStringLiteral("Select * from score where ") +
                                                    core::learnerStepCriterion(session));
    if (session.scoreRs.isEmpty())
        addRow(session.scoreRs, session);
    else
        updateRow(session.scoreRs, session);
    saving.commit();
    session.scoreRs.close();
    session.scoreDb.close();
}

}  // namespace

void addScoreRow(Recordset& rows, const Session& session, const QString& title) {
    rows.addNew();
    rows.set(QStringLiteral("recordno"), session.recordNo);
    rows.set(QStringLiteral("page2"), session.recordNo);
    rows.set(QStringLiteral("datapage"), session.topicNo);
    rows.set(QStringLiteral("lessontype"), session.stepType);
    rows.set(QStringLiteral("vtitle"), title);
    for (const char* column : {"s5", "s6", "s7", "S8", "s9", "s10", "s11", "s12"})
        rows.set(QLatin1String(column), QString());
    for (int i = 1; i <= 8; ++i)
        rows.set(QStringLiteral("st%1").arg(i), QStringLiteral("NO"));
    rows.set(QStringLiteral("dayno"), session.pageNo);
    rows.set(QStringLiteral("vDate"), session.today.toString(Qt::ISODate));
    rows.set(QStringLiteral("studentno"), session.userId);
    rows.set(QStringLiteral("program"), session.programCode);
    rows.set(QStringLiteral("studentname"), session.userName);
    rows.set(QStringLiteral("bookno"), 0);
}

void SaveScore(const core::Context& context) {
    Session& session = context.session;
    session.blankTitle = QString();
    if (session.isFinal() && session.finalBaseRecordNo != session.recordNo)
        session.recordNo = session.finalBaseRecordNo;
    saveScores(context, [&] { storeScore(context); });
}

Int16 percentScore(int correct, int total) {
    if (total == 0)
        throw platform::RuntimeError(platform::ErrorCode::Overflow,
                                     QStringLiteral("Overflow: a score over no items at all."));
    return platform::roundToInt16(static_cast<double>(correct) / total * 100.0);
}

Int16 averageScore(const std::array<Int16, core::finalStepLimit>& scores, int count) {
    if (count < 1 || count > core::finalStepLimit)
        throw platform::RuntimeError(
            platform::ErrorCode::SubscriptOutOfRange,
            QStringLiteral(
                "Subscript out of range: a Final Quiz keeps scores of at most %1 steps, not of %2.")
                .arg(core::finalStepLimit)
                .arg(count));
    Int16 sum;
    for (int i = 0; i < count; ++i)
        sum += scores[static_cast<std::size_t>(i)];
    return platform::roundToInt16(static_cast<double>(static_cast<int>(sum)) / count);
}

}  // namespace course
