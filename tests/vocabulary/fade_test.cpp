#include "vocabulary/fade.h"

#include "tests/support/desk.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProxyStyle>

namespace {

class StillStyle : public QProxyStyle {
   public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

int children(const QWidget& window) {
    return static_cast<int>(window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size());
}

}  // namespace

TEST(Fade, HidesTheControlAtOnceAndItsPictureSoonAfter) {
    QWidget window;
    QLabel control(QStringLiteral("leaf"), &window);
    window.show();
    vocabulary::fadeAway(control);
    EXPECT_TRUE(control.isHidden());
    EXPECT_EQ(children(window), 2);
    EXPECT_TRUE(support::waitFor([&] { return children(window) == 1; }));
}

TEST(Fade, LeavesNoPictureWhereAnimationsAreTurnedOff) {
    StillStyle still;
    QWidget window;
    QLabel control(QStringLiteral("leaf"), &window);
    control.setStyle(&still);
    window.show();
    vocabulary::fadeAway(control);
    EXPECT_TRUE(control.isHidden());
    EXPECT_EQ(children(window), 1);
}

TEST(Fade, IsTakenAwayWhereSomethingElseComesInItsPlace) {
    QWidget window;
    QLabel control(QStringLiteral("leaf"), &window);
    window.show();
    vocabulary::fadeAway(control);
    vocabulary::endFades(window);
    EXPECT_EQ(children(window), 1);
    EXPECT_TRUE(control.isHidden());
}
