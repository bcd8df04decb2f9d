#include "platform/reports/layout.h"

#include "platform/reports/block.h"

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

/// Cuts rows, in their order, wherever their group changes.
class Grouper {
   public:
    Grouper(const ReportTemplate& report, const ReportData& data) : group_(report.group), data_(data) {}

    std::vector<Group> grouped() {
        for (std::size_t i = 0; i < data_.rows.size(); ++i) {
            const bool restarted = restarts(data_.rows[i]);
            const bool moved = entersRange(data_.rows[i]);
            if (groups_.empty() || restarted || moved)
                begin(data_.rows[i], restarted);
            groups_.back().rows.push_back(static_cast<int>(i));
        }
        if (groups_.size() == 1 && !group_.evenAlone)
            groups_.front().text.clear();
        return std::move(groups_);
    }

   private:
    bool restarts(const ReportRow& row) {
        if (group_.restart.isEmpty())
            return false;
        const int number = wholeNumber(row, group_.restart);
        const bool anew = number <= count_;
        count_ = number;
        part_ += anew ? 1 : 0;
        return anew;
    }

    bool entersRange(const ReportRow& row) {
        if (group_.table.isEmpty())
            return false;
        const int range = rangeOf(group_, data_, row);
        return std::exchange(range_, range) != range;
    }

    void begin(const ReportRow& row, bool restarted) {
        const ReportRow counts{{QStringLiteral("group"), QString::number(groups_.size() + 1)},
                               {QStringLiteral("part"), QString::number(part_)}};
        const bool named = group_.table.isEmpty() || range_ >= 0;
        const ReportRow& fields = range_ >= 0 ? data_.ranges[static_cast<std::size_t>(range_)] : row;
        const QString text = named ? filledText(group_.text, data_, fields, counts).trimmed() : QString();
        // Neighbouring ranges that say the same need to say it only once.
        if (groups_.empty() || restarted || text != groups_.back().text)
            groups_.push_back({text, {}});
    }

    const ReportGroup& group_;
    const ReportData& data_;
    std::vector<Group> groups_;
    int range_ = -2;  // of the row before; -1 lies in none
    int count_ = std::numeric_limits<int>::max();
    int part_ = 0;
};

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
        for (const Group& group : Grouper(report_, data_).grouped())
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

    /// The room that a row needs on a page whose last row is of `group`. A heading comes with two of its
    /// rows.
    double needed(std::size_t row, int group, double gap) const {
        const Band& band = bands_[row];
        const ReportBlock& head = heads_[static_cast<std::size_t>(band.group)];
        if (band.group == group || head.pieces.empty())
            return band.block.height;
        const bool another = row + 1 < bands_.size() && bands_[row + 1].group == band.group;
        return head.height + band.block.height + (another ? gap + bands_[row + 1].block.height : 0);
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
        for (std::size_t i = 0; i < bands_.size(); ++i) {
            const Band& band = bands_[i];
            const ReportBlock& head = heads_[static_cast<std::size_t>(band.group)];
            if (count == 0 || (y + needed(i, group, gap) > bottom_ && y > firstTop())) {
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
