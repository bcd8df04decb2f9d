#include "platform/reports/layout.h"

#include "platform/error.h"
#include "tests/platform/reports/sheet.h"
#include "tests/support/desk.h"

#include <QRawFont>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using platform::layOutReport;
using platform::PieceRole;
using platform::ReportData;
using platform::ReportLayout;
using platform::ReportPiece;
using platform::ReportRow;
using support::oneColumn;
using support::pieces;
using support::question;
using support::questions;
using support::text;
using support::texts;

namespace {

/// The pages that each row has pieces on.
std::map<int, std::set<std::size_t>> pagesOfRows(const ReportLayout& layout) {
    std::map<int, std::set<std::size_t>> rows;
    for (std::size_t page = 0; page < layout.pages.size(); ++page)
        for (const ReportPiece& piece : layout.pages[page].pieces)
            if (piece.row >= 0)
                rows[piece.row].insert(page);
    return rows;
}

}  // namespace

TEST(ReportLayout, AShortLessonFitsOnOnePageAndALongOneGoesOn) {
    EXPECT_EQ(layOutReport(oneColumn(), questions(12)).pages.size(), 1U);
    EXPECT_GT(layOutReport(oneColumn(), questions(100)).pages.size(), 3U);
    EXPECT_EQ(layOutReport(oneColumn(), {}).pages.size(), 1U);
}

TEST(ReportLayout, HeadsRepeatAndPagesAreNumbered) {
    const auto layout = layOutReport(oneColumn(), questions(60));
    const auto count = static_cast<int>(layout.pages.size());
    EXPECT_EQ(texts(layout, PieceRole::Title), QStringList(QList<QString>(count, QStringLiteral("Sheet"))));
    EXPECT_EQ(texts(layout, PieceRole::Guide).size(), count);
    EXPECT_EQ(texts(layout, PieceRole::Foot).first(), QStringLiteral("1 / %1").arg(count));
    EXPECT_EQ(texts(layout, PieceRole::Foot).last(), QStringLiteral("%1 / %1").arg(count));
}

TEST(ReportLayout, RowsStayWholeAndNothingLeavesThePage) {
    auto data =
        questions(80, QStringLiteral("A sentence of many words that goes on and on ____ until it needs more "
                                     "than a single line of the page, and then some."));
    const auto layout = layOutReport(oneColumn(), data);
    for (const auto& [row, pages] : pagesOfRows(layout))
        EXPECT_EQ(pages.size(), 1U) << row;
    EXPECT_EQ(pagesOfRows(layout).size(), 80U);
    const QRectF paper(QPointF(0, 0), layout.pageArea);
    for (const auto& page : layout.pages)
        for (const ReportPiece& piece : page.pieces)
            EXPECT_TRUE(paper.contains(piece.place.adjusted(0, 0, 0.01, 0.01))) << piece.text.toStdString();
}

TEST(ReportLayout, RowsDoNotOverlap) {
    const auto layout = layOutReport(oneColumn(), questions(40));
    for (const auto& page : layout.pages) {
        std::map<int, QRectF> places;
        for (const ReportPiece& piece : page.pieces)
            if (piece.row >= 0)
                places[piece.row] |= piece.place.adjusted(0, 0, 0.01, 0.01);
        double bottom = 0;
        for (const auto& [row, place] : places) {
            EXPECT_GE(place.top(), bottom) << row;
            bottom = place.bottom();
        }
    }
}

TEST(ReportLayout, NumbersCountOnOverAllPages) {
    const auto numbers = texts(layOutReport(oneColumn(), questions(60)), PieceRole::Number);
    ASSERT_EQ(numbers.size(), 60);
    EXPECT_EQ(numbers.first(), QStringLiteral("1."));
    EXPECT_EQ(numbers.last(), QStringLiteral("60."));
}

