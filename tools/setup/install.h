#pragma once

#include <QString>

#include <functional>
#include <span>

namespace tools {

/// A content store, whose tables are those of its name, and its file below the root.
struct StorePlace {
    const char* store;
    const char* path;
};

/// The content stores of every install.
std::span<const StorePlace> storePlaces();

/// What an install is made of and for whom.
struct InstallPlan {
    QString root;            // the folder that plays the drives
    QString courseFolder;    // text tables of the course
    QString pictureFolder;   // rendered pictures, with `interface` and `button`
    QString reportFolder;    // report templates; empty for none
    QString userId;          // student number; empty makes no score store
    bool speakWords = true;  // have each word of the course spoken into a sound file
    /// Told what is being made, and how far: "stores", 3, 8.
    std::function<void(const QString& what, int done, int total)> progress;
};

/// Makes a complete install, or brings one that it made before up to date. No score of a learner is ever
/// lost, and nothing that it did not make is overwritten. Throws std::runtime_error with a sentence that
/// says what is in the way and what to do.
void makeInstall(const InstallPlan& plan);

struct BuiltStores {
    int stores = 0;
    int rows = 0;
    int warnings = 0;  // of the course's check; an error would have stopped the build
};

/// Makes or renews the stores of an install alone, under the same rules.
BuiltStores makeStores(const InstallPlan& plan);

/// True for a store that `writeStore` made, told by a mark inside it.
bool madeBySetup(const QString& storeFile);

}  // namespace tools
