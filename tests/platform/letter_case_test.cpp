#include "platform/letter_case.h"

#include "platform/storage/database.h"
#include "platform/storage/recordset.h"
#include "tests/support/desk.h"

#include <gtest/gtest.h>

using platform::compareButForCase;
using platform::sameButForCase;

TEST(LetterCase, CapitalsCountAsSmallLettersInAnyAlphabet) {
    EXPECT_TRUE(sameButForCase(QStringLiteral("Élan"), QStringLiteral("élan")));
    EXPECT_TRUE(sameButForCase(QStringLiteral("ÀÇñ"), QStringLiteral("àçÑ")));
    EXPECT_TRUE(sameButForCase(QStringLiteral("Кот"), QStringLiteral("кОТ")));
    EXPECT_FALSE(sameButForCase(QStringLiteral("elan"), QStringLiteral("élan")));
}

TEST(LetterCase, TheEnginesOrderAgreesWithTheScreens) {
    const std::vector<std::string> texts{"",     "a",     "A b",  "b",    "Élan", "élan", "ÉLANS", "e",
                                         "나무", "나",    "z",    "É",    "é",    "elan", "K",     "ß",
                                         "Z나",  "z나무", "\xff", "\xc3", "a'b",  "A'B"};
    for (const std::string& one : texts)
        for (const std::string& other : texts) {
            const int order = compareButForCase(one, other);
            const int turned = compareButForCase(other, one);
            EXPECT_EQ(order<0, turned> 0) << one << " and " << other;
            EXPECT_EQ(order == 0, sameButForCase(QString::fromStdString(one), QString::fromStdString(other)))
                << one << " and " << other;
            for (const std::string& third : texts)
                if (order < 0 && compareButForCase(other, third) < 0) {
                    EXPECT_LT(compareButForCase(one, third), 0) << one << ", " << other << ", " << third;
                }
        }
}

TEST(LetterCase, PlainLettersStandAsTheEnginesOwnOrderHasThem) {
    EXPECT_LT(compareButForCase("Apple", "banana"), 0);
    EXPECT_LT(compareButForCase("apple", "Apples"), 0);
    EXPECT_LT(compareButForCase("zoo", "가"), 0);
}

TEST(LetterCase, ARowIsFoundByItsWordInEitherCase) {
    support::Desk desk;
    desk.exec(support::courseStore, "insert into blankno values(1,0,'Élan','NO'),(2,1,'APPLE','NO')");
    auto database = platform::Database::open(desk.file(support::courseStore), "tovalin.mdb");
    auto rows = database.openRecordset("Select * from blankno order by orderno");
    for (const char* word : {"élan", "ÉLAN", "apple"}) {
        rows.findFirst(QStringLiteral("word='%1'").arg(QString::fromUtf8(word)));
        EXPECT_FALSE(rows.noMatch()) << word;
    }
    rows.findFirst("word='elan'");
    EXPECT_TRUE(rows.noMatch());
}