TEST(ReportLayout, TheKeyHasItsAnswersInThePlacesOfTheBlanks) {
    auto report = oneColumn();
    ReportData data;
    data.rows = {
        question(QStringLiteral("I ____ tall."), QStringLiteral("am")),
        question(QStringLiteral("(1) ____ you (2) ____ me?"), QStringLiteral("Will"), QStringLiteral("help")),
        question(QStringLiteral("Me like it."), QStringLiteral("I"))};
    const auto sheet = layOutReport(report, data);
    report.key = true;
    const auto key = layOutReport(report, data);
    const auto blanks = pieces(sheet, PieceRole::Blank);
    const auto keyBlanks = pieces(key, PieceRole::Blank);
    const auto answers = pieces(key, PieceRole::Answer);
    ASSERT_EQ(blanks.size(), 4U);
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_TRUE(pieces(sheet, PieceRole::Answer).empty());
    for (std::size_t i = 0; i < blanks.size(); ++i) {
        EXPECT_EQ(blanks[i].place, keyBlanks[i].place);
        EXPECT_GE(answers[i].place.left(), blanks[i].place.left());
        EXPECT_LE(answers[i].place.right(), blanks[i].place.right());
        EXPECT_LT(answers[i].place.bottom(), blanks[i].place.bottom());
        EXPECT_LT(blanks[i].place.bottom() - answers[i].place.bottom(), platform::millimetres(2));
    }
    EXPECT_EQ(texts(key, PieceRole::Answer), QStringList({QStringLiteral("am"), QStringLiteral("Will"),
                                                          QStringLiteral("help"), QStringLiteral("I")}));
}

TEST(ReportLayout, AllBlanksOfASheetAreEquallyLongAndTellNothing) {
    ReportData data;
    data.rows = {question(QStringLiteral("I ____ it."), QStringLiteral("a")),
                 question(QStringLiteral("You ____ it."), QStringLiteral("understanding"))};
    const auto blanks = pieces(layOutReport(oneColumn(), data), PieceRole::Blank);
    ASSERT_EQ(blanks.size(), 2U);
    EXPECT_DOUBLE_EQ(blanks[0].place.width(), blanks[1].place.width());
    EXPECT_GT(blanks[0].place.width(), platform::textWidth(QStringLiteral("understanding"), {13, true}));
}

TEST(ReportLayout, WritingLinesStandInAColumnBesideShortQuestionsAndUnderLongAnswers) {
    ReportData shortOnes;
    shortOnes.rows = {question(QStringLiteral("book"), QStringLiteral("books")),
                      question(QStringLiteral("a longer question"), QStringLiteral("b"))};
    auto blanks = pieces(layOutReport(oneColumn(), shortOnes), PieceRole::Blank);
    ASSERT_EQ(blanks.size(), 2U);
    EXPECT_DOUBLE_EQ(blanks[0].place.left(), blanks[1].place.left());
    ReportData sentences;
    sentences.rows = {
        question(QStringLiteral("조용히 해라."),
                 QStringLiteral("Please be quiet while the others are still working on their sheets."))};
    const auto layout = layOutReport(oneColumn(), sentences);
    blanks = pieces(layout, PieceRole::Blank);
    ASSERT_EQ(blanks.size(), 1U);
    EXPECT_GT(blanks[0].place.bottom(),
              pieces(layout, PieceRole::Prompt)[0].place.bottom() + platform::millimetres(6));
    EXPECT_GT(blanks[0].place.width(), platform::millimetres(150));
}

TEST(ReportLayout, TwoAnswersOfEveryQuestionGiveTwoLinesAndOfSomeOnlyOne) {
    ReportData data;
    data.rows = {question(QStringLiteral("read"), QStringLiteral("to read"), QStringLiteral("reading")),
                 question(QStringLiteral("go"), QStringLiteral("to go"), QStringLiteral("going"))};
    EXPECT_EQ(pieces(layOutReport(oneColumn(), data), PieceRole::Blank).size(), 4U);
    data.rows.push_back(question(QStringLiteral("be"), QStringLiteral("to be")));
    auto report = oneColumn();
    report.key = true;
    const auto key = layOutReport(report, data);
    EXPECT_EQ(pieces(key, PieceRole::Blank).size(), 3U);
    EXPECT_EQ(texts(key, PieceRole::Answer).first(), QStringLiteral("to read / reading"));
}

