#pragma once

#include <sys/resource.h>

#include <csignal>

namespace support {

/// While it lives no file of this process grows beyond so many bytes, as on a disk that is full.
class FileSizeLimit {
   public:
    explicit FileSizeLimit(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

   private:
    rlimit before_{};
    void (*signal_)(int);
};

}  // namespace support
