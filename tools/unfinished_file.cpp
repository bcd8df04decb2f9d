#include "tools/unfinished_file.h"

#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>

namespace tools {

namespace {

/// A place for one name, as a signal handler may read it.
struct Slot {
    volatile std::sig_atomic_t used = 0;
    std::array<char, 4096> name{};
};

std::array<Slot, 4> fileSlots;

// No more than this and no call but these are safe in a signal handler.
void removeAndEnd(int signal) {
    for (const Slot& slot : fileSlots)
        if (slot.used != 0)
            unlink(slot.name.data());
    _exit(128 + signal);
}

}  // namespace

UnfinishedFile::UnfinishedFile(QString name) : name_(std::move(name)) {
    QFile::remove(name_);
    const QByteArray encoded = QFile::encodeName(name_);
    const auto slot =
        std::find_if(fileSlots.begin(), fileSlots.end(), [](const Slot& s) { return s.used == 0; });
    if (slot == fileSlots.end() || static_cast<std::size_t>(encoded.size()) >= slot->name.size())
        return;
    std::memcpy(slot->name.data(), encoded.constData(), static_cast<std::size_t>(encoded.size()) + 1);
    slot->used = 1;
    slot_ = static_cast<int>(slot - fileSlots.begin());
}

UnfinishedFile::~UnfinishedFile() {
    QFile::remove(name_);
    if (slot_ >= 0)
        fileSlots.at(static_cast<std::size_t>(slot_)).used = 0;
}

void removeUnfinishedOnInterrupt() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, removeAndEnd);
}

}  // namespace tools
