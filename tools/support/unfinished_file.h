#pragma once

#include <QString>

namespace tools {

/// A file that is being written: it goes away again unless it was moved to its place, also where the program
/// is interrupted. What the engine keeps beside a store goes with it.
class UnfinishedFile {
   public:
    explicit UnfinishedFile(QString name);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    const QString& name() const { return name_; }

   private:
    QString name_;
    int slot_ = -1;  // where an interruption finds the name
};

/// Removes the stores below a folder that a killed tool left unfinished. Nobody else may be writing there.
void sweepUnfinishedStores(const QString& root);

/// From now on, an interruption from the terminal or a request to end removes the unfinished files and ends
/// the program.
void removeUnfinishedOnInterrupt();

}  // namespace tools