TEST(ReportLayout, TwoUpSheetsHaveTrueColumns) {
    auto report = oneColumn();
    report.items.resize(2);
    report.items[1].prompts = {text("{b}")};
    ReportData data;
    for (int i = 0; i < 20; ++i)
        data.rows.push_back(
            question(QStringLiteral("left ____"), {}, i < 19 ? QStringLiteral("right ____") : QString()));
    const auto layout = layOutReport(report, data);
    const double middle = layout.pageArea.width() / 2;
    std::set<double> lefts;
    for (const ReportPiece& piece : pieces(layout, PieceRole::Number)) {
        EXPECT_EQ(piece.place.left() > middle, piece.item == 1);
        lefts.insert(piece.place.left());
    }
    EXPECT_EQ(lefts.size(), 2U);
    // The last line is half filled: no number stands in its empty half.
    EXPECT_EQ(texts(layout, PieceRole::Number).size(), 39);
    EXPECT_EQ(pieces(layout, PieceRole::ColumnRule).size(), layout.pages.size());
    for (const ReportPiece& piece : pieces(layout, PieceRole::Blank))
        EXPECT_TRUE(piece.item == 1 || piece.place.right() < middle);
}

TEST(ReportLayout, EachBoxStandsUnderItsLetter) {
    auto report = oneColumn();
    report.items[0] = {};
    report.items[0].head = text("{v}");
    report.items[0].words = {text("{w}")};
    report.items[0].masks = {text("{m}")};
    report.items[0].lettersShown = true;
    report.key = true;
    ReportData data;
    data.rows = {{{QStringLiteral("v"), QStringLiteral("커피 한 잔")},
                  {QStringLiteral("w"), QStringLiteral("a cup")},
                  {QStringLiteral("m"), QStringLiteral("□ □□□")}}};
    const auto layout = layOutReport(report, data);
    const auto boxes = pieces(layout, PieceRole::MaskBox);
    const auto letters = pieces(layout, PieceRole::MaskLetter);
    const auto answers = pieces(layout, PieceRole::MaskAnswer);
    ASSERT_EQ(boxes.size(), 4U);
    ASSERT_EQ(letters.size(), 4U);
    ASSERT_EQ(answers.size(), 4U);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_NEAR(letters[i].place.center().x(), boxes[i].place.center().x(), 1);
        EXPECT_LT(letters[i].place.bottom(), boxes[i].place.top());
        EXPECT_TRUE(boxes[i].place.contains(answers[i].place.center()));
    }
    EXPECT_EQ(texts(layout, PieceRole::ItemHead), QStringList{QStringLiteral("커피 한 잔")});
}

TEST(ReportLayout, ALongMaskBreaksBetweenWordsAndStaysOnThePage) {
    auto report = oneColumn();
    report.items[0] = {};
    report.items[0].words = {text("{w}")};
    report.items[0].masks = {text("{m}")};
    ReportData data;
    const QString words =
        QStringLiteral("I am thirteen years old and I go to the middle school near the river bank");
    QString mask;
    for (const QChar c : words)
        mask += c == u' ' ? u' ' : u'□';
    data.rows = {{{QStringLiteral("w"), words}, {QStringLiteral("m"), mask}},
                 {{QStringLiteral("w"), QString(70, u'x')}, {QStringLiteral("m"), QString(70, u'□')}}};
    const auto layout = layOutReport(report, data);
    const double right = layout.pageArea.width() - platform::millimetres(report.margins.right());
    std::set<double> tops;
    for (const ReportPiece& box : pieces(layout, PieceRole::MaskBox)) {
        EXPECT_LE(box.place.right(), right + 1);
        tops.insert(box.place.top());
    }
    EXPECT_GE(tops.size(), 5U);
    EXPECT_EQ(pieces(layout, PieceRole::MaskBox).size(),
              static_cast<std::size_t>(words.size() - words.count(u' ') + 70));
}

