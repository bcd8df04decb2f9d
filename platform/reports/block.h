#pragma once

#include "platform/reports/layout.h"

#include <vector>

namespace platform {

/// Pieces that stay together, placed from (0, 0).
struct ReportBlock {
    double height = 0;
    std::vector<ReportPiece> pieces;
};

/// The texts of one item of one row, fields filled in.
struct ItemContent {
    int row = 0;
    int item = 0;
    QString number;
    QString head;
    std::vector<QString> prompts;
    std::vector<QString> choices;
    std::vector<QString> answers;
    std::vector<QString> words;
    std::vector<QString> masks;
    bool lettersShown = false;

    /// An item without anything to ask prints nothing, not even its number.
    bool isEmpty() const;
    bool hasBlanks() const;
};

/// Measures that all items of a group share, so that blanks tell nothing by their length and everything
/// stands in columns.
struct ItemMeasures {
    double width = 0;        // of an item
    double numberWidth = 0;  // the column of the numbers
    double blankWidth = 0;   // of a blank inside a question
    int lines = 1;           // writing lines of a question without blanks
    double lineWidth = 0;    // of a writing line beside a question
    double lineLeft = 0;     // where the first of these begins
    bool beside = true;      // whether the lines stand beside the question or under it
};

/// The texts of a row's item.
ItemContent itemContent(const ReportTemplate& report, const ReportData& data, int row, int itemIndex,
                        int runningNumber);

ItemMeasures measureItems(const ReportTemplate& report, const std::vector<const ItemContent*>& items,
                          double width);

ReportBlock itemBlock(const ReportTemplate& report, const ItemContent& content, const ItemMeasures& measures);

/// The head of every page: title, lines for name and date, what to do, the words to choose from.
ReportBlock headBlock(const ReportTemplate& report, const ReportData& data, double width);
ReportBlock groupBlock(const ReportTemplate& report, const QString& text, double width);

/// Adds the pieces of a block to a page.
void placeBlock(const ReportBlock& block, double left, double top, ReportPage& page);
/// Adds a text that stands on a base line.
void addText(ReportBlock& block, PieceRole role, double left, double baseLine, const QString& text,
             const ReportStyle& style);
/// Adds a rule, or the outline of a place.
void addShape(ReportBlock& block, PieceRole role, const QRectF& place);

}  // namespace platform
