#include "platform/application.h"

#include "platform/error.h"
#include "tests/support/desk.h"

#include <QMessageBox>
#include <QProcess>

#include <gtest/gtest.h>

class FailureEndsTheRun : public testing::TestWithParam<const char*> {};

TEST_P(FailureEndsTheRun, AfterOneCriticalBoxWithNumberAndSentence) {
    QProcess child;
    child.start(QCoreApplication::applicationDirPath() + "/failure", {GetParam()});
    ASSERT_TRUE(child.waitForFinished(20000));
    EXPECT_EQ(child.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(child.exitCode(), 1);
    const QString text = "Run-time error '53':\n\nFile not found: 'D:\\next1.jpg'.\n";
    EXPECT_EQ(QString::fromUtf8(child.readAllStandardOutput()),
              QStringLiteral("errorBox|%1|%2|").arg(QMessageBox::Critical).arg(Qt::PlainText) + text);
    EXPECT_TRUE(QString::fromUtf8(child.readAllStandardError()).contains(text));
}

INSTANTIATE_TEST_SUITE_P(Ways, FailureEndsTheRun, testing::Values("tick", "posted", "startup", "again"),
                         [](const auto& way) { return std::string(way.param); });

TEST(FailureText, AnyOtherFailureIsToldInItsOwnWords) {
    EXPECT_EQ(platform::failureText(std::runtime_error("out of order")), "Run-time error:\n\nout of order");
}
