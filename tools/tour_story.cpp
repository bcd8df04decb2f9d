#include "tools/tour_guide.h"

namespace tools {

namespace {

void seeTheTable(TourGuide& guide) {
    guide.await(QStringLiteral("frmTable"));
    guide.picture(QStringLiteral("course-table"));
    guide.hover(QStringLiteral("picStudy"));
    guide.picture(QStringLiteral("course-table-hover"));
    guide.pictureNextBox(QStringLiteral("nothing-to-resume"));
    guide.click(QStringLiteral("picStudy"));
    guide.click(QStringLiteral("lblTopic"), 6);
    guide.picture(QStringLiteral("unit-with-two-pages"));
    guide.click(QStringLiteral("picDown"));
    guide.picture(QStringLiteral("second-page"));
    guide.click(QStringLiteral("lblTopic"), 0);
}

}  // namespace

const std::vector<TourChapter>& tourChapters() {
    static const std::vector<TourChapter> chapters{
        {"The course table", seeTheTable},
    };
    return chapters;
}

}  // namespace tools
