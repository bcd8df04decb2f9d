#pragma once

#include <QRect>

#include <span>
#include <string_view>

namespace quizzes {

struct ColumnPlace {
    int left = 0;
    int width = 0;
};

/// Where a quiz screen's own labels and columns stand, in design pixels, in the order of its catalogue row.
struct QuizPlaces {
    std::string_view form;
    std::span<const QRect> shown;
    std::span<const ColumnPlace> columns;
};

/// The places of one of the twelve screens.
const QuizPlaces& placesOf(std::string_view form);

}  // namespace quizzes
