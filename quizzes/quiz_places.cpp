#include "quizzes/quiz_places.h"

#include <algorithm>
#include <array>

namespace quizzes {

namespace {

constexpr std::array twoChoices{
    QRect(40, 160, 788, 120),
    QRect(68, 330, 356, 80),
    QRect(472, 330, 356, 80),
};
constexpr std::array fourChoices{
    QRect(40, 160, 788, 120), QRect(68, 330, 356, 80),  QRect(472, 330, 356, 80),
    QRect(68, 434, 356, 80),  QRect(472, 434, 356, 80),
};
constexpr std::array twoPairs{
    QRect(40, 140, 788, 96),  QRect(40, 244, 788, 44),  QRect(40, 288, 788, 44),  QRect(68, 374, 168, 60),
    QRect(266, 374, 168, 60), QRect(462, 374, 168, 60), QRect(660, 374, 168, 60),
};
constexpr std::array wrongWord{
    QRect(40, 136, 788, 100),
};
constexpr std::array gapSentence{
    QRect(40, 186, 788, 110),
};
constexpr std::array wholeSentence{
    QRect(40, 148, 788, 96),
    QRect(40, 264, 788, 96),
};
constexpr std::array wordGaps{
    QRect(40, 148, 788, 96),
    QRect(40, 264, 788, 96),
};
constexpr std::array rowChoices{
    ColumnPlace{56, 326},
    ColumnPlace{390, 142},
    ColumnPlace{540, 142},
    ColumnPlace{690, 138},
};
constexpr std::array pool{
    ColumnPlace{56, 390},
    ColumnPlace{454, 166},
    ColumnPlace{662, 166},
};
constexpr std::array typedColumn{
    ColumnPlace{56, 450},
    ColumnPlace{518, 310},
};
constexpr std::array twoTypedColumns{
    ColumnPlace{56, 290},
    ColumnPlace{358, 227},
    ColumnPlace{601, 227},
};

constexpr std::array places{
    QuizPlaces{"frmQuiz", {}, rowChoices},       QuizPlaces{"frmQuiz2", {}, typedColumn},
    QuizPlaces{"frmQuiz3", twoPairs, {}},        QuizPlaces{"frmQuiz4", wrongWord, {}},
    QuizPlaces{"frmQuiz5", gapSentence, {}},     QuizPlaces{"frmQuiz6", wholeSentence, {}},
    QuizPlaces{"frmQuiz7", twoChoices, {}},      QuizPlaces{"frmQuiz8", fourChoices, {}},
    QuizPlaces{"frmQuiz9", {}, twoTypedColumns}, QuizPlaces{"frmQuiz10", wordGaps, {}},
    QuizPlaces{"frmQuiz11", {}, pool},           QuizPlaces{"frmQuiz12", {}, pool},
};

}  // namespace

const QuizPlaces& placesOf(std::string_view form) {
    return *std::find_if(places.begin(), places.end(),
                         [&](const QuizPlaces& row) { return row.form == form; });
}

}  // namespace quizzes
