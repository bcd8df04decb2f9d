#pragma once

#include "platform/desktop/message_box.h"
#include "vocabulary/spelling.h"

#include <array>

namespace vocabulary {

/// The rows of the spelling method, of which at most one takes letters.
enum class Stage { Closed, Copy, CopyAgain, Vowels, Consonants, Whole };
inline constexpr int rowCount = 5;

/// What can happen to the row in hand.
enum class Event { RowRight, RowWrong, StepBack };

/// What is said of a row that is wrong as a whole, and whether the row is emptied before or after.
struct Complaint {
    QString text;
    platform::BoxIcon icon = platform::BoxIcon::Stop;
    QString title;
    bool emptiedFirst = true;
};

/// One way on from a stage. The word is spoken, or the complaint made, before the next row is built.
struct Turn {
    Stage from;
    Event event;
    Stage to;
    bool speaks = false;
    const Complaint* complaint = nullptr;
    FocusSearch search{};
};

/// The way on, or null where nothing happens: a copied row is right or not yet full, and the first row has no
/// way back.
const Turn* turnFrom(Stage stage, Event event);

}  // namespace vocabulary
