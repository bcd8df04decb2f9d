#pragma once

#include <array>
#include <span>
#include <string_view>

namespace catalogue {

/// How a lesson's content is laid into the report tables.
enum class Builder {
    None,            // the template reads the quiz rows as they are, or nothing is known of the number
    TwoUpDrill,      // two rows of the drill on a line
    TwoUpQuiz,       // two rows of the quiz on a line
    Numbering,       // the quiz rows are counted, anew from step 8 on
    SentenceMasks,   // sentences with a box for each letter
    ThreeColumns,    // q1, q2, q3
    TwoColumns,      // q1, q2
    OneColumn,       // q1
    SwappedColumns,  // q2, q1
    WordBank,        // the distinct answers, then q1
    Brackets,        // choices in brackets, then q1
    Final,           // the drawn questions of a list of steps
};

/// The builder of a step.
Builder builderOf(int recordNo);

/// The steps that no worksheet is given for; asked before anything is built.
std::span<const int> refusedSteps();
bool isRefused(int recordNo);

/// Whether the printed Final shows a second line for the questions of a range that begins at a step.
std::span<const int> secondLineStarts();
bool hasSecondLine(int firstStep);

/// A template and its twin for the teacher, with the tables that are opened before it runs.
struct SheetTemplate {
    int first;
    int last;
    std::string_view file;
    std::string_view teacherFile;
    std::array<std::string_view, 2> openedFirst{};
};

/// The template of a step, or null where no row applies and the report in use stays.
const SheetTemplate* templateOf(int recordNo);

/// Every row, in the order in which they are checked.
std::span<const SheetTemplate> sheetTemplates();

}  // namespace catalogue
