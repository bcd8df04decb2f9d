#pragma once

namespace catalogue {

/// Which column of the score row a screen's result goes to, as `scoreSlot` holds it.
enum ScoreSlot {
    WholeStep = 0,     // before the first screen has named its own: full marks for the step
    Spelling = 1,      // s1
    Matching = 2,      // s2
    WordQuiz = 3,      // s3
    MainExercise = 4,  // s4
    SetDrill = 5,      // the two-page drill, which s4 and s5 share
};

}  // namespace catalogue
