#include "lessons/drill_look.h"

#include "lessons/drill_layout.h"

namespace lessons {

using catalogue::BoxColour;
using catalogue::Drill;
using platform::TextRole;

course::ChromeLayout chromeOf(const Drill& drill) {
    const Tops& tops = layoutOf(drill.name).tops;
    course::ChromeLayout chrome;
    chrome.picture = drill.picture;
    chrome.quizTop = tops.quiz;
    chrome.beginTop = tops.begin;
    chrome.nextTop = tops.next;
    chrome.preTop = tops.pre;
    chrome.hasBegin = drill.hasBegin;
    chrome.quizLabelName = drill.answerName;
    chrome.quizCaption = drill.answerCaption;
    chrome.preLabelName = drill.preName;
    chrome.preCaption = drill.preCaption;
    return chrome;
}

TextRole boxRole(const Drill& drill) {
    return drill.takesPhrases ? TextRole::DrillPhrase : TextRole::DrillBox;
}

QRgb boxColour(const Drill& drill, int box) {
    switch (drill.boxColour) {
        case BoxColour::PaleCyan: return platform::colour::paleCyan;
        case BoxColour::White: return platform::colour::white;
        case BoxColour::OrangeThenCyan:
            return box < drill.boxes / 2 ? platform::colour::lightOrange : platform::colour::paleCyan;
    }
    return platform::colour::white;
}

}  // namespace lessons
