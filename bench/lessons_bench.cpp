// How long a learner waits on a drill: from the click on a row of the course table to the drill painted, and
// from the click on Answer to the red words painted. Medians stand in counters, in milliseconds, since one
// slow flush to the disk must not blur what a learner meets as a rule.

#include "catalogue/drills.h"
#include "course/preparation.h"
#include "lessons/drill_maker.h"
#include "platform/desktop/controls.h"
#include "platform/desktop/timer.h"
#include "tests/support/desk.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;
using platform::PictureButton;
using platform::TextBox;

constexpr int step = 7;

class Medians {
   public:
    void add(std::chrono::duration<double, std::milli> time) { times_.push_back(time.count()); }
    double median() {
        std::sort(times_.begin(), times_.end());
        return times_.empty() ? 0 : times_[times_.size() / 2];
    }

   private:
    std::vector<double> times_;
};

/// A course of one unit with one drill step, its content in the master stores.
void layCourse(const support::Desk& desk, const catalogue::Drill& drill) {
    const std::string name = drill.name;
    desk.exec(support::courseStore,
              "BEGIN; INSERT INTO topic (topicno, Title) VALUES (1, 'unit');"
              "INSERT INTO tablework (recordno, topicno, pageno, Type, Title, Data, guide, wordno, useform, "
              "quizno) VALUES "
              "(7, 1, 1, 'Lesson', 'unit', 'drill', '', 0, '" +
                  name +
                  "', 0);"
                  "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" +
                  std::to_string(std::max(1, drill.ruleLines)) +
                  ") INSERT INTO gram_tip2 (topicno, recordno, orderno, tip2) SELECT 1, 7, i, 'rule' FROM n; "
                  "COMMIT");
    desk.exec(
        support::masterStore,
        "BEGIN; INSERT INTO tovalin1_gram_tip (recordno, topicno, tips, autono) VALUES (7, 1, 'tip', 1);"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" +
            std::to_string(drill.boxes) +
            ") INSERT INTO tovalin1_Basic_Data (topicno, recordno, orderno, word1, word2, word3, autono) "
            "SELECT 1, 7, i, 'word'||i, 'words'||i, '', i FROM n; COMMIT");
}

void paintAll() {
    support::settle();
}

void takeStep(support::Desk& desk) {
    desk.session.recordNo = step;
    desk.session.topicNo = 1;
    desk.session.hasWords = QStringLiteral("NO");
}

/// The time that the first tick of a drill's form takes: reading and writing the working tables, and filling
/// the controls.
std::chrono::duration<double, std::milli> timeFirstTick(support::Desk& desk, const catalogue::Drill& drill) {
    core::Screen* form = lessons::makeDrill(desk.context(), drill);
    auto& timer = support::find<platform::Timer>(form, QStringLiteral("TimerGo"));
    Clock::duration taken{};
    timer.onTick = [&, work = timer.onTick] {
        const auto start = Clock::now();
        work();
        taken = Clock::now() - start;
    };
    form->show();
    support::waitFor([&] { return !timer.enabled(); });
    form->unload();
    support::settle();
    return taken;
}

/// What a click on the row of the course table starts, to its end.
void startFromTable(support::Desk& desk) {
    QTest::mouseClick(&support::find<platform::Label>(desk.top(), QStringLiteral("lblRecordNo(0)")),
                      Qt::LeftButton);
}

/// The same without the video that some steps show first.
void startPastVideo(support::Desk& desk, const catalogue::Drill& drill) {
    takeStep(desk);
    course::PrepareStepData(desk.context());
    desk.screens().open(QString::fromUtf8(drill.name));
}

void RowClickToDrillPainted(benchmark::State& state, const char* name, bool fromTable) {
    const catalogue::Drill& drill = *catalogue::findDrill(name);
    support::Desk desk;
    layCourse(desk, drill);
    Medians total;
    Medians data;
    for (auto _ : state) {
        state.PauseTiming();
        desk.open(QStringLiteral("frmTable"));
        state.ResumeTiming();
        const auto start = Clock::now();
        if (fromTable)
            startFromTable(desk);
        else
            startPastVideo(desk, drill);
        desk.awaitScreen(QString::fromUtf8(name));
        total.add(Clock::now() - start);
        state.PauseTiming();
        desk.top()->unload();
        support::settle();
        const auto prepare = Clock::now();
        course::PrepareStepData(desk.context());
        const std::chrono::duration<double, std::milli> prepared = Clock::now() - prepare;
        data.add(prepared + timeFirstTick(desk, drill));
        state.ResumeTiming();
    }
    state.counters["median_ms"] = total.median();
    state.counters["data_ms"] = data.median();
    state.counters["data_share"] = data.median() / total.median();
}
BENCHMARK_CAPTURE(RowClickToDrillPainted, plurals_28_boxes, "frmLesson", false)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60);
BENCHMARK_CAPTURE(RowClickToDrillPainted, smallest_12_boxes, "frmLesson18", true)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60);
BENCHMARK_CAPTURE(RowClickToDrillPainted, largest_54_boxes, "frmLesson24", true)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60);

void AnswerClickToRedWordsPainted(benchmark::State& state) {
    const catalogue::Drill& drill = *catalogue::findDrill("frmLesson24");
    support::Desk desk;
    layCourse(desk, drill);
    takeStep(desk);
    course::PrepareStepData(desk.context());
    core::Screen* form = desk.open(QString::fromUtf8(drill.name));
    auto& begin = support::find<PictureButton>(form, QStringLiteral("picBegin"));
    auto& answer = support::find<PictureButton>(form, QStringLiteral("picQuiz"));
    Medians total;
    for (auto _ : state) {
        state.PauseTiming();
        support::click(begin);
        for (int i = 0; i < drill.boxes; ++i)
            support::find<TextBox>(form, QStringLiteral("txtWord(%1)").arg(i))
                .setText(QStringLiteral("wrong"));
        paintAll();
        state.ResumeTiming();
        const auto start = Clock::now();
        QTest::mouseClick(&answer, Qt::LeftButton);
        paintAll();
        total.add(Clock::now() - start);
    }
    state.counters["median_ms"] = total.median();
}
BENCHMARK(AnswerClickToRedWordsPainted)->Unit(benchmark::kMillisecond)->Iterations(100);

}  // namespace
