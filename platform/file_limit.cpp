#include "platform/file_limit.h"

#include <csignal>

namespace platform {

void ignoreFileLimitSignal() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

}  // namespace platform
