#pragma once

#include <QString>

namespace platform {

/// What a file under a store's name holds, told by its first bytes.
enum class StoreFormat { Missing, Store, AccessFile, Unknown };
StoreFormat storeFormat(const QString& file);

/// Throws unless there is a store of ours under the name: DatabaseNotFound, DatabaseFailure for what is
/// closed to the user, UnrecognizedFormat for another file.
void requireStore(const QString& file, const QString& shownName);

/// The sentences for what goes wrong with a store that is there. Each names the store and says what to do.
[[noreturn]] void throwDamaged(const QString& file, const QString& shownName, const QString& reason);
[[noreturn]] void throwNotWritable(const QString& file, const QString& shownName, const QString& reason);
/// For a statement that the engine does not take: a missing table or field, a store that needs what this
/// program lacks, else a syntax error.
[[noreturn]] void throwRefusedStatement(const QString& shownName, const QString& table,
                                        const QString& reason);

}  // namespace platform
