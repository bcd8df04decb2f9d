#include "catalogue/quizzes.h"

#include <algorithm>

namespace catalogue {

namespace {

using enum EndAct;

constexpr std::array twoChoices{
    ShownField{"lblWord", "q1", Look::Sentence},
    ShownField{"lblWord2(0)", "q2", Look::Choice},
    ShownField{"lblWord2(1)", "q3", Look::Choice},
};
constexpr std::array fourChoices{
    ShownField{"lblWord", "q1", Look::Sentence},         ShownField{"lblWord2(0)", "q2", Look::Choice},
    ShownField{"lblWord2(1)", "q3", Look::Choice},       ShownField{"lblWord2(2)", "q4", Look::Choice, true},
    ShownField{"lblWord2(3)", "q5", Look::Choice, true},
};
constexpr std::array twoPairs{
    ShownField{"lblWord", "q1", Look::Sentence}, ShownField{"lblWord2", "q2", Look::Line},
    ShownField{"lblWord3", "q3", Look::Line},    ShownField{"lblWord4", "q4", Look::Choice},
    ShownField{"lblWord5", "q5", Look::Choice},  ShownField{"lblWord6", "q6", Look::Choice},
    ShownField{"lblWord7", "q7", Look::Choice},
};
constexpr std::array wrongWord{ShownField{"lblWord", "q1", Look::Sentence}};
constexpr std::array gapSentence{ShownField{"lblWord", "q1", Look::Sentence}};
constexpr std::array wholeSentence{
    ShownField{"lblWord", "q1", Look::Sentence},
    ShownField{"lblKorean", "q2", Look::Sentence},
};
constexpr std::array wordGaps{
    ShownField{"lblWord", "q1", Look::Sentence},
    ShownField{"lblKorean", "q2", Look::Sentence},
};

constexpr const char* questionHeading = "Question Word";
constexpr const char* selectHeading = "Select Word";
constexpr const char* answeredHeading = "Answered Word";

constexpr Column shows(ColumnKind kind, const char* array, const char* heading, const char* field) {
    return {.array = array, .heading = heading, .kind = kind, .shown = field};
}

constexpr Column takes(ColumnKind kind, const char* array) {
    return {.array = array, .heading = answeredHeading, .kind = kind, .judged = "a1"};
}

constexpr Column typed(const char* array, const char* heading, const char* judged, const char* stored,
                       const char* wrongList) {
    return {array, heading, ColumnKind::Box, nullptr, judged, stored, wrongList};
}

constexpr std::array rowChoices{
    shows(ColumnKind::Text, "lblWord", questionHeading, "q1"),
    shows(ColumnKind::Choice, "lblWord2", selectHeading, "q2"),
    shows(ColumnKind::Choice, "lblWord3", selectHeading, "q3"),
    takes(ColumnKind::Answer, "lblWord4"),
};
constexpr std::array pool{
    shows(ColumnKind::Text, "lblWord", questionHeading, "q1"),
    takes(ColumnKind::Slot, "lblWord2"),
    shows(ColumnKind::Pool, "lblWord3", selectHeading, "a1"),
};
constexpr std::array typedColumn{
    shows(ColumnKind::Text, "lblWord", questionHeading, "q1"),
    typed("txtWord", answeredHeading, "a1", "a2", "blankno"),
};
constexpr std::array twoTypedColumns{
    shows(ColumnKind::LowerText, "lblWord", questionHeading, "q1"),
    typed("txtWord", "Answered Word (1)", "a1", "q2", "blankno"),
    typed("txtWord2", "Answered Word (2)", "a2", "q3", "blankno2"),
};

constexpr const char* wrongPicks =
    "틀린 답을 선택하였습니다.\n\n다시 <Begin>을 클릭하여 올바른 정답을 선택하십시오.";
// The two wordings of the typed tables differ in one particle; which of them comes tells how the check was
// run.
constexpr const char* wrongTyping =
    "틀린 정답들을 입력하였습니다.\n\n다시 <Begin>를 클릭하여 올바른 정답을 입력하십시오.";
constexpr const char* wrongTypingByEnter =
    "틀린 정답들을 입력하였습니다.\n\n다시 <Begin>을 클릭하여 올바른 정답을 입력하십시오.";

constexpr CheckManner savedThenTold{nullptr, {OfferBegin, ShowNext, Save, TellEnd}};
constexpr CheckManner toldThenSaved{nullptr, {TellScore, OfferBegin, ShowNext, Save}};
constexpr CheckManner byEnter{
    .failure = wrongTypingByEnter,
    .pass = {OfferBegin, Save, Chime, TellGoodJob, ShowNext, StartWalk},
    .keepsAverage = false,
};
constexpr FinalMessage plainFinal{false, false};

constexpr std::array entries{
    QuizEntry{
        .form = "frmQuiz",
        .shape = Shape::Table,
        .answering = Answering::RowChoice,
        .compare = Compare::Exact,
        .columns = rowChoices,
        .quizCaption = "Answer",
        .check = {wrongPicks, {Chime, Save, ShowNext, TellEnd, OfferBegin}},
        .finalMessage = {false, true},
        .exitGoesToTable = true,
        .room = {34, 16, 16},
    },
    QuizEntry{
        .form = "frmQuiz2",
        .shape = Shape::Table,
        .answering = Answering::RowTyping,
        .compare = Compare::TrimmedLowerCase,
        .columns = typedColumn,
        .quizCaption = "Answer",
        .teacherHelp = TeacherHelp::FillsAnswer,
        .emptied = "a2",
        .counters = {CountersShown::AtLoadAndTick, false, false},
        .check = {.failure = wrongTyping,
                  .pass = {HideBoth, Save, TellEnd, ShowNext},
                  .failureStartsWalk = true},
        .finalMessage = plainFinal,
        .knowsReview = false,
        .room = {44, 0, 24},
    },
    QuizEntry{
        .form = "frmQuiz3",
        .shape = Shape::OneAtATime,
        .answering = Answering::TwoPicks,
        .compare = Compare::Exact,
        .judged = {"a1", "a2"},
        .shown = twoPairs,
        .quizCaption = "Next Quiz",
        .hint = "답을 선택한 후에는 <Next Quiz>를 클릭하십시오",
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .check = savedThenTold,
        .room = {110, 22, 22},
        .hasGap = true,
    },
    QuizEntry{
        .form = "frmQuiz4",
        .shape = Shape::OneAtATime,
        .answering = Answering::WrongWord,
        .compare = Compare::ByRecord,
        .judged = {"a1", "a2"},
        .shown = wrongWord,
        .quizCaption = "Next Quiz",
        .hint = "답을 입력한 후에는 글자판의 <Enter>키를 누르거나 <Next Quiz>를 클릭하십시오",
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .teacherHelp = TeacherHelp::FillsAnswer,
        .check = toldThenSaved,
        .room = {110, 0, 22},
    },
    QuizEntry{
        .form = "frmQuiz5",
        .shape = Shape::OneAtATime,
        .answering = Answering::Button,
        .compare = Compare::ByRecord,
        .shown = gapSentence,
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .check = savedThenTold,
        .room = {110, 0, 0},
    },
    QuizEntry{
        .form = "frmQuiz6",
        .shape = Shape::OneAtATime,
        .answering = Answering::Sentence,
        .compare = Compare::LetterByLetter,
        .shown = wholeSentence,
        .quizCaption = "Next Quiz",
        .hint = "문장을 입력한 후 글자판의 <Enter>키를 누르거나 <Next Quiz>를 클릭하십시오",
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .teacherHelp = TeacherHelp::FillsAnswer,
        .check = toldThenSaved,
        .room = {110, 0, 60},
    },
    QuizEntry{
        .form = "frmQuiz7",
        .shape = Shape::OneAtATime,
        .answering = Answering::Choice,
        .compare = Compare::LowerCase,
        .shown = twoChoices,
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .check = savedThenTold,
        .room = {110, 26, 26},
        .hasGap = true,
    },
    QuizEntry{
        .form = "frmQuiz8",
        .shape = Shape::OneAtATime,
        .answering = Answering::Choice,
        .compare = Compare::LowerCase,
        .judged = {"a1", "a2"},
        .eitherAnswer = {245, 249},
        .shown = fourChoices,
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .check = savedThenTold,
        .choicesLightUp = true,
        .room = {110, 26, 26},
        .hasGap = true,
    },
    QuizEntry{
        .form = "frmQuiz9",
        .shape = Shape::Table,
        .answering = Answering::RowTyping,
        .compare = Compare::TrimmedLowerCase,
        .columns = twoTypedColumns,
        .quizCaption = "Answer",
        .counters = {.shown = CountersShown::AfterFill, .refreshedByBegin = true},
        .check = {wrongTyping, {OfferBegin, Save, TellEnd, ShowNext, StartWalk}},
        .enterCheck = &byEnter,
        .finalMessage = plainFinal,
        .room = {24, 0, 24},
    },
    QuizEntry{
        .form = "frmQuiz10",
        .shape = Shape::OneAtATime,
        .answering = Answering::WordBoxes,
        .compare = Compare::TrimmedLowerCase,
        .shown = wordGaps,
        .quizCaption = "Answer",
        .hint = "문장을 입력한 후 글자판의 <Enter>키를 누르거나 <Answer>를 클릭하십시오",
        .gated = true,
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .teacherHelp = TeacherHelp::PassesByQuiz,
        .check = savedThenTold,
        .room = {110, 0, 40},
        .hasGap = true,
    },
    QuizEntry{
        .form = "frmQuiz11",
        .shape = Shape::Table,
        .answering = Answering::Pool,
        .compare = Compare::Exact,
        .columns = pool,
        .quizCaption = "Answer",
        .hint = "<Re-Set>을 클릭하면 처음부터 다시 답을 선택할 수 있습니다.",
        .gated = true,
        .shuffled = {"orderno", "orderno2"},
        .counters = {CountersShown::AfterFill},
        .check = {.failure = wrongPicks,
                  .pass = {Save, ShowNext, Chime, TellEnd, OfferBegin},
                  .failureClosesGate = true},
        .finalMessage = plainFinal,
        .room = {40, 0, 16},
        .hasGap = true,
    },
    QuizEntry{
        .form = "frmQuiz12",
        .shape = Shape::Table,
        .answering = Answering::Pool,
        .compare = Compare::Exact,
        .columns = pool,
        .quizCaption = "Answer",
        .marksWrongRows = true,
        .hasAnswerLine = true,
        .shuffled = {"orderno", "orderno2"},
        .counters = {CountersShown::BeforeShuffle},
        .check = {.failure = wrongPicks,
                  .pass = {CloseGate, Save, ShowNext, TellEnd, OfferBegin},
                  .failureClosesGate = true},
        .finalMessage = plainFinal,
        .room = {40, 0, 16},
        .hasGap = true,
    },
};

}  // namespace

std::span<const QuizEntry> quizEntries() {
    return entries;
}

const QuizEntry* findQuiz(std::string_view form) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const QuizEntry& entry) { return entry.form == form; });
    return found == entries.end() ? nullptr : &*found;
}

}  // namespace catalogue
