#include "tools/support/unfinished_file.h"

#include <QDirIterator>
#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>

namespace tools {

namespace {

const QString journalEnding = QStringLiteral("-journal");

using NameBytes = std::array<char, 4096>;

/// A place for one file and the journal that the engine keeps beside a store, as a signal handler may read
/// it.
struct Slot {
    volatile std::sig_atomic_t used = 0;
    NameBytes name{};
    NameBytes journal{};
};

std::array<Slot, 4> fileSlots;

// No more than this and no call but these are safe in a signal handler.
void removeAndEnd(int signal) {
    for (const Slot& slot : fileSlots)
        if (slot.used != 0) {
            unlink(slot.name.data());
            unlink(slot.journal.data());
        }
    _exit(128 + signal);
}

bool holds(NameBytes& place, const QString& name) {
    const QByteArray encoded = QFile::encodeName(name);
    if (static_cast<std::size_t>(encoded.size()) >= place.size())
        return false;
    std::memcpy(place.data(), encoded.constData(), static_cast<std::size_t>(encoded.size()) + 1);
    return true;
}

void removeBoth(const QString& name) {
    QFile::remove(name);
    QFile::remove(name + journalEnding);
}

}  // namespace

UnfinishedFile::UnfinishedFile(QString name) : name_(std::move(name)) {
    removeBoth(name_);
    const auto slot =
        std::find_if(fileSlots.begin(), fileSlots.end(), [](const Slot& s) { return s.used == 0; });
    if (slot == fileSlots.end() || !holds(slot->name, name_) || !holds(slot->journal, name_ + journalEnding))
        return;
    slot->used = 1;
    slot_ = static_cast<int>(slot - fileSlots.begin());
}

UnfinishedFile::~UnfinishedFile() {
    removeBoth(name_);
    if (slot_ >= 0)
        fileSlots.at(static_cast<std::size_t>(slot_)).used = 0;
}

void sweepUnfinishedStores(const QString& root) {
    const QStringList ours{QStringLiteral("*.mdb.new"), QStringLiteral("*.mdb.new") + journalEnding};
    QDirIterator walk(root, ours, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        QFile::remove(walk.next());
}

void removeUnfinishedOnInterrupt() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, removeAndEnd);
}

}  // namespace tools
