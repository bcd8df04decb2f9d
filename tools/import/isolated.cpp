#include "tools/import/isolated.h"

#include "tools/import/pipe.h"

#include <QFileInfo>

#include <new>

namespace tools {

namespace {

constexpr qint64 bytesInAMillisecond = 1000;

QString damaged(const QString& reason) {
    return QStringLiteral("the file is damaged: %1").arg(reason);
}

class IsolatedReader final : public AccessReader {
   public:
    IsolatedReader(ReaderMaker maker, QString file, int codePage, int patienceMs)
        : maker_(std::move(maker)), file_(std::move(file)), codePage_(codePage) {
        budget_.patienceMs = patienceMs;
        budget_.wholeMs = 2 * patienceMs + QFileInfo(file_).size() / bytesInAMillisecond;
        budget_.leftMs = budget_.wholeMs;
    }

    QStringList tables() override;
    SourceTable openTable(const QString& name) override;
    bool nextRow(SourceRow& row) override;
    int codePage() const override { return codePage_; }

   private:
    std::unique_ptr<Worker> start(std::function<void(MessageWriter&, AccessReader&)> work);
    /// The next message of the worker; throws ReadError for one that tells of an error or never comes.
    Message next(Worker& worker) const;

    ReaderMaker maker_;
    QString file_;
    int codePage_;
    ReadBudget budget_;
    std::unique_ptr<Worker> worker_;
};

std::unique_ptr<Worker> IsolatedReader::start(std::function<void(MessageWriter&, AccessReader&)> work) {
    return std::make_unique<Worker>(
        [work = std::move(work), this](MessageWriter& out) {
            try {
                const auto reader = maker_(file_, codePage_);
                work(out, *reader);
                out.write(Message::end());
            } catch (const ReadError& error) {
                out.write(Message::error(error.sentence()));
            } catch (const std::bad_alloc&) {
                out.write(Message::error(damaged(memorySentence())));
            } catch (const std::exception& error) {
                out.write(Message::error(
                    QStringLiteral("reading failed: %1").arg(QString::fromUtf8(error.what()))));
            }
        },
        budget_);
}

Message IsolatedReader::next(Worker& worker) const {
    const auto message = worker.read();
    if (!message)
        throw ReadError(damaged(worker.lastWords()));
    if (message->kind == Message::Kind::Error)
        throw ReadError(message->sentence);
    return *message;
}

QStringList IsolatedReader::tables() {
    const auto worker = start([](MessageWriter& out, AccessReader& reader) {
        out.write(Message::tableList(reader.tables(), reader.codePage()));
    });
    const Message message = next(*worker);
    codePage_ = message.codePage;
    return message.tables;
}

SourceTable IsolatedReader::openTable(const QString& name) {
    worker_ = start([name](MessageWriter& out, AccessReader& reader) {
        out.write(Message::opened(reader.openTable(name)));
        SourceRow row;
        while (reader.nextRow(row))
            out.write(Message::rowOf(row));
    });
    return next(*worker_).table;
}

bool IsolatedReader::nextRow(SourceRow& row) {
    if (!worker_)
        return false;
    const Message message = next(*worker_);
    if (message.kind == Message::Kind::End) {
        worker_.reset();
        return false;
    }
    row = message.row;
    return true;
}

}  // namespace

ReaderMaker isolatedMaker(ReaderMaker maker, int patienceMs) {
    return [maker = std::move(maker), patienceMs](const QString& file, int codePage) {
        return std::make_unique<IsolatedReader>(maker, file, codePage, patienceMs);
    };
}

}  // namespace tools
