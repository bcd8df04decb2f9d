// The spine of the course: units, steps, and the screens that steps name.

#include "catalogue/steps.h"
#include "catalogue/dispatch.h"
#include "tools/rules/check.h"

#include <algorithm>

namespace tools::check {

namespace {

constexpr int topicLabels = 24;
constexpr int sheetLabels = 22;
constexpr int lastNumber = 32766;

void stepNumber(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (!step.record || *step.record < 1 || *step.record > lastNumber)
            findings.add(step.at("recordno"),
                         QStringLiteral("the step has no number that the walk can reach"),
                         QStringLiteral("a whole number of 1 to %1").arg(lastNumber));
}

void stepNumberTwice(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const Step* first = course.step(step.record); first != nullptr && first != &step)
            findings.add(
                step.at("recordno"),
                QStringLiteral("%1 is there already, at %2").arg(step.called(), first->built->place.text()),
                QStringLiteral("a number of its own"));
}

void stepUnit(const Course& course, Findings& findings) {
    std::unordered_set<int> known;
    for (const Topic& topic : course.topics)
        if (topic.topic)
            known.insert(*topic.topic);
    // A table of units that cannot be read is told as such.
    if (known.empty())
        return;
    for (const Step& step : course.steps)
        if (!step.topic || !known.contains(*step.topic))
            findings.add(step.at("topicno"), QStringLiteral("%1 lies in no unit").arg(step.called()),
                         QStringLiteral("the number of a row of topic"));
}

void topicNumbers(const Course& course, Findings& findings) {
    std::vector<const Topic*> topics;
    for (const Topic& topic : course.topics)
        topics.push_back(&topic);
    std::stable_sort(topics.begin(), topics.end(),
                     [](const Topic* a, const Topic* b) { return a->topic < b->topic; });
    int place = 0;
    for (const Topic* topic : topics) {
        ++place;
        if (topic->topic != place)
            findings.add(topic->at("topicno"),
                         QStringLiteral("a click on entry %1 of the unit list looks for unit %1").arg(place),
                         QStringLiteral("%1: units are numbered 1, 2, 3 without a gap").arg(place));
        else if (place > topicLabels)
            findings.add(topic->at("topicno"),
                         QStringLiteral("the unit list has no room for unit %1").arg(place),
                         QStringLiteral("at most %1 units").arg(topicLabels));
    }
}

void topicTitle(const Course& course, Findings& findings) {
    for (const Topic& topic : course.topics)
        if (folded(topic.title).isEmpty())
            findings.add(topic.at("Title"), QStringLiteral("the unit has no name to click on"),
                         QStringLiteral("a short Korean name"));
}

void unitEmpty(const Course& course, Findings& findings) {
    for (const Topic& topic : course.topics)
        if (topic.topic && course.unit(topic.topic).empty())
            findings.add(
                topic.at("topicno"),
                QStringLiteral("unit %1 has no step, and a click on it ends the program").arg(*topic.topic),
                QStringLiteral("at least one row of tablework in the unit"));
}

/// Visits the steps of each unit once, however often the unit is named.
template <typename Visit>
void eachUnit(const Course& course, Visit visit) {
    std::unordered_set<int> visited;
    for (const Topic& topic : course.topics)
        if (const auto& unit = course.unit(topic.topic); !unit.empty() && visited.insert(*topic.topic).second)
            visit(*topic.topic, unit);
}

void unitPlace(const Course& course, Findings& findings) {
    eachUnit(course, [&](int, const std::vector<const Step*>& unit) {
        int place = 0;
        for (const Step* step : unit)
            if (++place; step->page != place)
                findings.add(step->at("pageno"),
                             QStringLiteral(
                                 "%1 is not the step of its unit that its place says, so that the worksheet "
                                 "menu takes another")
                                 .arg(step->called()),
                             QStringLiteral("%1, its place in the unit").arg(place));
    });
}

void unitSize(const Course& course, Findings& findings) {
    eachUnit(course, [&](int topic, const std::vector<const Step*>& unit) {
        if (unit.size() > sheetLabels)
            findings.add(
                unit[sheetLabels]->at("topicno"),
                QStringLiteral("unit %1 has %2 steps, and the worksheet menu ends the program at the 23rd")
                    .arg(topic)
                    .arg(unit.size()),
                QStringLiteral("at most %1 steps in a unit").arg(sheetLabels));
    });
}

void unitOpener(const Course& course, Findings& findings) {
    eachUnit(course, [&](int topic, const std::vector<const Step*>& unit) {
        if (!unit.front()->isLesson())
            findings.add(unit.front()->at("Type"),
                         QStringLiteral("unit %1 opens with a %2, before anything was taught")
                             .arg(topic)
                             .arg(unit.front()->type),
                         QStringLiteral("a Lesson as the unit's first step"));
    });
}

/// A Final asks the quizzes of its whole unit; the two of the first unit know their ranges.
void finalBeforeQuiz(const Course& course, Findings& findings) {
    for (const Step& final : course.steps) {
        if (!final.isFinal())
            continue;
        const std::vector<const Step*> drawn = course.drawnBy(final);
        const auto later = std::find_if(drawn.begin(), drawn.end(),
                                        [&](const Step* step) { return step->record > final.record; });
        if (later != drawn.end())
            findings.add(final.at("recordno"),
                         QStringLiteral("the Final of %1 asks questions of %2, which comes behind it")
                             .arg(final.called(), (*later)->called()),
                         QStringLiteral("a number behind the unit's last quiz"));
    }
}

void stepType(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (!step.isQuiz() && !step.isFinal() && !step.isLesson())
            findings.add(step.at("Type"), QStringLiteral("'%1' is no kind of step").arg(step.type),
                         QStringLiteral("Lesson, Quiz or Final, written so"));
}

void stepScreen(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (catalogue::findDispatch(step.form.toStdString()) == nullptr)
            findings.add(step.at("useform"), QStringLiteral("'%1' brings up no screen").arg(step.form),
                         QStringLiteral("the name of a drill or quiz screen to the letter, such as frmQuiz"));
}

void screenOfOtherType(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const bool quizScreen = step.form.startsWith(QStringLiteral("frmQuiz"));
        if ((step.isLesson() && quizScreen) || (step.isQuiz() && !quizScreen))
            findings.add(
                step.at("Type"),
                QStringLiteral("%1 is called a %2, but opens %3").arg(step.called(), step.type, step.form),
                quizScreen ? QStringLiteral("Quiz") : QStringLiteral("Lesson"));
    }
}

