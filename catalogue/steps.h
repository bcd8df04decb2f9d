#pragma once

#include "catalogue/step_range.h"

#include <optional>
#include <span>

/// What is special about which step of the course. A number that is not told of here or in the tables beside
/// (judging, sheets) is a step like any other.
namespace catalogue {

/// The drill of uncountable nouns: two pages in one step. Its preparation takes the rows of its second page
/// along.
inline constexpr int doubleStep = 15;
/// The number under which the second page's rows stand.
inline constexpr int secondPageRows = 16;
/// The one video step that goes on into a drill, the cloze.
inline constexpr int clozeStep = 21;
/// The drill of comparison, whose prompts come from a list of their own.
inline constexpr int secondListStep = 115;
/// The drill of regular past forms: the one step of its screen that opens with a video.
inline constexpr int regularPastStep = 183;

/// Where the walk goes from a step: the step whose row must exist, and the step that is taken. They differ at
/// one place of the course.
struct NextRecord {
    int preliminary = 0;
    int taken = 0;
};
NextRecord nextRecord(int recordNo);

/// The steps that a Final draws from by number; none for a Final that draws from the quizzes of its unit.
std::optional<StepRange> drawnRange(int finalRecordNo);

}  // namespace catalogue
