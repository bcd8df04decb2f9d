// What the stores cost: saving a score durably, and preparing a step out of ever larger master stores.

#include "core/stores.h"
#include "course/preparation.h"
#include "course/score.h"
#include "course/walk.h"
#include "tests/support/desk.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

namespace {

using support::Desk;

void takeStep(Desk& desk, int recordNo) {
    desk.session.recordNo = recordNo;
    desk.session.topicNo = 1;
    desk.session.stepType = QStringLiteral("Quiz");
    desk.session.scoreSlot = 4;
}

/// Fills the master store with ten rows a step, as a course of that many rows would.
void fillMaster(const Desk& desk, std::int64_t rows) {
    desk.exec(support::masterStore,
              "with recursive n(i) as (select 0 union all select i+1 from n where i<" +
                  std::to_string(rows - 1) +
                  ") insert into tovalin1_quiz_data(topicno,recordno,orderno,q1,a1,a2,autono) "
                  "select 1, i/10, i%10+1, 'question', 'answer', '', i from n; "
                  "insert into tovalin1_Basic_Data(topicno,recordno,orderno,word1,word2,autono) "
                  "select topicno,recordno,orderno,'word','words',autono from tovalin1_quiz_data");
}

void SaveScoreProgram(benchmark::State& state) {
    Desk desk;
    takeStep(desk, 5);
    int score = 0;
    for (auto _ : state) {
        desk.session.scoreValue = ++score % 101;
        course::SaveScore(desk.context());
    }
}
BENCHMARK(SaveScoreProgram)->Unit(benchmark::kMicrosecond);

void SaveScorePlainSqlite(benchmark::State& state) {
    Desk desk;
    takeStep(desk, 5);
    course::SaveScore(desk.context());
    const std::string file = desk.file(support::scoreStore).toStdString();
    int score = 0;
    for (auto _ : state) {
        SQLite::Database store(file, SQLite::OPEN_READWRITE);
        store.exec("PRAGMA synchronous=EXTRA");
        SQLite::Statement update(
            store,
            "update score set vDate='2026-03-14', vtitle='', s4=? where studentno='1001' and "
            "program='Tovalin1' and recordno=5");
        update.bind(1, ++score % 101);
        update.exec();
    }
}
BENCHMARK(SaveScorePlainSqlite)->Unit(benchmark::kMicrosecond);

void PrepareStep(benchmark::State& state) {
    Desk desk;
    fillMaster(desk, state.range(0));
    takeStep(desk, 42);
    for (auto _ : state)
        course::PrepareStepData(desk.context());
}
BENCHMARK(PrepareStep)->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

void FindStep(benchmark::State& state) {
    Desk desk;
    desk.exec(
        support::courseStore,
        "with recursive n(i) as (select 1 union all select i+1 from n where i<" +
            std::to_string(state.range(0)) +
            ") insert into tablework(recordno,topicno,pageno,Type,Title) select i,1,i,'Quiz','t' from n");
    const auto course = core::openCourse(desk.context());
    for (auto _ : state) {
        auto steps = course.openRecordset(QStringLiteral("Select * from tablework"));
        steps.findFirst(QStringLiteral("recordno=%1").arg(state.range(0) - 7));
        benchmark::DoNotOptimize(steps.noMatch());
    }
}
BENCHMARK(FindStep)->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

void CheckCompleted(benchmark::State& state) {
    Desk desk;
    desk.exec(support::scoreStore, "with recursive n(i) as (select 1 union all select i+1 from n where i<" +
                                       std::to_string(state.range(0)) +
                                       ") insert into score(recordno,page2,studentno,program,s4) select "
                                       "i,i,'1001','Tovalin1',80 from n");
    for (auto _ : state)
        course::CheckQuizCompleted(desk.context());
}
BENCHMARK(CheckCompleted)->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMicrosecond);

}  // namespace
