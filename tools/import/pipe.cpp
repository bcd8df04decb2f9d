#include "tools/import/pipe.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFile>
#include <QIODevice>
#include <QtEndian>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace tools {

namespace {

constexpr quint32 longestMessage = quint32{messageMegabytes} << 20;
constexpr qsizetype lengthSize = sizeof(quint32);

QDataStream& operator<<(QDataStream& stream, const SourceColumn& column) {
    return stream << column.name << static_cast<qint32>(column.type) << static_cast<qint32>(column.typeCode);
}

QDataStream& operator>>(QDataStream& stream, SourceColumn& column) {
    qint32 type = 0;
    qint32 code = 0;
    stream >> column.name >> type >> code;
    column.type = static_cast<SourceType>(type);
    column.typeCode = code;
    return stream;
}

QDataStream& operator<<(QDataStream& stream, const ReadProblem& problem) {
    return stream << problem.column << problem.sentence << problem.ofTable;
}

QDataStream& operator>>(QDataStream& stream, ReadProblem& problem) {
    return stream >> problem.column >> problem.sentence >> problem.ofTable;
}

template <typename Item>
void writeList(QDataStream& stream, const std::vector<Item>& items) {
    stream << static_cast<quint32>(items.size());
    for (const Item& item : items)
        stream << item;
}

template <typename Item>
void readList(QDataStream& stream, std::vector<Item>& items) {
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        Item item;
        stream >> item;
        items.push_back(std::move(item));
    }
}

#if !defined(__SANITIZE_ADDRESS__)

/// The bytes that this process has taken already, which a new worker has from its parent.
rlim_t takenMemory() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList pages = file.readAll().simplified().split(' ');
    return static_cast<rlim_t>(pages.value(5).toLongLong()) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

#endif

void limitWorker() {
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
#if !defined(__SANITIZE_ADDRESS__)
    // A field that a damaged length asks memory for must not take the whole machine.
    const rlim_t most = takenMemory() + (rlim_t{workerMegabytes} << 20);
    const rlimit memory{most, most};
    setrlimit(RLIMIT_DATA, &memory);
#endif
    // What the library prints on damage would stand between our own sentences.
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nothing, stream);
    for (const int fatal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL, SIGTRAP, SIGINT, SIGTERM, SIGHUP})
        std::signal(fatal, SIG_DFL);
}

}  // namespace

Message Message::tableList(const QStringList& tables, int codePage) {
    Message message;
    message.kind = Kind::Tables;
    message.tables = tables;
    message.codePage = codePage;
    return message;
}

Message Message::opened(SourceTable table) {
    Message message;
    message.kind = Kind::Table;
    message.table = std::move(table);
    return message;
}

Message Message::rowOf(SourceRow row) {
    Message message;
    message.kind = Kind::Row;
    message.row = std::move(row);
    return message;
}

Message Message::error(const QString& sentence) {
    Message message;
    message.kind = Kind::Error;
    message.sentence = sentence;
    return message;
}

QByteArray Message::encoded() const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<quint8>(kind);
    switch (kind) {
        case Kind::Tables: stream << tables << static_cast<qint32>(codePage); break;
        case Kind::Table:
            stream << table.name << table.declaredRows;
            writeList(stream, table.columns);
            break;
        case Kind::Row:
            writeList(stream, row.values);
            writeList(stream, row.problems);
            break;
        case Kind::Error: stream << sentence; break;
        case Kind::End: break;
    }
    return bytes;
}

std::optional<Message> Message::decoded(const QByteArray& bytes) {
    QDataStream stream(bytes);
    quint8 kind = 0;
    stream >> kind;
    if (kind > static_cast<quint8>(Kind::Error))
        return std::nullopt;
    Message message;
    message.kind = static_cast<Kind>(kind);
    switch (message.kind) {
        case Kind::Tables: {
            qint32 page = 0;
            stream >> message.tables >> page;
            message.codePage = page;
            break;
        }
        case Kind::Table:
            stream >> message.table.name >> message.table.declaredRows;
            readList(stream, message.table.columns);
            break;
        case Kind::Row:
            readList(stream, message.row.values);
            readList(stream, message.row.problems);
            break;
        case Kind::Error: stream >> message.sentence; break;
        case Kind::End: break;
    }
    return stream.status() == QDataStream::Ok ? std::optional(message) : std::nullopt;
}