/// Screens that find their content under one step number alone.
struct FixedPlace {
    const char* form;
    int record;
};
constexpr std::array fixedPlaces{FixedPlace{"frmLesson2", catalogue::doubleStep},
                                 FixedPlace{"frmLesson3_2", catalogue::clozeStep},
                                 FixedPlace{"frmLesson11", catalogue::secondListStep}};

void screenPlace(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        for (const FixedPlace& place : fixedPlaces)
            if (step.form == QLatin1String(place.form) && step.record && step.record != place.record)
                findings.add(
                    step.at("useform"),
                    QStringLiteral("%1 finds its rows at step %2 alone").arg(step.form).arg(place.record),
                    QStringLiteral("another screen, or step %1").arg(place.record));
}

void wordCount(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const auto count = static_cast<int>(course.of(step.record).words.size());
            step.words.value_or(-1) != count)
            findings.add(step.at("wordno"),
                         QStringLiteral("the number of words is not that of %1").arg(step.called()),
                         QStringLiteral("%1, or an empty field, which is counted").arg(count));
}

void questionCount(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const auto count = static_cast<int>(course.of(step.record).questions.size());
            step.isQuiz() && step.quizzes.value_or(-1) != count)
            findings.add(step.at("quizno"),
                         QStringLiteral("the number of questions is not that of %1, and a Final draws by it")
                             .arg(step.called()),
                         QStringLiteral("%1, or an empty field, which is counted").arg(count));
}

void stepTexts(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto want = [&](const char* field, const QString& text, const QString& right) {
            if (folded(text).isEmpty())
                findings.add(step.at(field),
                             QStringLiteral("the text is empty where %1 shows it").arg(step.called()), right);
        };
        want("Title", step.title, QStringLiteral("a short Korean title"));
        want("Data", step.data, QStringLiteral("what the step trains, in a few words"));
        if (step.isQuiz())
            want("guide", step.guide, QStringLiteral("a Korean sentence that tells what to do"));
        if (step.use != QStringLiteral("NO"))
            want("guide2", step.guide2, QStringLiteral("the instruction of the worksheet"));
    }
}

void stepTextWidth(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto limit = [&](const char* field, const QString& text, int columns) {
            if (columnsOf(text) > columns)
                findings.add(step.at(field), QStringLiteral("the text takes %1 columns").arg(columnsOf(text)),
                             QStringLiteral("at most %1, a Korean character counting 2").arg(columns));
        };
        limit("Data", step.data, 26);
        limit("Title", step.title, 18);
        limit("guide", step.guide, 90);
    }
}

constexpr std::array rules{
    Rule{"step-number", Severity::Error, "a step has a number of 1 to 32766", stepNumber},
    Rule{"step-number-twice", Severity::Error, "no two steps have the same number", stepNumberTwice},
    Rule{"step-unit", Severity::Error, "a step lies in a unit", stepUnit},
    Rule{"topic-numbers", Severity::Error, "units are numbered from 1 without gaps, at most 24",
         topicNumbers},
    Rule{"topic-title", Severity::Warning, "a unit has a name", topicTitle},
    Rule{"unit-empty", Severity::Error, "a unit has at least one step", unitEmpty},
    Rule{"unit-place", Severity::Error, "pageno is the step's place in its unit", unitPlace},
    Rule{"unit-size", Severity::Error, "a unit has at most 22 steps", unitSize},
    Rule{"unit-opener", Severity::Warning, "a unit opens with a Lesson", unitOpener},
    Rule{"final-last", Severity::Warning, "a Final comes behind the quizzes that it draws from",
         finalBeforeQuiz},
    Rule{"step-type", Severity::Error, "a step is a Lesson, a Quiz or a Final", stepType},
    Rule{"step-screen", Severity::Error, "useform names a screen", stepScreen},
    Rule{"step-screen-type", Severity::Warning, "a Lesson opens a drill and a Quiz a quiz",
         screenOfOtherType},
    Rule{"step-screen-place", Severity::Error, "screens with content of a fixed number stand there",
         screenPlace},
    Rule{"word-count", Severity::Error, "wordno is the number of the step's words", wordCount},
    Rule{"question-count", Severity::Error, "quizno is the number of the step's questions", questionCount},
    Rule{"step-texts", Severity::Warning, "title, subject and instructions are there", stepTexts},
    Rule{"step-text-width", Severity::Warning, "title, subject and instruction fit on the screen",
         stepTextWidth},
};

}  // namespace

std::span<const Rule> stepRules() {
    return rules;
}

}  // namespace tools::check
