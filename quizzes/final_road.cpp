#include "quizzes/final_road.h"

#include "course/score.h"
#include "platform/error.h"

namespace quizzes {

void keepStepScore(core::Session& session, core::Int16 score) {
    const int step = session.finalStepNo;
    if (step < 1 || step > core::finalStepLimit)
        throw platform::RuntimeError(platform::ErrorCode::SubscriptOutOfRange,
                                     QStringLiteral("Subscript out of range: step %1 of a Final Quiz has no "
                                                    "place for its score, there are %2.")
                                         .arg(step)
                                         .arg(core::finalStepLimit));
    session.finalStepScores[static_cast<std::size_t>(step - 1)] = score;
    session.scoreValue = course::averageScore(session.finalStepScores, step);
    session.finalStepNo += 1;
}

bool hasFurtherStep(const core::Session& session) {
    return session.finalStepNo <= session.finalStepCount;
}

}  // namespace quizzes
