#pragma once

#include "core/context.h"

namespace course {

/// Loads a row of `tablework` into the session as the step in hand; `usedata` is not among what it takes.
void loadStep(core::Session& session, const platform::Recordset& row);
/// Loads a row of `tablework_Final`: the fields that change from step to step inside a Final Quiz.
void loadFinalStep(core::Session& session, const platform::Recordset& row);

/// Moves on from the step in hand and brings up the next step's first screen, or tells that the course is
/// at its end.
void NextStep(const core::Context& context);

/// Brings up the screen that `useForm` names, its video first where the step has one. An unknown name brings
/// up nothing.
void ShowFormByName(const core::Context& context);

/// Brings up step number `finalStepNo` of the Final Quiz.
void NextFinalStep(const core::Context& context);

/// Sets `quizzesComplete`: "NO", after a message, while any begun step of the learner is unfinished.
void CheckQuizCompleted(const core::Context& context);

/// After the preparation: the first screen of the step in hand. With words that is the spelling coach.
void openPreparedStep(const core::Context& context);
/// The same for a step of type Final: the first step of the prepared list.
void openPreparedFinal(const core::Context& context);

}  // namespace course
