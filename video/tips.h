#pragma once

#include "core/context.h"
#include "platform/storage/value.h"

namespace video {

/// What the master store tells of a lesson beside its video.
struct Tips {
    QString story;                   // all rows, each followed by an empty line
    platform::Value videoNumber{0};  // of the first row; 0 without rows
};

/// Whether a first row that tells no video number is as good as any.
enum class VideoNumber { Optional, Needed };

/// Reads the tip rows for which the criterion holds ("topicno=3"), in their order.
Tips readTips(const core::Context& context, const QString& criterion,
              VideoNumber number = VideoNumber::Optional);

}  // namespace video
