// The ways out of a drill: from each of its states, and what each leaves open.

#include "catalogue/drills.h"
#include "lessons/drill_screen.h"
#include "platform/desktop/timer.h"
#include "tests/lessons/drill_desk.h"
#include "tests/support/recorder.h"

#include <QPointer>

#include <gtest/gtest.h>

using namespace lessons_test;
using support::scoreStore;

namespace {

/// A drill on any row of the catalogue that notes which sets stand open when a leaving routine is done.
class Watched final : public lessons::DrillScreen {
   public:
    Watched(core::Context& context, const catalogue::Drill& drill, QStringList& leftOpen)
        : DrillScreen(context, drill), leftOpen_(leftOpen) {}

    QStringList openSets() const {
        QStringList names;
        const auto add = [&](const char* name, const lessons::Recordset& rows) {
            if (rows.isOpen())
                names.append(QString::fromUtf8(name));
        };
        add("tipRs", tipRs);
        add("tip2Rs", tip2Rs);
        add("basicRs", basicRs);
        add("blankRs", blankRs);
        return names;
    }

   protected:
    void closeRecordsets() override {
        DrillScreen::closeRecordsets();
        leftOpen_ = openSets();
    }
    void closeRecordsetsForNo() override {
        DrillScreen::closeRecordsetsForNo();
        leftOpen_ = openSets();
    }
    void closeRecordsetsForPre() override {
        DrillScreen::closeRecordsetsForPre();
        leftOpen_ = openSets();
    }

   private:
    QStringList& leftOpen_;
};

/// A drill that stands alone, the screens that follow it only asked for.
struct Stage {
    explicit Stage(const QString& screen) : desk(screen) {
        desk.session.hasWords = QStringLiteral("YES");
        form = new Watched(context, desk.drill(), leftOpen);
        form->show();
        const auto& timer = support::find<platform::Timer>(form, QStringLiteral("TimerGo"));
        support::waitFor([&] { return !timer.enabled() || !desk.failure().isEmpty(); });
    }
    ~Stage() {
        if (form != nullptr)
            form->unload();
        support::settle();
    }
    void press(const char* button) const {
        support::click(support::find<PictureButton>(form, QString::fromUtf8(button)));
    }
    TextBox& box(int index) const {
        return support::find<TextBox>(form, QStringLiteral("txtWord(%1)").arg(index));
    }

    DrillDesk desk;
    support::RecordingNavigator navigator;
    core::Context context = support::contextWith(desk, navigator);
    QStringList leftOpen;
    QPointer<Watched> form;
};

enum class State { Study, Typing, Review, Done };

void bring(Stage& stage, State state) {
    if (state == State::Study)
        return;
    stage.press("picBegin");
    if (state == State::Typing)
        return;
    const QStringList words = stage.desk.rightWords();
    for (int i = state == State::Review ? 1 : 0; i < words.size(); ++i)
        stage.box(i).setText(words[i]);
    stage.press("picQuiz");
}

struct Way {
    const char* button;
    const char* next;
};

constexpr std::array ways{Way{"picNext", "frmTable"}, Way{"picTable", "frmTable"}, Way{"picPre", "frmVoca2"},
                          Way{"picExit", ""}};

class LeavingDrill : public ::testing::TestWithParam<State> {};

QStringList names(const char* joined) {
    return QString::fromUtf8(joined).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

TEST_P(LeavingDrill, WorksByEveryButtonAndStoresOnlyAFinishedDrill) {
    for (const Way& way : ways) {
        Stage stage(QStringLiteral("frmLesson"));
        bring(stage, GetParam());
        stage.desk.boxes.answers = {false};
        stage.press(way.button);
        EXPECT_EQ(stage.navigator.screens(), names(way.next)) << way.button;
        EXPECT_EQ(stage.navigator.ended, *way.next == '\0') << way.button;
        EXPECT_TRUE(stage.leftOpen.isEmpty()) << way.button;
        EXPECT_EQ(stage.desk.rows(scoreStore, "SELECT s4 FROM score").size(),
                  GetParam() == State::Done ? 1 : 0)
            << way.button;
        EXPECT_EQ(stage.desk.failure(), QString()) << way.button;
    }
}

INSTANTIATE_TEST_SUITE_P(States, LeavingDrill,
                         ::testing::Values(State::Study, State::Typing, State::Review, State::Done));

TEST(LeavingADrill, KeepsASetOpenOnTwoScreensOnTheWaysThatDo) {
    struct Known {
        const char* screen;
        const char* opened;
        const char* afterNo;
        const char* afterPre;
    };
    constexpr const char* all = "tipRs tip2Rs basicRs blankRs";
    for (const Known& known :
         {Known{"frmLesson", all, "", ""}, Known{"frmLesson2", all, "", ""},
          Known{"frmLesson2_2", "tip2Rs basicRs blankRs", "", ""}, Known{"frmLesson3", "tipRs", "", ""},
          Known{"frmLesson3_2", all, "blankRs", ""}, Known{"frmLesson4", all, "blankRs", "blankRs"},
          Known{"frmLesson7", all, "", ""}, Known{"frmLesson8", all, "", ""},
          Known{"frmLesson9", all, "", ""}, Known{"frmLesson10", all, "", ""},
          Known{"frmLesson11", all, "", ""}, Known{"frmLesson17", all, "", ""},
          Known{"frmLesson18", all, "", ""}, Known{"frmLesson18_2", "basicRs blankRs", "", ""},
          Known{"frmLesson24", all, "", ""}}) {
        for (const Way& way : ways) {
            Stage stage(QString::fromUtf8(known.screen));
            EXPECT_EQ(stage.form->openSets(), names(known.opened)) << known.screen;
            const bool no = way.button == std::string("picNext");
            if (no && *stage.desk.drill().nextScreen != '\0')
                continue;
            stage.desk.boxes.answers = {false};
            stage.press(way.button);
            const char* left = no ? known.afterNo : way.button == std::string("picPre") ? known.afterPre : "";
            EXPECT_EQ(stage.leftOpen, names(left)) << known.screen << " by " << way.button;
        }
    }
}
