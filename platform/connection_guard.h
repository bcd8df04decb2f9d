#pragma once

#include "platform/database.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace platform {

template <typename Work>
auto Connection::guarded(Work work, const QString& table) -> decltype(work()) {
    try {
        return work();
    } catch (const SQLite::Exception& failure) {
        translate(failure, table);
    }
}

}  // namespace platform
