#include "platform/desktop/application.h"

#include "platform/error.h"
#include "tests/support/desk.h"
#include "tests/support/x_display.h"
#include "tools/setup/store_writer.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <QMessageBox>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

struct Outcome {
    QProcess::ExitStatus ended = QProcess::CrashExit;
    int status = -1;
    QString told;
    QString errors;
};

/// Runs the program that fails in a way.
Outcome runFailing(const QString& way,
                   const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                   const QString& file = {}, const char* limit = "unlimited") {
    QProcess child;
    child.setProcessEnvironment(environment);
    const QString program = QCoreApplication::applicationDirPath() + "/failure";
    child.start("bash", {"-c", R"(ulimit -f "$0" && exec "$@")", limit, program, way, file});
    EXPECT_TRUE(child.waitForFinished(20000));
    return {child.exitStatus(), child.exitCode(), QString::fromUtf8(child.readAllStandardOutput()),
            QString::fromUtf8(child.readAllStandardError())};
}

const QString text = "Run-time error '53':\n\nFile not found: 'D:\\next1.jpg'.\n";

QString boxAlone() {
    return QStringLiteral("errorBox|%1|%2|").arg(QMessageBox::Critical).arg(Qt::PlainText) + text;
}

class FailureEndsTheRun : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(FailureEndsTheRun, AfterOneCriticalBoxWithNumberAndSentence) {
    const Outcome run = runFailing(GetParam());
    EXPECT_EQ(run.ended, QProcess::NormalExit);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.told, boxAlone());
    EXPECT_TRUE(run.errors.contains(text));
}

INSTANTIATE_TEST_SUITE_P(Ways, FailureEndsTheRun,
                         testing::Values("tick", "posted", "startup", "again", "screen"),
                         [](const auto& way) { return std::string(way.param); });

TEST(FailureUnderAWindowManager, StandsOverEveryWindowUntilItIsAnswered) {
    const support::XDisplay display(support::XDisplay::Manager::Openbox);
    ASSERT_TRUE(display.isUp());
    QProcessEnvironment environment = display.environment();
    environment.insert("FAILURE_TELLS_VISIBLE_PART", "1");
    for (int start = 0; start < 3; ++start) {
        const Outcome run = runFailing("screen", environment);
        EXPECT_EQ(run.ended, QProcess::NormalExit);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.told, boxAlone());
    }
}

TEST(FailureUnderTheBox, IsToldOnStandardErrorAndNotInSilence) {
    EXPECT_TRUE(runFailing("again").errors.contains("another failure"));
}

TEST(StoreThatMayNotGrow, EndsTheRunWithItsNameAndKeepsWhatWasSaved) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("DbScore_1001.mdb");
    tools::writeStore(file, "DbScore", {});
    const Outcome run = runFailing("full store", QProcessEnvironment::systemEnvironment(), file, "64");
    EXPECT_EQ(run.ended, QProcess::NormalExit) << "signal " << run.status;
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.told.contains("errorBox")) << run.told.toStdString();
    EXPECT_TRUE(run.told.contains("DbScore_1001.mdb")) << run.told.toStdString();
    SQLite::Database store(file.toStdString(), SQLite::OPEN_READWRITE);
    EXPECT_EQ(store.execAndGet("pragma integrity_check").getString(), "ok");
    EXPECT_GT(store.execAndGet("select count(*) from score where length(vTitle)=1000").getInt(), 10);
}

TEST(LogOut, EndsTheProgramThoughAQuestionStands) {
    for (const char* when : {"log out", "log out early"}) {
        const Outcome run = runFailing(when);
        EXPECT_EQ(run.ended, QProcess::NormalExit) << when;
        EXPECT_EQ(run.status, 0) << when;
        EXPECT_EQ(run.told, "the question is over\n") << when;
    }
}

TEST(FailureText, AnyOtherFailureIsToldInItsOwnWords) {
    EXPECT_EQ(platform::failureText(std::runtime_error("out of order")), "Run-time error:\n\nout of order");
}
