#pragma once

#include <span>
#include <string_view>

namespace catalogue {

/// Whether a step's video runs before its screen.
enum class Video { None, First, FirstAtVideoStep };

/// What a name in `useform` stands for. The screen is empty where the video is all there is.
struct DispatchRow {
    std::string_view useForm;
    std::string_view screen;
    Video video = Video::None;
};

/// Every name that `useform` may hold.
std::span<const DispatchRow> dispatchRows();

/// The row of a name, compared to the letter.
const DispatchRow* findDispatch(std::string_view useForm);

/// Whether the row's video runs first on the step.
bool runsVideoFirst(const DispatchRow& row, int recordNo);

}  // namespace catalogue
