#pragma once

#include "catalogue/step_range.h"

#include <array>
#include <span>
#include <string_view>

namespace catalogue {

/// All rows of the step at once, judged by one press; or one question after the other.
enum class Shape { Table, OneAtATime };

/// How a learner answers. Each has a class of its own.
enum class Answering { RowChoice, RowTyping, Pool, Choice, TwoPicks, WrongWord, Button, Sentence, WordBoxes };

enum class Compare { Exact, LowerCase, TrimmedLowerCase, LetterByLetter, ByRecord };

/// What a text on the screen looks like.
enum class Look { Sentence, Line, Choice, Slot };

/// A label of a screen that asks one question at a time, and the field that it shows.
struct ShownField {
    const char* control;
    const char* field;
    Look look;
    bool hidesWhenEmpty = false;
};

enum class ColumnKind { Text, LowerText, Choice, Answer, Slot, Pool, Box };

/// A column of a table screen: a control array, its heading, and what it shows or is judged against.
struct Column {
    const char* array;
    const char* heading;
    ColumnKind kind;
    const char* shown = nullptr;
    const char* judged = nullptr;
    /// The field that keeps what was typed.
    const char* stored = nullptr;
    /// The working table that lists the wrong boxes.
    const char* wrongList = nullptr;
};

/// The acts that close a quiz in an ordinary step; their order differs from screen to screen.
enum class EndAct {
    Nothing,
    CloseGate,
    Chime,
    Save,
    ShowNext,
    OfferBegin,
    HideBoth,
    StartWalk,
    TellEnd,
    TellScore,
    TellGoodJob,
};
using EndActs = std::array<EndAct, 6>;

/// How a check of a whole table ends.
struct CheckManner {
    const char* failure;
    EndActs pass;
    /// Whether a failed check makes Enter walk the wrong boxes, and whether it closes the gate.
    bool failureStartsWalk = false;
    bool failureClosesGate = false;
    /// Whether the step's score enters the average of a Final Quiz. Without it the quiz ends at 100.
    bool keepsAverage = true;
};

/// When a table screen shows its counters in a Final Quiz.
enum class CountersShown { AtLoad, AtLoadAndTick, BeforeShuffle, AfterFill };

struct TableCounters {
    CountersShown shown;
    /// The item number rises by the row count, or by 1 alone.
    bool risesByRows = true;
    /// After the rise the counter shows the last item of these rows.
    bool showsLastItem = true;
    bool refreshedByBegin = false;
};

enum class TeacherHelp { None, FillsAnswer, PassesByQuiz };

struct FinalMessage {
    bool tellsScore;
    bool hasIcon;
};

/// Columns of text, a Korean letter counting two, that the question, a choice and an answer have room for.
struct TextRoom {
    int question = 0;
    int choice = 0;
    int answer = 0;
};

/// Everything that tells one quiz screen from another.
struct QuizEntry {
    const char* form;
    Shape shape;
    Answering answering;
    Compare compare;
    /// The fields judged against, in the order of the answers; on a table the columns tell them.
    std::array<const char*, 2> judged{"a1", nullptr};
    /// Steps on which the second field is as good an answer as the first.
    StepRange eitherAnswer{};
    std::span<const ShownField> shown{};
    std::span<const Column> columns{};
    /// Caption of `picQuiz`; null on a screen without it.
    const char* quizCaption = nullptr;
    const char* hint = nullptr;
    /// Whether answers count only while the quiz runs.
    bool gated = false;
    bool marksWrongRows = false;
    bool hasAnswerLine = false;
    TeacherHelp teacherHelp = TeacherHelp::None;
    /// Fields that the first shuffle orders, and a field that it empties.
    std::array<const char*, 2> shuffled{"orderno", nullptr};
    const char* emptied = nullptr;
    TableCounters counters{CountersShown::AtLoad};
    /// The end of a quiz, or the check by `picQuiz` on a table; and the check by Enter where that differs.
    CheckManner check;
    const CheckManner* enterCheck = nullptr;
    FinalMessage finalMessage{true, true};
    /// Whether a choice turns red under the mouse.
    bool choicesLightUp = false;
    bool exitGoesToTable = false;
    bool knowsReview = true;
    TextRoom room;
    /// Whether the question carries the gap "____".
    bool hasGap = false;
};

/// The most rows that a table screen has room for.
inline constexpr int tableRows = 15;

/// The twelve quiz screens.
std::span<const QuizEntry> quizEntries();

/// The entry of a screen, by its exact name, or null.
const QuizEntry* findQuiz(std::string_view form);

}  // namespace catalogue
