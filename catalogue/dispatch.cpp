#include "catalogue/dispatch.h"

#include "catalogue/steps.h"

#include <algorithm>
#include <array>

namespace catalogue {

namespace {

constexpr std::array rows{
    DispatchRow{"frmQuiz", "frmQuiz"},
    DispatchRow{"frmQuiz10", "frmQuiz10"},
    DispatchRow{"frmQuiz11", "frmQuiz11"},
    DispatchRow{"frmQuiz12", "frmQuiz12"},
    DispatchRow{"frmQuiz2", "frmQuiz2"},
    DispatchRow{"frmQuiz3", "frmQuiz3"},
    DispatchRow{"frmQuiz4", "frmQuiz4"},
    DispatchRow{"frmQuiz5", "frmQuiz5"},
    DispatchRow{"frmQuiz6", "frmQuiz6"},
    DispatchRow{"frmQuiz7", "frmQuiz7"},
    DispatchRow{"frmQuiz8", "frmQuiz8"},
    DispatchRow{"frmQuiz9", "frmQuiz9"},
    DispatchRow{"frmLesson", "frmLesson", Video::First},
    DispatchRow{"frmLesson2", "frmLesson2", Video::First},
    DispatchRow{"frmLesson3", "", Video::First},
    DispatchRow{"frmLesson3_2", "frmLesson3_2", Video::First},
    DispatchRow{"frmLesson4", "frmLesson4", Video::First},
    DispatchRow{"frmLesson7", "frmLesson7", Video::First},
    DispatchRow{"frmLesson8", "frmLesson8", Video::First},
    DispatchRow{"frmLesson9", "frmLesson9", Video::First},
    DispatchRow{"frmLesson10", "frmLesson10", Video::First},
    DispatchRow{"frmLesson11", "frmLesson11", Video::First},
    DispatchRow{"frmLesson17", "frmLesson17", Video::First},
    DispatchRow{"frmLesson18", "frmLesson18", Video::FirstAtVideoStep},
    DispatchRow{"frmLesson18_2", "frmLesson18_2"},
    DispatchRow{"frmLesson24", "frmLesson24"},
};

}  // namespace

std::span<const DispatchRow> dispatchRows() {
    return rows;
}

const DispatchRow* findDispatch(std::string_view useForm) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const DispatchRow& row) { return row.useForm == useForm; });
    return found == rows.end() ? nullptr : &*found;
}

bool runsVideoFirst(const DispatchRow& row, int recordNo) {
    return row.video == Video::First || (row.video == Video::FirstAtVideoStep && recordNo == regularPastStep);
}

}  // namespace catalogue
