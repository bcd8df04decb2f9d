#include "tools/media/video_texts.h"

#include <algorithm>
#include <map>

namespace tools {

namespace {

std::map<int, QString> unitTitles(const CourseSource& course) {
    std::map<int, QString> titles;
    for (const auto* topics : course.named(QStringLiteral("topic")))
        for (const TableRow& row : topics->table.rows)
            titles[topics->table.field(row, QStringLiteral("topicno")).toInt()] =
                topics->table.field(row, QStringLiteral("Title"));
    return titles;
}

}  // namespace

std::vector<VideoText> videoTexts(const CourseSource& course) {
    struct Entry {
        VideoText text;
        int topicNo = 0;
    };
    std::vector<Entry> entries;
    std::map<int, int> videosOfUnit;
    for (const auto* tips : course.named(QStringLiteral("tovalin1_gram_tip"))) {
        const TableFile& table = tips->table;
        for (const TableRow& row : table.rows) {
            const int number = table.field(row, QStringLiteral("autono")).toInt();
            if (number <= 0)
                continue;
            entries.push_back({{number, {}, table.field(row, QStringLiteral("tips"))}, tips->topicNo});
            ++videosOfUnit[tips->topicNo];
        }
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.text.number < b.text.number; });
    std::map<int, QString> titles = unitTitles(course);
    std::map<int, int> counted;
    std::vector<VideoText> texts;
    for (Entry& entry : entries) {
        entry.text.title = titles[entry.topicNo];
        if (videosOfUnit[entry.topicNo] > 1)
            entry.text.title += QStringLiteral(" %1").arg(++counted[entry.topicNo]);
        texts.push_back(std::move(entry.text));
    }
    return texts;
}

}  // namespace tools
