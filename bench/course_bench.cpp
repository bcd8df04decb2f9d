// What the course tool costs: checking and building the starter course, and checking courses of up to a
// hundred times its size, which must grow with the rows and no faster.

#include "tools/rules/check.h"
#include "tools/setup/install.h"

#include <benchmark/benchmark.h>
#include <QTemporaryDir>

namespace {

using namespace tools;

QString starter() {
    return QStringLiteral(MENDORI_SOURCE "/starter");
}

constexpr int stepsPerCopy = 300;
constexpr int unitsPerCopy = 24;

/// Adds to the number in a column, where the table has one.
void shift(TableFile& table, const QString& column, int by) {
    const int index = table.column(column);
    for (TableRow& row : table.rows)
        if (index >= 0 && !row.fields[index].isEmpty())
            row.fields[index] = QString::number(row.fields[index].toInt() + by);
}

/// The starter course as often as told, each copy under numbers of its own.
CourseSource copies(std::int64_t count) {
    const CourseSource one = readCourse(starter());
    CourseSource all{one.folder, {}};
    for (int copy = 0; copy < count; ++copy)
        for (CourseSource::UnitTable unit : one.tables) {
            shift(unit.table, QStringLiteral("recordno"), copy * stepsPerCopy);
            shift(unit.table, QStringLiteral("recordno2"), copy * stepsPerCopy);
            shift(unit.table, QStringLiteral("topicno"), copy * unitsPerCopy);
            if (unit.topicNo > 0)
                unit.topicNo += copy * unitsPerCopy;
            all.tables.push_back(std::move(unit));
        }
    return all;
}

void CheckStarterCourseFromItsFiles(benchmark::State& state) {
    for (auto _ : state) {
        const BuiltCourse built(readCourse(starter()));
        const check::Course course(built.tables());
        benchmark::DoNotOptimize(check::checkCourse(course));
    }
}
BENCHMARK(CheckStarterCourseFromItsFiles)->Unit(benchmark::kMillisecond);

void CheckCopiesOfTheStarterCourse(benchmark::State& state) {
    const CourseSource source = copies(state.range(0));
    for (auto _ : state) {
        const BuiltCourse built(source);
        const check::Course course(built.tables());
        benchmark::DoNotOptimize(check::checkCourse(course));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(CheckCopiesOfTheStarterCourse)
    ->Arg(1)
    ->Arg(10)
    ->Arg(100)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

void BuildStarterCourse(benchmark::State& state) {
    for (auto _ : state) {
        const QTemporaryDir folder;
        InstallPlan plan;
        plan.root = folder.filePath(QStringLiteral("install"));
        plan.courseFolder = starter();
        benchmark::DoNotOptimize(makeStores(plan));
    }
}
BENCHMARK(BuildStarterCourse)->Unit(benchmark::kMillisecond);

}  // namespace
