#pragma once

namespace catalogue {

/// Steps from `first` to `last`, both among them; as made here it holds none.
struct StepRange {
    int first = 0;
    int last = -1;
    constexpr bool holds(int recordNo) const { return recordNo >= first && recordNo <= last; }
};

}  // namespace catalogue
