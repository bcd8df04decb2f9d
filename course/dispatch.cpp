#include "course/dispatch.h"

#include "core/stores.h"
#include "course/score.h"
#include "course/score_store.h"
#include "course/walk.h"

#include <algorithm>
#include <array>

namespace course {

namespace {

constexpr std::array rows{
    DispatchRow{"frmQuiz", "frmQuiz"},
    DispatchRow{"frmQuiz10", "frmQuiz10"},
    DispatchRow{"frmQuiz11", "frmQuiz11"},
    DispatchRow{"frmQuiz12", "frmQuiz12"},
    DispatchRow{"frmQuiz2", "frmQuiz2"},
    DispatchRow{"frmQuiz3", "frmQuiz3"},
    DispatchRow{"frmQuiz4", "frmQuiz4"},
    DispatchRow{"frmQuiz5", "frmQuiz5"},
    DispatchRow{"frmQuiz6", "frmQuiz6"},
    DispatchRow{"frmQuiz7", "frmQuiz7"},
    DispatchRow{"frmQuiz8", "frmQuiz8"},
    DispatchRow{"frmQuiz9", "frmQuiz9"},
    DispatchRow{"frmLesson", "frmLesson", Video::First},
    DispatchRow{"frmLesson2", "frmLesson2", Video::First},
    DispatchRow{"frmLesson3", "", Video::First},
    DispatchRow{"frmLesson3_2", "frmLesson3_2", Video::First},
    DispatchRow{"frmLesson4", "frmLesson4", Video::First},
    DispatchRow{"frmLesson7", "frmLesson7", Video::First},
    DispatchRow{"frmLesson8", "frmLesson8", Video::First},
    DispatchRow{"frmLesson9", "frmLesson9", Video::First},
    DispatchRow{"frmLesson10", "frmLesson10", Video::First},
    DispatchRow{"frmLesson11", "frmLesson11", Video::First},
    DispatchRow{"frmLesson17", "frmLesson17", Video::First},
    DispatchRow{"frmLesson18", "frmLesson18", Video::FirstAtStep183},
    DispatchRow{"frmLesson18_2", "frmLesson18_2"},
    DispatchRow{"frmLesson24", "frmLesson24"},
};

// The one video step that goes on into a drill.
constexpr int clozeStep = 21;

void storeWatched(const core::Context& context) {
    core::Session& session = context.session;
    session.scoreDb = core::openScores(context);
    // As in every save, nobody else may add the row between the look and the writing.
    platform::Batch saving(session.scoreDb);
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
    if (context.session.recordNo == clozeStep) {
        context.navigator.open(QStringLiteral("frmLesson3_2"));
        return;
    }
    saveScores(context, [&] { storeWatched(context); });
    context.navigator.open(QStringLiteral("frmTable"));
}

}  // namespace

std::span<const DispatchRow> dispatchRows() {
    return rows;
}

const DispatchRow* findDispatch(const QString& useForm) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const DispatchRow& row) {
        return useForm == QLatin1String(row.useForm.data(), static_cast<qsizetype>(row.useForm.size()));
    });
    return found == rows.end() ? nullptr : &*found;
}

bool runsVideoFirst(const DispatchRow& row, int recordNo) {
    return row.video == Video::First || (row.video == Video::FirstAtStep183 && recordNo == 183);
}

void ShowFormByName(const core::Context& context) {
    const DispatchRow* row = findDispatch(context.session.useForm);
    if (row == nullptr)
        return;
    const auto openScreen = [&context, row] {
        if (row->screen.empty())
            finishVideoStep(context);
        else
            context.navigator.open(
                QString::fromLatin1(row->screen.data(), static_cast<qsizetype>(row->screen.size())));
    };
    if (runsVideoFirst(*row, context.session.recordNo))
        context.navigator.open(QStringLiteral("frmVideo_2014"), openScreen);
    else
        openScreen();
}

}  // namespace course
