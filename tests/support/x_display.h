#pragma once

#include <QProcess>

namespace support {

/// A display of a test's own, with a window manager on request. Programs are started on it by `environment`.
class XDisplay {
   public:
    enum class Manager { None, Openbox };

    explicit XDisplay(Manager manager = Manager::None) {
        server_.start(QStringLiteral("Xvfb"),
                      {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
        while (!name_.endsWith('\n') && server_.waitForReadyRead(10000))
            name_ += server_.readAllStandardOutput();
        if (isUp() && manager == Manager::Openbox) {
            manager_.setProcessEnvironment(environment());
            // It tells when it has taken the screen over.
            manager_.start(QStringLiteral("openbox"), {"--sm-disable", "--startup", "echo ready"});
            manager_.waitForReadyRead(10000);
        }
    }
    ~XDisplay() {
        end(manager_);
        end(server_);
    }
    Q_DISABLE_COPY_MOVE(XDisplay)

    bool isUp() const { return name_.endsWith('\n'); }
    /// What a program needs to come up here.
    QProcessEnvironment environment() const {
        QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
        all.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(name_.trimmed()));
        all.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        return all;
    }

   private:
    static void end(QProcess& process) {
        process.terminate();
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(5000)) {
            process.kill();
            process.waitForFinished(5000);
        }
    }

    QProcess server_;
    QProcess manager_;
    QByteArray name_;
};

}  // namespace support
