#include "catalogue/judging.h"

#include <algorithm>
#include <array>

namespace catalogue {

namespace {

constexpr std::array correctionRules{
    CorrectionRule{{18, 19}, AnswerField::Second},   CorrectionRule{{34, 35}, AnswerField::First},
    CorrectionRule{{63, 64}, AnswerField::First},    CorrectionRule{{72, 72}, AnswerField::First, false},
    CorrectionRule{{85, 86}, AnswerField::First},    CorrectionRule{{201, 204}, AnswerField::First},
    CorrectionRule{{213, 214}, AnswerField::First},  CorrectionRule{{238, 239}, AnswerField::First},
    CorrectionRule{{250, 251}, AnswerField::Either},
};

template <typename Rules>
auto findRule(const Rules& rules, int recordNo) {
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [&](const auto& rule) { return rule.steps.holds(recordNo); });
    return found == rules.end() ? nullptr : &*found;
}

constexpr std::array articleCaptions{"<a>", "<an>", "<the>", "Not Need"};
constexpr std::array numberCaptions{"1", "2", "3", "4", "5"};
constexpr std::array verbCaptions{"is", "are", "do", "does"};
constexpr std::array conjunctionCaptions{"and", "or", "but"};
constexpr const char* articleMemo = "문장의 빈 칸에 들어갈 관사를 선택하십시오.";
constexpr const char* wordMemo = "빈 칸에 들어갈 알맞는 단어를 클릭하십시오.";

struct ButtonRule {
    StepRange steps;
    ButtonSet set;
};

constexpr std::array buttonRules{
    ButtonRule{{110, 111}, {numberCaptions, "번호를 클릭하십시오."}},
    ButtonRule{{137, 140}, {verbCaptions, wordMemo}},
    ButtonRule{{153, 160}, {conjunctionCaptions, wordMemo}},
};

// From here on every step compares with captions, also those that keep the captions of the article rows.
constexpr int captionsFrom = 153;

struct SentenceRule {
    StepRange steps;
    SentenceFields fields;
};

constexpr std::array sentenceRules{
    SentenceRule{{121, 123}, {"q1", "q2"}},
    SentenceRule{{134, 136}, {"q1", "q2"}},
    SentenceRule{{128, 131}, {nullptr, "q1"}},
    SentenceRule{{147, 149}, {nullptr, "q1"}},
};

}  // namespace

const CorrectionRule* correctionRule(int recordNo) {
    return findRule(correctionRules, recordNo);
}

ButtonSet buttonSet(int recordNo) {
    const ButtonRule* rule = findRule(buttonRules, recordNo);
    return rule == nullptr ? ButtonSet{articleCaptions, articleMemo} : rule->set;
}

bool comparesCaptions(int recordNo) {
    return recordNo >= captionsFrom || findRule(buttonRules, recordNo) != nullptr;
}

SentenceFields sentenceFields(int recordNo) {
    const SentenceRule* rule = findRule(sentenceRules, recordNo);
    return rule == nullptr ? SentenceFields{"q1", nullptr} : rule->fields;
}

}  // namespace catalogue
