#pragma once

#include "catalogue/step_range.h"

#include <span>

/// What a quiz judges by on which steps. A number that no rule names has what the text of each rule tells.
namespace catalogue {

enum class AnswerField { First, Second, Either };

/// How the wrong-word quiz judges: the field that holds the word.
struct CorrectionRule {
    StepRange steps;
    AnswerField field;
    /// From Enter one rule leaves its rows unmarked.
    bool enterMarks = true;
};

/// The rule of a step, or null where nothing is judged.
const CorrectionRule* correctionRule(int recordNo);

/// How many buttons the button quiz has.
inline constexpr int buttonCount = 5;

/// The buttons of a step: captions, those beyond being hidden, and the instruction.
struct ButtonSet {
    std::span<const char* const> captions;
    const char* memo;
};
/// The buttons of a step; articles where no rule names it.
ButtonSet buttonSet(int recordNo);

/// Whether the answer is compared with the caption of the button, to the letter; else the buttons are
/// articles.
bool comparesCaptions(int recordNo);

/// Which field a label of the sentence quiz takes on a step; null leaves the label as it is.
struct SentenceFields {
    const char* word;
    const char* korean;
};
SentenceFields sentenceFields(int recordNo);

}  // namespace catalogue
