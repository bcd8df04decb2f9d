#pragma once

#include <QString>

#include <optional>
#include <span>
#include <string_view>

namespace course {

/// Whether a step's video runs before its screen.
enum class Video { None, First, FirstAtStep183 };

/// What a name in `useform` stands for. The screen is empty where the video is all there is.
struct DispatchRow {
    std::string_view useForm;
    std::string_view screen;
    Video video = Video::None;
};

/// Every name that `useform` may hold.
std::span<const DispatchRow> dispatchRows();

/// The row of a name, compared to the letter.
const DispatchRow* findDispatch(const QString& useForm);

/// Whether the row's video runs first on the step.
bool runsVideoFirst(const DispatchRow& row, int recordNo);

}  // namespace course
