#pragma once

#include "tools/access/reader.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace tools {

/// What a worker tells the process that waits for it.
struct Message {
    enum class Kind : quint8 { Tables, Table, Row, End, Error };

    Kind kind = Kind::End;
    QStringList tables;
    int codePage = 0;
    SourceTable table;
    SourceRow row;
    QString sentence;

    static Message tableList(const QStringList& tables, int codePage);
    static Message opened(SourceTable table);
    static Message rowOf(SourceRow row);
    static Message error(const QString& sentence);
    static Message end() { return {}; }

    QByteArray encoded() const;
    /// Nothing where the bytes are no message.
    static std::optional<Message> decoded(const QByteArray& bytes);
};

class MessageWriter {
   public:
    explicit MessageWriter(int pipe) : pipe_(pipe) {}
    /// Ends the worker where nobody listens any more.
    void write(const Message& message);

   private:
    int pipe_;
};

/// How long a file may still be waited for: for its next row, and for all rows together.
struct ReadBudget {
    int patienceMs = 0;
    qint64 leftMs = 0;
    qint64 wholeMs = 0;
};

/// The memory that a worker may take for itself, and what it may tell in one message.
inline constexpr int workerMegabytes = 512;
inline constexpr int messageMegabytes = 64;
/// What is said of a file that asks for more.
QString memorySentence();

/// A process that does one piece of work and tells its results. It ends with its owner.
class Worker {
   public:
    /// The time that is waited for it is taken from the budget, which lives longer than the worker.
    Worker(const std::function<void(MessageWriter&)>& work, ReadBudget& budget);
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// The next message; nothing where the worker broke down or took too long.
    std::optional<Message> read();
    /// Why there is no further message.
    QString lastWords();

   private:
    bool fill(qsizetype size);

    int pipe_ = -1;
    int process_ = -1;
    ReadBudget& budget_;
    bool late_ = false;
    QByteArray received_;
};

}  // namespace tools