void MessageWriter::write(const Message& message) {
    QByteArray content = message.encoded();
    const bool tooLong = content.size() > qsizetype{longestMessage};
    if (tooLong)
        content = Message::error(
                      QStringLiteral("the file is damaged: a row is longer than %1 MB").arg(messageMegabytes))
                      .encoded();
    QByteArray bytes(lengthSize, '\0');
    qToBigEndian(static_cast<quint32>(content.size()), bytes.data());
    bytes += content;
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count =
            ::write(pipe_, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            std::_Exit(EXIT_FAILURE);
        done += count > 0 ? count : 0;
    }
    if (tooLong)
        std::_Exit(EXIT_FAILURE);
}

QString memorySentence() {
    return QStringLiteral("reading it took more than %1 MB of memory").arg(workerMegabytes);
}

Worker::Worker(const std::function<void(MessageWriter&)>& work, ReadBudget& budget) : budget_(budget) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw ReadError(QStringLiteral("no pipe to a reader could be made"));
    process_ = fork();
    if (process_ < 0) {
        close(ends[0]);
        close(ends[1]);
        throw ReadError(QStringLiteral("no process for a reader could be started"));
    }
    if (process_ == 0) {
        close(ends[0]);
        limitWorker();
        MessageWriter out(ends[1]);
        work(out);
        std::_Exit(EXIT_SUCCESS);
    }
    close(ends[1]);
    pipe_ = ends[0];
}

Worker::~Worker() {
    close(pipe_);
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
}

bool Worker::fill(qsizetype size) {
    std::array<char, 65536> buffer{};
    while (received_.size() < size) {
        pollfd waiting{pipe_, POLLIN, 0};
        QElapsedTimer waited;
        waited.start();
        const auto patience = std::clamp<qint64>(budget_.leftMs, 0, budget_.patienceMs);
        const int ready = poll(&waiting, 1, static_cast<int>(patience));
        budget_.leftMs -= waited.elapsed();
        late_ = ready == 0;
        if (late_ || (ready < 0 && errno != EINTR))
            return false;
        if (ready < 0)
            continue;
        const ssize_t count = ::read(pipe_, buffer.data(), buffer.size());
        if (count == 0 || (count < 0 && errno != EINTR))
            return false;
        received_.append(buffer.data(), count > 0 ? count : 0);
    }
    return true;
}

std::optional<Message> Worker::read() {
    if (!fill(lengthSize))
        return std::nullopt;
    const auto length = qFromBigEndian<quint32>(received_.constData());
    if (length > longestMessage || !fill(lengthSize + static_cast<qsizetype>(length)))
        return std::nullopt;
    const QByteArray content = received_.mid(lengthSize, length);
    received_.remove(0, lengthSize + static_cast<qsizetype>(length));
    return Message::decoded(content);
}

QString Worker::lastWords() {
    if (late_ && budget_.leftMs <= 0)
        return QStringLiteral("reading it took longer than %1 seconds").arg((budget_.wholeMs + 500) / 1000);
    if (late_)
        return QStringLiteral("reading it came to no end");
    int status = 0;
    rusage used{};
    kill(process_, SIGKILL);
    wait4(std::exchange(process_, -1), &status, 0, &used);
    // The library under the reader breaks down in many ways where there is no memory for it.
    constexpr long nearlyAll = long{workerMegabytes} * 1024 / 10 * 9;
    return WIFSIGNALED(status) && (WTERMSIG(status) == SIGTRAP || used.ru_maxrss > nearlyAll)
               ? memorySentence()
               : QStringLiteral("reading it broke down");
}

}  // namespace tools
