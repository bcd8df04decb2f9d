#include "vocabulary/spelling_method.h"

#include <algorithm>

namespace vocabulary {

namespace {

using platform::BoxIcon;

const QString title = QStringLiteral("Brindle English");
const Complaint vowelsWrong{QStringLiteral("단어의 철자가 틀렸습니다(3).  다시 입력하십시오."), BoxIcon::Stop,
                            title, true};
const Complaint consonantsWrong{QStringLiteral("단어의 철자가 틀렸습니다(4).  다시 입력하십시오."),
                                BoxIcon::Stop, title, false};
const Complaint wordWrong{
    QStringLiteral("단어의 철자가 틀렸습니다.  다시 입력하십시오."), BoxIcon::Information, {}, true};

/// The whole method. A word enters it at Copy; Closed after Whole is the word done.
const std::array turns{
    Turn{Stage::Copy, Event::RowRight, Stage::CopyAgain, true},
    Turn{Stage::CopyAgain, Event::RowRight, Stage::Vowels, true, nullptr, vowelSearch},

    Turn{Stage::Vowels, Event::RowRight, Stage::Consonants, false, nullptr, consonantSearch},
    Turn{Stage::Vowels, Event::RowWrong, Stage::Vowels, false, &vowelsWrong, vowelSearch},
    Turn{Stage::Vowels, Event::StepBack, Stage::CopyAgain},

    Turn{Stage::Consonants, Event::RowRight, Stage::Whole},
    Turn{Stage::Consonants, Event::RowWrong, Stage::Consonants, false, &consonantsWrong, blindSearch},
    Turn{Stage::Consonants, Event::StepBack, Stage::Vowels, false, nullptr, vowelSearch},

    Turn{Stage::Whole, Event::RowRight, Stage::Closed},
    Turn{Stage::Whole, Event::RowWrong, Stage::Whole, false, &wordWrong},
    Turn{Stage::Whole, Event::StepBack, Stage::Consonants, false, nullptr, blindSearch},
};

}  // namespace

const Turn* turnFrom(Stage stage, Event event) {
    const auto turn = std::find_if(turns.begin(), turns.end(),
                                   [&](const Turn& t) { return t.from == stage && t.event == event; });
    return turn == turns.end() ? nullptr : &*turn;
}

}  // namespace vocabulary
