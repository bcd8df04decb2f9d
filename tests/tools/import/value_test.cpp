#include "tools/import/value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace tools;

QString dated(double days) {
    return isoDate(days).value_or(QStringLiteral("none"));
}

TEST(ImportedDate, IsWrittenWithoutATimeWhereItHasNone) {
    EXPECT_EQ(dated(46037), QStringLiteral("2026-01-15"));
    EXPECT_EQ(dated(45351), QStringLiteral("2024-02-29"));
}

TEST(ImportedDate, KeepsItsTimeToTheSecond) {
    EXPECT_EQ(dated(36525 + (9 * 3600 + 5 * 60 + 30) / 86400.0), QStringLiteral("1999-12-31 09:05:30"));
    EXPECT_EQ(dated(0.5), QStringLiteral("1899-12-30 12:00:00"));
}

TEST(ImportedDate, RoundsTheLastHalfSecondOfADayIntoTheNextDay) {
    EXPECT_EQ(dated(46037 + 86399.7 / 86400.0), QStringLiteral("2026-01-16"));
}

TEST(ImportedDate, CountsTheTimeForwardsBeforeTheFirstDay) {
    EXPECT_EQ(dated(-1.25), QStringLiteral("1899-12-29 06:00:00"));
}

TEST(ImportedDate, HasNoFormOutsideTheYearsThatAFileCanHold) {
    EXPECT_EQ(dated(-657434), QStringLiteral("0100-01-01"));
    EXPECT_EQ(dated(2958465), QStringLiteral("9999-12-31"));
    EXPECT_EQ(dated(-657435), QStringLiteral("none"));
    EXPECT_EQ(dated(2958466), QStringLiteral("none"));
    EXPECT_EQ(dated(std::nan("")), QStringLiteral("none"));
    EXPECT_EQ(dated(std::numeric_limits<double>::infinity()), QStringLiteral("none"));
}

TEST(ImportedValue, ReadsAlikeAsNumberOfEitherKindAndAsText) {
    EXPECT_EQ(canonical(qlonglong{5}), canonical(5.0));
    EXPECT_EQ(canonical(5.0), canonical(QStringLiteral("5")));
    EXPECT_EQ(canonical(66.67), QByteArray("66.67"));
    EXPECT_EQ(canonical(100000000.0), QByteArray("100000000"));
    EXPECT_EQ(canonical(-0.0), QByteArray("0"));
    EXPECT_EQ(canonical(0.1), QByteArray("0.1"));
}

TEST(ImportedValue, KeepsNullApartFromAnEmptyText) {
    EXPECT_FALSE(canonical(QVariant()).has_value());
    EXPECT_EQ(canonical(QStringLiteral("")), QByteArray(""));
    TableSum null;
    null.add(QVariant());
    null.endRow();
    TableSum empty;
    empty.add(QStringLiteral(""));
    empty.endRow();
    EXPECT_NE(null.text(), empty.text());
}

TEST(ImportedValue, BecomesTextInATextColumnInItsShortestForm) {
    QString problem;
    EXPECT_EQ(storedValue(100.0, SourceType::Number, StoreKind::Text, problem),
              QVariant(QStringLiteral("100")));
    EXPECT_EQ(storedValue(qlonglong{7}, SourceType::Integer, StoreKind::Text, problem),
              QVariant(QStringLiteral("7")));
    EXPECT_EQ(storedValue(87.5, SourceType::Number, StoreKind::Number, problem), QVariant(87.5));
    EXPECT_TRUE(problem.isEmpty());
}

TEST(ImportedValue, IsToldWhereItIsNoDateOrNoNumber) {
    QString problem;
    EXPECT_FALSE(storedValue(1e300, SourceType::Date, StoreKind::Text, problem).isValid());
    EXPECT_EQ(problem, QStringLiteral("the value is no date"));
    EXPECT_FALSE(storedValue(std::nan(""), SourceType::Number, StoreKind::Number, problem).isValid());
    EXPECT_EQ(problem, QStringLiteral("the value is no number"));
}

TEST(ImportedColumn, TakesItsKindFromTheCourseBeforeTheSource) {
    const core::FieldShape number{"s4", core::FieldKind::Number};
    const core::FieldShape date{"vDate", core::FieldKind::Date};
    EXPECT_EQ(storeKind(SourceType::Text, &number), StoreKind::Number);
    EXPECT_EQ(storeKind(SourceType::Date, &date), StoreKind::Text);
    EXPECT_EQ(storeKind(SourceType::Integer, nullptr), StoreKind::Integer);
    EXPECT_EQ(storeKind(SourceType::Boolean, nullptr), StoreKind::Integer);
    EXPECT_EQ(storeKind(SourceType::Number, nullptr), StoreKind::Number);
    EXPECT_EQ(storeKind(SourceType::Decimal, nullptr), StoreKind::Text);
    EXPECT_EQ(storeKind(SourceType::Binary, nullptr), StoreKind::Blob);
    EXPECT_EQ(columnDeclaration(StoreKind::Text), QStringLiteral("TEXT COLLATE NOCASE"));
}

TEST(TableChecksum, NamesTheFirstRowThatDiffers) {
    TableSum one;
    TableSum other;
    for (int i = 0; i < 3; ++i) {
        one.add(qlonglong{i});
        one.endRow();
        other.add(qlonglong{i == 2 ? 9 : i});
        other.endRow();
    }
    EXPECT_EQ(one.firstDifference(other), 3);
    EXPECT_EQ(one.firstDifference(one), 0);
    other.add(qlonglong{1});
    other.endRow();
    EXPECT_EQ(other.firstDifference(one), 3);
}

TEST(TableChecksum, SeesATextThatMovesOverAFieldsBorder) {
    TableSum one;
    one.add(QStringLiteral("ab"));
    one.add(QStringLiteral("c"));
    one.endRow();
    TableSum other;
    other.add(QStringLiteral("a"));
    other.add(QStringLiteral("bc"));
    other.endRow();
    EXPECT_NE(one.text(), other.text());
}

}  // namespace
