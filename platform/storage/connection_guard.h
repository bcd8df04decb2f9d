#pragma once

#include "platform/storage/database.h"
#include "platform/storage/store_wait.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <memory>

namespace platform {

template <typename Work>
auto Connection::guarded(Work work, const QString& table) -> decltype(work()) {
    for (std::unique_ptr<StoreWait> wait;;) {
        try {
            return work();
        } catch (const SQLite::Exception& failure) {
            if (!waitForOthers(failure, wait))
                translate(failure, table);
        }
    }
}

}  // namespace platform
