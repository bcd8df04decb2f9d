#include "catalogue/drills.h"

#include "catalogue/steps.h"

#include <algorithm>
#include <array>

namespace catalogue {

namespace {

constexpr const char* wordInstruction =
    "<Begin>를 클릭하어 해당 단어를 입력하십시오. 자판의 <Enter> 키를 치면 다음 단어를 입력할 수 있습니다.  "
    "전체 단어를 입력한 후에는 <Answer>을 클릭하십시오";

// One row of the grid a person.
constexpr std::array persons{
    "I",    "I",           "I",           "you",         "you",          "you",          "he",
    "he",   "he",          "she",         "she",         "she",          "it",           "it",
    "we",   "we",          "we",          "they",        "they",         "they",         "who",
    "who",  "who",         "Mr. Kim",     "Mr. Kim",     "Mr. Kim",      "Jane",         "Jane",
    "Jane", "Tom and Sue", "Tom and Sue", "Tom and Sue", "you and Jane", "you and Jane", "you and Jane"};

constexpr ClosedSets allButBlanks{.blanks = false};
constexpr ClosedSets allButTip{.tip = false};
constexpr ClosedSets rowsAndBlanks{.tip = false, .rules = false};
constexpr ClosedSets tipAlone{.rules = false, .rows = false, .blanks = false};

constexpr std::array drills{
    Drill{
        .name = "frmLesson",
        .headline = "◈ 셀 수 있는 명사의 복수형 만들기",
        .boxes = 28,
        .ruleLines = 8,
        .prompts = 28,
    },
    Drill{
        .name = "frmLesson2",
        .flow = Flow::Set,
        .picture = "Main2.jpg",
        .headline = "◈ 셀 수 없는 명사의 종류",
        .instruction = wordInstruction,
        .boxColour = BoxColour::White,
        .boxes = 28,
        .ruleLines = 7,
        .promptSource = Prompts::None,
        .scoreSlot = SetDrill,
        .shown = Field::Word1,
        .firstHintFromOrder = always,
        .laterHintFromBox = always,
        .rightWord = Field::Word1,
        .completionTestsReview = false,
        .completion = "Good Job!  <Next> 버튼을 클릭하여 다음 단계 학습을 하십시오.\n\n"
                      "다음 단계의 학습까지 완료되어야 해당 레슨 학습이 종료된 것으로 처리됩니다.",
        .missed = "틀린 단어들이 있습니다.  <Begin>을 클릭한 후 올바른 답을 입력하십시오.",
        .savesScore = false,
        .nextScreen = "frmLesson2_2",
    },
    Drill{
        .name = "frmLesson2_2",
        .flow = Flow::Set,
        .picture = "original.jpg",
        .preCaption = "Pre Lesson",
        .headline = "◈ 셀 수 없는 명사 세는 법",
        .instruction = wordInstruction,
        .boxColour = BoxColour::White,
        .boxes = 23,
        .ruleLines = 13,
        .promptSource = Prompts::None,
        .contentRecord = secondPageRows,
        .tip = SetUse::Absent,
        .shown = Field::Word1,
        .firstHintFromOrder = always,
        .laterHintFromBox = always,
        .rightWord = Field::Word1,
        .completionTestsReview = false,
        .missed = "틀린 단어들이 있습니다.  올바른 답을 입력하십시오.",
        .preScreen = "frmLesson2",
        .hidesNextInReview = true,
        .closes = allButTip,
        .closesForNo = allButTip,
        .closesForPre = allButTip,
    },
    Drill{
        .name = "frmLesson3",
        .flow = Flow::Reading,
        .picture = "Original2.jpg",
        .answerName = "lblQuiz",
        .instruction = "",
        .hasBegin = false,
        .promptSource = Prompts::None,
        .tip = SetUse::Guarded,
        .missingTip = "NO",
        .rules = SetUse::Absent,
        .rows = SetUse::Absent,
        .hidesNextInReview = true,
        .closes = tipAlone,
        .closesForNo = tipAlone,
        .closesForPre = tipAlone,
    },
    Drill{
        .name = "frmLesson3_2",
        .flow = Flow::Cloze,
        .picture = "original.jpg",
        .preName = "Label1",
        .preCaption = "Pre Lesson",
        .headline = "◈ 정관사 (the)를 반드시 붙이는 경우",
        .instruction = wordInstruction,
        .instructionName = "Label2",
        .boxColour = BoxColour::White,
        .boxes = 27,
        .ruleLines = 8,
        .promptSource = Prompts::None,
        .contentRecord = clozeStep,
        .tip = SetUse::Opened,
        .shown = Field::Word1,
        .clearsWord3 = false,
        .firstHintFromOrder = always,
        .laterHintFromBox = always,
        .rightWord = Field::Word1,
        .completionIcon = CompletionIcon::None,
        .preScreen = "frmLesson3",
        .closesForNo = allButBlanks,
    },
    Drill{
        .name = "frmLesson4",
        .answerCaption = "Quiz",
        .headline = "◈ 인칭대명사의 격변화",
        .instruction = wordInstruction,
        .instructionName = "lblInstruction",
        .boxColour = BoxColour::White,
        .boxes = 35,
        .ruleLines = 9,
        .prompts = 35,
        .promptName = "Label1",
        .promptSource = Prompts::Fixed,
        .fixedPrompts = persons,
        .shown = Field::Word1,
        .enterSelects = false,
        .rightWord = Field::Word1,
        .hidesNextInReview = true,
        .closesForNo = allButBlanks,
        .closesForPre = allButBlanks,
    },
    Drill{
        .name = "frmLesson7",
        .picture = "Main2.jpg",
        .headline = "◈ 일반동사의 3인칭 단수형",
        .instruction = "<Begin>를 클릭하여 동사의 3인칭 단수형을 입력하십시오. 자판의 <Enter> 키를 치면 다음 "
                       "단어를 입력할 수 있습니다.  "
                       "전체 단어를 입력한 후에는 <Answer>을 클릭하십시오",
        .boxes = 21,
        .ruleLines = 6,
        .prompts = 21,
    },
    Drill{
        .name = "frmLesson8",
        .headline = "◈ 현재진행형 <ing> 만드는 법",
        .instruction = "<Begin>를 클릭하여 단어의 ~ING형을 입력하십시오. 자판의 <Enter> 키를 치면 다음 "
                       "단어를 입력할 수 있습니다.  전체 "
                       "단어를 입력한 후에는 <Answer>을 클릭하십시오",
        .boxes = 28,
        .ruleLines = 5,
        .prompts = 13,
        .plainFromOrder = 14,
        // The two limits differ by one on purpose: box 13 has its hint in the first pass alone.
        .firstHintFromOrder = 14,
        .laterHintFromBox = 14,
        .wordAloneFromBox = 13,
    },
    Drill{
        .name = "frmLesson9",
        .picture = "Main2.jpg",
        .headline = "◈ 형용사의 종류",
        .boxColour = BoxColour::White,
        .boxes = 45,
        .ruleLines = 4,
        .promptSource = Prompts::None,
        .tip = SetUse::Guarded,
        .rules = SetUse::Guarded,
        .rows = SetUse::Guarded,
        .plainFromOrder = always,
        .laterHintFromBox = always,
        .wordAloneFromBox = always,
    },
    Drill{
        .name = "frmLesson10",
        .picture = "Main10.jpg",
        .headline = "◈ 부사의 형태",
        .instruction = "<Begin>를 클릭하어 단어를 입력하십시오. <Enter> 키를 치면 다음 단어를 입력할 수 "
                       "있습니다.  입력한 후에는 <Answer>을 "
                       "클릭하십시오",
        .boxColour = BoxColour::White,
        .boxes = 16,
        .ruleLines = 4,
        .promptSource = Prompts::None,
        .tip = SetUse::Guarded,
        .rules = SetUse::Guarded,
        .rows = SetUse::Guarded,
        .plainFromOrder = always,
        .laterHintFromBox = always,
        .wordAloneFromBox = always,
        .completionTestsReview = false,
    },
    Drill{
        .name = "frmLesson11",
        .picture = "Main2.jpg",
        .answerCaption = "Anaswer",
        .headline = "◈ 비교급 만들기",
        .instruction = wordInstruction,
        .boxColour = BoxColour::OrangeThenCyan,
        .boxes = 26,
        .ruleLines = 6,
        .prompts = 13,
        .promptSource = Prompts::SecondList,
        .rows = SetUse::Guarded,
        .shown = Field::Word1,
        .clearsWord3 = false,
        .terms = Terms::WordThenBox,
        .completionTestsReview = false,
    },
    Drill{
        .name = "frmLesson17",
        .flow = Flow::AnswerList,
        .headline = "◈ 전치사",
        .instruction = "<Begin>를 클릭합니다.   빈칸에 답을 입력하거나 ",
        .boxColour = BoxColour::White,
        .takesPhrases = true,
        .boxes = 30,
        .ruleLines = 3,
        .prompts = 30,
        .rules = SetUse::Guarded,
        .rows = SetUse::Guarded,
        .terms = Terms::WordThenBox,
        .completionTestsReview = false,
    },
    Drill{
        .name = "frmLesson18",
        .headline = "◈ 규칙 변화 동사의 과거형",
        .instruction = wordInstruction,
        .boxes = 12,
        .ruleLines = 4,
        .prompts = 12,
        .rules = SetUse::Guarded,
        .rows = SetUse::Guarded,
        .terms = Terms::WordThenBox,
        .completionSound = false,
    },
    Drill{
        .name = "frmLesson18_2",
        .picture = "original.jpg",
        .headline = "◈ 불규칙 동사",
        .instruction = wordInstruction,
        .boxes = 16,
        .prompts = 16,
        .tip = SetUse::Absent,
        .rules = SetUse::Absent,
        .rows = SetUse::Guarded,
        .countsRows = true,
        .terms = Terms::WordThenBox,
        .completionSound = false,
        .nextAsksInReview = false,
        .closes = rowsAndBlanks,
        .closesForNo = rowsAndBlanks,
        .closesForPre = rowsAndBlanks,
    },
    Drill{
        .name = "frmLesson24",
        .headline = "◈ 기수",
        .instruction = wordInstruction,
        .boxes = 54,
        .prompts = 54,
        .rules = SetUse::Opened,
        .terms = Terms::WordThenBox,
        .completionTestsReview = false,
    },
};

}  // namespace

std::span<const Drill> drillCatalogue() {
    return drills;
}

const Drill* findDrill(std::string_view name) {
    const auto row =
        std::find_if(drills.begin(), drills.end(), [&](const Drill& drill) { return drill.name == name; });
    return row == drills.end() ? nullptr : &*row;
}

}  // namespace catalogue