TEST(ReportLayout, TheWordBankStandsInAFrameOnEveryPage) {
    auto report = oneColumn();
    report.bank.title = text("보기");
    report.bank.sorted = true;
    for (const char* word : {"on", "At", "in front of", ""})
        report.bank.words.push_back(text(word));
    const auto layout = layOutReport(report, questions(50));
    EXPECT_EQ(pieces(layout, PieceRole::BankFrame).size(), layout.pages.size());
    EXPECT_EQ(texts(layout, PieceRole::BankWord).mid(0, 3),
              QStringList({QStringLiteral("At"), QStringLiteral("in front of"), QStringLiteral("on")}));
    const QRectF frame = pieces(layout, PieceRole::BankFrame)[0].place;
    for (const ReportPiece& word : pieces(layout, PieceRole::BankWord))
        EXPECT_TRUE(frame.contains(word.place)) << word.text.toStdString();
}

TEST(ReportLayout, ChoicesFollowTheQuestionInBracketsAndASingleOneIsALineOfItsOwn) {
    auto report = oneColumn();
    report.items[0].choices = {text("{c}"), text("{d}")};
    ReportData data;
    for (const char* second : {"milks", ""}) {
        ReportRow row = question(QStringLiteral("I drink ____."), QStringLiteral("milk"));
        row.insert(QStringLiteral("c"), QStringLiteral("milk"));
        row.insert(QStringLiteral("d"), QLatin1String(second));
        data.rows.push_back(row);
    }
    const auto layout = layOutReport(report, data);
    const QStringList prompts = texts(layout, PieceRole::Prompt);
    EXPECT_TRUE(prompts.join(u' ').contains(QStringLiteral("( milk / milks )")))
        << prompts.join(u'|').toStdString();
    EXPECT_EQ(prompts.last(), QStringLiteral("milk"));
}

TEST(ReportLayout, AnAnswerThatStandsForNothingIsMarkedInTheKey) {
    auto report = oneColumn();
    report.key = true;
    report.nothingWord = QStringLiteral("Blank");
    report.nothingMark = QStringLiteral("X");
    ReportData data;
    data.rows = {question(QStringLiteral("by ____ car"), QStringLiteral("Blank"))};
    EXPECT_EQ(texts(layOutReport(report, data), PieceRole::Answer), QStringList{QStringLiteral("X")});
}

TEST(ReportLayout, TheWordForNothingIsNoLineToReadAndAMarkAmongChoices) {
    auto report = oneColumn();
    report.nothingWord = QStringLiteral("Blank");
    report.nothingMark = QStringLiteral("X");
    report.items[0].prompts = {text("{q}"), text("{b}")};
    report.items[0].choices = {text("{c}"), text("{d}")};
    report.items[0].answers.clear();
    const auto prompts = [&](const QString& line, const QString& one, const QString& other) {
        ReportData data;
        data.rows = {question(QStringLiteral("by ____ car"), {}, line)};
        data.rows[0].insert(QStringLiteral("c"), one);
        data.rows[0].insert(QStringLiteral("d"), other);
        return texts(layOutReport(report, data), PieceRole::Prompt).join(u'|');
    };
    const QString nothing = QStringLiteral("Blank");
    EXPECT_EQ(prompts(nothing, {}, {}), QStringLiteral("by|car"));
    EXPECT_EQ(prompts({}, nothing, {}), QStringLiteral("by|car"));
    EXPECT_TRUE(prompts({}, QStringLiteral("a"), nothing).endsWith(QStringLiteral("( a / X )")));
    EXPECT_EQ(prompts(QStringLiteral("차로"), {}, {}), QStringLiteral("by|car|차로"));
}

TEST(ReportLayout, OneFontHasAllLettersOfASheet) {
    const QRawFont font = QRawFont::fromFont(platform::reportFont({12, false}));
    for (const QChar letter : QStringLiteral("가힣뷁Az09→()/'□"))
        EXPECT_TRUE(font.supportsCharacter(letter)) << QString(letter).toStdString();
}

TEST(ReportLayout, AFieldThatNoTableHasIsToldWithFileAndLine) {
    auto report = oneColumn();
    report.items[0].prompts[0].text = QStringLiteral("{wrong}");
    report.items[0].prompts[0].line = 12;
    try {
        layOutReport(report, questions(1));
        FAIL();
    } catch (const platform::RuntimeError& failure) {
        EXPECT_TRUE(failure.sentence().contains(QStringLiteral("'test.rpt' is broken in line 12")))
            << failure.sentence().toStdString();
    }
}
