#include "platform/reports/data.h"
#include "platform/reports/paint.h"
#include "platform/reports/preview.h"
#include "tests/worksheets/sheet_desk.h"
#include "worksheets/worksheet_menu.h"

#include <benchmark/benchmark.h>

namespace {

using platform::Label;
using support::find;

/// An install whose unit 3 has one lesson of so many lines.
class LessonDesk {
   public:
    explicit LessonDesk(int lines) {
        installReports(desk);
        desk.exec(
            support::sheetStore,
            "insert into topic values(3,'대명사'); insert into "
            "tablework(recordno,topicno,pageno,Type,Title,guide2,"
            "wordno,usedata) values(40,3,1,'Quiz','대명사','빈칸에 알맞은 재귀대명사를 쓰십시오.',0,'YES')");
        std::string questions;
        for (int i = 1; i <= lines; ++i) {
            const std::string n = std::to_string(i);
            questions +=
                "insert into tovalin1_quiz_data(topicno,recordno,orderno,q1,a1,a2,autono) values(3,40," + n +
                ",'She looked at ____ in the mirror, number " + n + ". (거울)','herself',''," + n + ");";
        }
        desk.exec(support::masterStore, "begin;" + questions + "commit");
        desk.session.topicNo = 3;
        menu = static_cast<worksheets::WorksheetMenu*>(desk.open(QStringLiteral("frmWorkSheet")));
    }

    platform::ReportLayout layout() {
        const auto report =
            platform::readReportTemplate(desk.context().drives, sheetFolder + QStringLiteral("gram4.rpt"));
        return platform::layOutReport(report, platform::readReportData(desk.context().drives, report));
    }

    support::Desk desk;
    worksheets::WorksheetMenu* menu = nullptr;
};

/// From the click on a lesson's number until the first page is painted.
void clickToFirstPage(benchmark::State& state) {
    LessonDesk lesson(static_cast<int>(state.range(0)));
    auto& number = find<Label>(lesson.menu, QStringLiteral("lblLessonNo(0)"));
    for (auto _ : state) {
        QTest::mouseClick(&number, Qt::LeftButton);
        platform::ReportPreview* window = lesson.menu->report().window();
        benchmark::DoNotOptimize(find(window, QStringLiteral("reportSheet")).grab());
        state.PauseTiming();
        window->close();
        support::settle();
        state.ResumeTiming();
    }
}
BENCHMARK(clickToFirstPage)->Arg(15)->Arg(500)->UseRealTime()->Unit(benchmark::kMillisecond);

/// Reading the tables and laying all pages out.
void layOutPages(benchmark::State& state) {
    LessonDesk lesson(static_cast<int>(state.range(0)));
    QTest::mouseClick(&find(lesson.menu, QStringLiteral("lblLessonNo(0)")), Qt::LeftButton);
    for (auto _ : state)
        benchmark::DoNotOptimize(lesson.layout());
}
BENCHMARK(layOutPages)->Arg(15)->Arg(500)->UseRealTime()->Unit(benchmark::kMillisecond);

/// Pages a second into a PDF file.
void pagesToPdf(benchmark::State& state) {
    LessonDesk lesson(static_cast<int>(state.range(0)));
    QTest::mouseClick(&find(lesson.menu, QStringLiteral("lblLessonNo(0)")), Qt::LeftButton);
    const auto layout = lesson.layout();
    const QString file = lesson.desk.root() + QStringLiteral("/sheet.pdf");
    for (auto _ : state)
        if (!platform::writeReportPdf(file, layout).isEmpty())
            state.SkipWithError("the file was not written");
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(layout.pages.size()));
    state.counters["pages"] = static_cast<double>(layout.pages.size());
}
BENCHMARK(pagesToPdf)->Arg(15)->Arg(500)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
