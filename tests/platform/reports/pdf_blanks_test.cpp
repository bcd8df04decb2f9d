#include "platform/reports/pdf_blanks.h"

#include <gtest/gtest.h>

using platform::withBlanks;

TEST(PdfBlanks, StandWhereTheWriterNamesACodeBelowThem) {
    EXPECT_EQ(
        withBlanks(
            "2 beginbfrange\n<0000> <0000> <0000>\n<0001> <0003> [<0054> <0001> <AE00> ]\nendbfrange\n"),
        "2 beginbfrange\n<0000> <0000> <0000>\n<0001> <0003> [<0054> <0020> <AE00> ]\nendbfrange\n");
    EXPECT_EQ(withBlanks("1 beginbfrange\n<0004> <0004> <000D>\nendbfrange\n"),
              "1 beginbfrange\n<0004> <0004> <0020>\nendbfrange\n");
}

TEST(PdfBlanks, ChangeNothingElseInTheFile) {
    for (const char* text : {"", "<0001> <0001> <0001>\n", "1 beginbfrange\n", "1 beginbfrange\n<0001> <00",
                             "1 beginbfrange\n<0001>\n\nendbfrange", "stream\n<0001> [<0001>]\nendstream",
                             "1 beginbfrange\n<0001> <0001> <00zz>\nendbfrange\n"})
        EXPECT_EQ(withBlanks(text), text);
}
