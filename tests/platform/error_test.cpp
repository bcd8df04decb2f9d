#include "platform/error.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

using platform::ErrorCode;
using platform::RuntimeError;

TEST(RuntimeErrorTest, KeepsItsSentence) {
    const RuntimeError error(ErrorCode::FileNotFound, QStringLiteral("File not found: '낱말.jpg'."));
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.sentence(), "File not found: '낱말.jpg'.");
    EXPECT_STREQ(error.what(), "File not found: '낱말.jpg'.");
}

TEST(RuntimeErrorTest, ASentenceTooLongForABoxKeepsItsBeginningAndItsEnd) {
    const RuntimeError error(ErrorCode::TypeMismatch,
                             QStringLiteral("Type mismatch: '%1' (row 3)").arg(QString(60000, u'x')));
    EXPECT_LT(error.sentence().size(), 1100);
    EXPECT_TRUE(error.sentence().startsWith("Type mismatch: 'xxx") &&
                error.sentence().endsWith("xxx' (row 3)"));
}
