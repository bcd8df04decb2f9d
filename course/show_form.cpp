#include "course/walk.h"

#include "catalogue/dispatch.h"
#include "catalogue/steps.h"
#include "core/stores.h"
#include "course/score.h"
#include "course/score_store.h"

namespace course {

namespace {

void storeWatched(const core::Context& context) {
    core::Session& session = context.session;
    session.scoreDb = core::openScores(context);
    // As in every save, nobody else may add the row between the look and the writing.
    platform::Transaction saving(session.scoreDb);
    platform::Recordset& row = session.scoreRs;
    row = session.scoreDb.openRecordset(QStringLiteral("Select * from score where ") +
                                        core::learnerStepCriterion(session));
    if (row.isEmpty()) {
        addScoreRow(row, session, session.stepTitle);
        for (const char* column : {"s1", "s2", "s3"})
            row.set(QLatin1String(column), QString());
    } else {
        row.edit();
        row.set(QStringLiteral("vDate"), session.today.toString(Qt::ISODate));
    }
    row.set(QStringLiteral("s4"), 100);
    row.update();
    saving.commit();
    row.close();
    session.scoreDb.close();
}

/// A video step's video has been watched to its end, which counts as full marks.
void finishVideoStep(const core::Context& context) {
    if (context.session.recordNo == catalogue::clozeStep) {
        context.navigator.open(QStringLiteral("frmLesson3_2"));
        return;
    }
    saveScores(context, [&] { storeWatched(context); });
    context.navigator.open(QStringLiteral("frmTable"));
}

}  // namespace

void ShowFormByName(const core::Context& context) {
    const catalogue::DispatchRow* row = catalogue::findDispatch(context.session.useForm.toStdString());
    if (row == nullptr)
        return;
    const auto openScreen = [&context, row] {
        if (row->screen.empty())
            finishVideoStep(context);
        else
            context.navigator.open(
                QString::fromLatin1(row->screen.data(), static_cast<qsizetype>(row->screen.size())));
    };
    if (catalogue::runsVideoFirst(*row, context.session.recordNo))
        context.navigator.open(QStringLiteral("frmVideo_2014"), openScreen);
    else
        openScreen();
}

}  // namespace course
