#pragma once

#include "core/context.h"
#include "platform/int16.h"

namespace video {

/// What the master store tells of a lesson beside its video.
struct Tips {
    QString story;                  // all rows, each followed by an empty line
    platform::Int16 videoNumber{};  // of the first row; 0 without rows
};

/// Reads the tip rows for which the criterion holds ("topicno=3"), in their order.
Tips readTips(const core::Context& context, const QString& criterion);

}  // namespace video
