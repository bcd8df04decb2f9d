// A disk that takes its time, loaded before a program (LD_PRELOAD): every flush takes 30 ms longer.

#include <dlfcn.h>
#include <unistd.h>

namespace {

constexpr useconds_t flushDelay = 30000;

int slowly(const char* name, int file) {
    using Flush = int (*)(int);
    const auto flush = reinterpret_cast<Flush>(dlsym(RTLD_NEXT, name));
    usleep(flushDelay);
    return flush(file);
}

}  // namespace

extern "C" int fsync(int file) {
    return slowly("fsync", file);
}

extern "C" int fdatasync(int file) {
    return slowly("fdatasync", file);
}
