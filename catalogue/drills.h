#pragma once

#include "catalogue/score_slots.h"

#include <limits>
#include <span>
#include <string_view>

namespace catalogue {

/// For limits by number: no number reaches it, or every number does.
inline constexpr int never = std::numeric_limits<int>::max();
inline constexpr int always = std::numeric_limits<int>::min();

/// Whose course a screen follows.
enum class Flow { Table, AnswerList, Set, Cloze, Reading };

/// Where the prompts beside the boxes come from.
enum class Prompts { None, Rows, SecondList, Fixed };

enum class Field { Word1, Word2 };

/// What a screen does with a set of rows when it loads: leaves it alone, opens it and reads nothing, fails
/// without a row, or goes on without one.
enum class SetUse { Absent, Opened, Needed, Guarded };

/// In which order the criterion of the check names its two terms.
enum class Terms { BoxThenWord, WordThenBox };

enum class BoxColour { PaleCyan, White, OrangeThenCyan };

enum class CompletionIcon { Information, None };

/// The record sets that a leaving routine lets go.
struct ClosedSets {
    bool tip = true;
    bool rules = true;
    bool rows = true;
    bool blanks = true;
};

inline constexpr const char* pluralInstruction =
    "<Begin>를 클릭하여 단어의 복수형을 입력하십시오. 자판의 <Enter> 키를 치면 다음 단어를 입력할 수 "
    "있습니다.  전체 단어를 입력한 후에는 <Answer>을 클릭하십시오";
inline constexpr const char* goOnMessage =
    "Good Job!  Lesson Completed!\n\n다음 레슨을 학습하려면 <Next>버튼을 클릭하십시오.";
inline constexpr const char* missMessage =
    "틀린 단어들이 있습니다.  정답을 확인한 후 <Begin>을 클릭하여 올바른 답을 입력하십시오.";

/// All that tells one drill screen from another. A column that a row leaves out is as on `frmLesson`.
struct Drill {
    const char* name = "";
    Flow flow = Flow::Table;

    // The form.
    const char* picture = "Main1.jpg";
    const char* answerName = "lblAnswer";
    const char* answerCaption = "Answer";
    const char* preName = "lblPreCaption";
    const char* preCaption = "Voca Quiz";
    const char* headline = "";
    const char* instruction = pluralInstruction;
    const char* instructionName = "Label1";
    BoxColour boxColour = BoxColour::PaleCyan;
    bool takesPhrases = false;  // the boxes take several words
    bool hasBegin = true;

    // Counts. The form may have a box more than the screen uses.
    int boxes = 0;
    int ruleLines = 0;
    int prompts = 0;
    const char* promptName = "lblWord";
    Prompts promptSource = Prompts::Rows;
    std::span<const char* const> fixedPrompts = {};

    // Content and what is written into it at load.
    int contentRecord = 0;  // 0: the step in hand
    ScoreSlot scoreSlot = MainExercise;
    SetUse tip = SetUse::Needed;
    const char* missingTip = "";  // the message where a guarded tip has no row
    SetUse rules = SetUse::Needed;
    SetUse rows = SetUse::Needed;
    Field shown = Field::Word2;
    bool clearsWord3 = true;
    int plainFromOrder = never;  // rows from this order number on have no prompt, and get word2 = word1
    bool countsRows = false;     // as many boxes are in play as the step has rows

    // Typing.
    int firstHintFromOrder = never;  // rows from this order number on show their first letter
    int laterHintFromBox = never;    // the same in a later pass, by box
    bool enterSelects = true;        // Enter selects the next box's text in the first pass

    // The check.
    Field rightWord = Field::Word2;
    int wordAloneFromBox = never;  // boxes from this one on are right wherever their word stands in the list
    Terms terms = Terms::BoxThenWord;

    // Messages and sounds.
    bool completionSound = true;
    bool completionTestsReview = true;
    CompletionIcon completionIcon = CompletionIcon::Information;
    const char* completion = goOnMessage;
    const char* missed = missMessage;

    // Leaving.
    bool savesScore = true;       // a set drill may leave the score to its second page
    const char* nextScreen = "";  // where a first page goes on to, with no question
    const char* preScreen = "frmVoca2";
    bool hidesNextInReview = false;
    bool nextAsksInReview = true;
    ClosedSets closes = {};
    ClosedSets closesForNo = {};
    ClosedSets closesForPre = {};
};

/// Every drill screen of the course.
std::span<const Drill> drillCatalogue();

/// The row of a screen's name, or null.
const Drill* findDrill(std::string_view name);

}  // namespace catalogue
