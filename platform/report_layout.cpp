#include "platform/report_layout.h"

#include "platform/report_block.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace platform {

namespace {

constexpr double columnGap = millimetres(9);
constexpr double footHeight = millimetres(8);
constexpr int gapSteps = 12;

/// A row's block, and the group that it belongs to.
struct Band {
    ReportBlock block;
    int group = 0;
};

struct Group {
    QString text;
    std::vector<int> rows;
};

int wholeNumber(const ReportRow& row, const QString& field) {
    return fieldOf(row, field).toInt();
}

/// Which range of the group's table the row's number lies in, -1 for none.
int rangeOf(const ReportGroup& group, const ReportData& data, const ReportRow& row) {
    const int number = wholeNumber(row, group.of);
    for (std::size_t i = 0; i < data.ranges.size(); ++i)
        if (number >= wholeNumber(data.ranges[i], group.from) &&
            number <= wholeNumber(data.ranges[i], group.to))
            return static_cast<int>(i);
    return -1;
}

/// Rows in their order, cut wherever their group changes.
std::vector<Group> groupRows(const ReportTemplate& report, const ReportData& data) {
    std::vector<Group> groups;
    int known = std::numeric_limits<int>::min();
    int count = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < data.rows.size(); ++i) {
        const ReportRow& row = data.rows[i];
        const bool byRange = !report.group.table.isEmpty();
        const int range = byRange ? rangeOf(report.group, data, row) : known;
        const int number = report.group.restart.isEmpty() ? 0 : wholeNumber(row, report.group.restart);
        const bool restarts = !report.group.restart.isEmpty() && number <= count;
        if (groups.empty() || range != known || restarts) {
            const ReportRow counted{{QStringLiteral("group"), QString::number(groups.size() + 1)}};
            const ReportRow& fields =
                byRange && range >= 0 ? data.ranges[static_cast<std::size_t>(range)] : row;
            const bool named = !byRange || range >= 0;
            groups.push_back({named ? filledText(report.group.text, data, fields, counted) : QString(), {}});
        }
        known = range;
        count = number;
        groups.back().rows.push_back(static_cast<int>(i));
    }
    if (groups.size() == 1 && !report.group.evenAlone)
        groups.front().text.clear();
    return groups;
}

class Layouter {
   public:
    Layouter(const ReportTemplate& report, const ReportData& data) : report_(report), data_(data) {
        area_ = report.page.size(QPageSize::Millimeter) * reportUnitsPerMillimetre;
        left_ = millimetres(report.margins.left());
        top_ = millimetres(report.margins.top());
        width_ = area_.width() - left_ - millimetres(report.margins.right());
        bottom_ = area_.height() - millimetres(report.margins.bottom()) - footHeight;
    }

    ReportLayout laidOut() {
        head_ = headBlock(report_, data_, width_);
        for (const Group& group : groupRows(report_, data_))
            addGroup(group);
        const double gap = fittingGap();
        ReportLayout layout{filledText(report_.name, data_, {}), report_.page, area_, {}};
        paginate(gap, &layout.pages);
        for (std::size_t i = 0; i < layout.pages.size(); ++i)
            addFoot(layout.pages[i], static_cast<int>(i) + 1, static_cast<int>(layout.pages.size()));
        return layout;
    }

   private:
    int columns() const { return static_cast<int>(report_.items.size()); }
    double columnWidth() const { return (width_ - (columns() - 1) * columnGap) / columns(); }
    double columnLeft(int column) const { return column * (columnWidth() + columnGap); }

    void addGroup(const Group& group) {
        std::vector<std::vector<ItemContent>> rows;
        std::vector<const ItemContent*> items;
        for (const int row : group.rows) {
            std::vector<ItemContent> contents;
            for (int item = 0; item < columns(); ++item) {
                ItemContent content = itemContent(report_, data_, row, item, runningNumber_);
                if (content.isEmpty())
                    continue;
                ++runningNumber_;
                contents.push_back(std::move(content));
            }
            rows.push_back(std::move(contents));
        }
        for (const auto& contents : rows)
            for (const ItemContent& content : contents)
                items.push_back(&content);
        const ItemMeasures measures = measureItems(report_, items, columnWidth());
        heads_.push_back(group.text.isEmpty() ? ReportBlock{} : groupBlock(report_, group.text, width_));
        for (const auto& contents : rows)
            if (!contents.empty())
                bands_.push_back({rowBlock(contents, measures), static_cast<int>(heads_.size()) - 1});
    }

