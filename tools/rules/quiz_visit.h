#pragma once

#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

#include <algorithm>
#include <string_view>

namespace tools::check {

/// Visits each quiz step of the course with the demands of its screen.
template <typename Visit>
void eachQuiz(const Course& course, Visit visit) {
    for (const Step& step : course.steps)
        if (const QuizShape* shape = findQuizShape(step.form);
            shape != nullptr && !step.isFinal() && course.step(step.record) == &step)
            visit(step, *shape, course.of(step.record).questions);
}

/// Visits each question that one of the screens asks.
template <typename Visit>
void eachQuestion(const Course& course, std::initializer_list<std::string_view> forms, Visit visit) {
    eachQuiz(course,
             [&](const Step& step, const QuizShape& shape, const std::vector<const Question*>& questions) {
                 if (std::find(forms.begin(), forms.end(), shape.form) != forms.end())
                     for (const Question* question : questions)
                         visit(step, *question);
             });
}

/// Fields of a question by the digit in their names.
inline const char* questionField(int digit) {
    constexpr std::array names{"", "q1", "q2", "q3", "q4", "q5", "q6", "q7"};
    return names[static_cast<std::size_t>(digit)];
}

inline bool shows(const QuizShape& shape, int digit) {
    return shape.shown.find(static_cast<char>('0' + digit)) != std::string_view::npos;
}

inline QString nameOf(const QuizShape& shape) {
    return QLatin1String(shape.form.data(), static_cast<qsizetype>(shape.form.size()));
}

inline constexpr const char* gapMark = "____";
inline bool hasGap(const QString& sentence) {
    return sentence.contains(QStringLiteral("__"));
}

}  // namespace tools::check