    /// The items of a row side by side, each in its column.
    ReportBlock rowBlock(const std::vector<ItemContent>& contents, const ItemMeasures& measures) const {
        ReportBlock block;
        for (const ItemContent& content : contents) {
            const ReportBlock item = itemBlock(report_, content, measures);
            block.height = std::max(block.height, item.height);
            for (ReportPiece piece : item.pieces) {
                piece.place.translate(columnLeft(content.item), 0);
                block.pieces.push_back(std::move(piece));
            }
        }
        return block;
    }

    double firstTop() const { return top_ + head_.height; }

    /// The widest gap between rows that needs no more pages than the narrowest.
    double fittingGap() const {
        const double least = millimetres(report_.gapLeast);
        const double most = millimetres(report_.gapMost);
        const int pages = paginate(least, nullptr);
        for (int step = gapSteps; step > 0; --step) {
            const double gap = least + (most - least) * step / gapSteps;
            if (paginate(gap, nullptr) == pages)
                return gap;
        }
        return least;
    }

    /// Sets the rows on pages and counts these. A row never breaks, a heading never stands alone, and a page
    /// that goes on with a group repeats its heading.
    int paginate(double gap, std::vector<ReportPage>* pages) const {
        int count = 0;
        double y = bottom_ + 1;
        int group = -1;
        double rowsTop = 0;
        const auto open = [&] {
            ++count;
            y = rowsTop = firstTop();
            group = -1;
            if (pages != nullptr) {
                pages->emplace_back();
                placeBlock(head_, left_, top_, pages->back());
            }
        };
        const auto close = [&](double rowsBottom) {
            if (pages != nullptr && count > 0 && columns() > 1)
                addColumnRule(pages->back(), rowsTop, rowsBottom);
        };
        double rowsBottom = 0;
        for (const Band& band : bands_) {
            const ReportBlock& head = heads_[static_cast<std::size_t>(band.group)];
            const double before = band.group != group ? head.height : 0;
            if (count == 0 || (y + before + band.block.height > bottom_ && y > firstTop())) {
                close(rowsBottom);
                open();
            }
            if (band.group != group) {
                if (pages != nullptr)
                    placeBlock(head, left_, y, pages->back());
                y += head.height;
                group = band.group;
            }
            if (pages != nullptr)
                placeBlock(band.block, left_, y, pages->back());
            rowsBottom = y + band.block.height;
            y = rowsBottom + gap;
        }
        if (count == 0)
            open();
        else
            close(rowsBottom);
        return count;
    }

    void addColumnRule(ReportPage& page, double from, double to) const {
        for (int column = 1; column < columns(); ++column) {
            const double x = left_ + columnLeft(column) - columnGap / 2;
            page.pieces.push_back({PieceRole::ColumnRule, QRectF(x, from, 0, to - from), {}, {}, -1, -1});
        }
    }

    void addFoot(ReportPage& page, int number, int count) const {
        const ReportRow counts{{QStringLiteral("page"), QString::number(number)},
                               {QStringLiteral("pages"), QString::number(count)}};
        const QString text = filledText(report_.foot, data_, {}, counts);
        const ReportStyle style{report_.sizes.page, false};
        ReportBlock foot;
        addText(foot, PieceRole::Foot, (width_ - textWidth(text, style)) / 2, footHeight, text, style);
        placeBlock(foot, left_, bottom_, page);
    }

    const ReportTemplate& report_;
    const ReportData& data_;
    QSizeF area_;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double bottom_ = 0;
    ReportBlock head_;
    std::vector<ReportBlock> heads_;
    std::vector<Band> bands_;
    int runningNumber_ = 1;
};

}  // namespace

ReportLayout layOutReport(const ReportTemplate& report, const ReportData& data) {
    return Layouter(report, data).laidOut();
}

}  // namespace platform
