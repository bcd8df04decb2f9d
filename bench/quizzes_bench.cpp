// What a learner waits for in a quiz: the next question after the last key of an answer, a Final Quiz drawn
// out of ever larger master stores, and the shuffle of a full table beside writing its numbers once.

#include "core/stores.h"
#include "course/preparation.h"
#include "course/shuffle.h"
#include "tests/support/desk.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace {

using support::courseStore;
using support::Desk;
using support::masterStore;

constexpr int rowCount = 15;

using Seconds = std::chrono::duration<double>;

/// Times each round by itself, so that the median can be told and not only the mean.
class Stopwatch {
   public:
    template <typename Work>
    double time(Work work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const double seconds = Seconds(std::chrono::steady_clock::now() - start).count();
        rounds_.push_back(seconds);
        return seconds;
    }
    double median() {
        const auto middle = rounds_.begin() + static_cast<std::ptrdiff_t>(rounds_.size() / 2);
        std::nth_element(rounds_.begin(), middle, rounds_.end());
        return *middle;
    }

   private:
    std::vector<double> rounds_;
};

void layQuestions(Desk& desk) {
    desk.session.topicNo = 1;
    desk.session.recordNo = 122;
    desk.session.stepType = QStringLiteral("Quiz");
    for (int i = 0; i < rowCount; ++i)
        desk.exec(courseStore,
                  "insert into quiz_data_New3(topicno,recordno,q1,q2,q3,q4,q5,a1,a2) values "
                  "(1,122,'the sofa / is / more / comfortable','이 소파가 더 편하다.','1','one','two','It is "
                  "right.','')");
}

/// One answer, from its last key to the next question painted.
void answerAndPaint(core::Screen* screen) {
    auto& box = support::find<platform::TextBox>(screen, QStringLiteral("txtWord"));
    QTest::keyClick(&box, Qt::Key_Return);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void runAnswers(benchmark::State& state, const char* typed) {
    Desk desk;
    layQuestions(desk);
    core::Screen* screen = desk.open(QStringLiteral("frmQuiz6"));
    auto& box = support::find<platform::TextBox>(screen, QStringLiteral("txtWord"));
    auto& begin = support::find<QWidget>(screen, QStringLiteral("picBegin"));
    Stopwatch watch;
    int answered = 0;
    for (auto _ : state) {
        // The last question ends the quiz; the timing is of those before it.
        if (++answered % rowCount == 0) {
            box.setText(QLatin1String(typed));
            answerAndPaint(screen);
            support::click(begin);
            ++answered;
        }
        box.setText(QLatin1String(typed));
        support::settle();
        state.SetIterationTime(watch.time([&] { answerAndPaint(screen); }));
    }
    state.counters["median_ms"] = watch.median() * 1000;
}

void RightAnswerToNextQuestionPainted(benchmark::State& state) {
    runAnswers(state, "It is right.");
}
BENCHMARK(RightAnswerToNextQuestionPainted)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);

void WrongAnswerToNextQuestionPainted(benchmark::State& state) {
    runAnswers(state, "It is wrong.");
}
BENCHMARK(WrongAnswerToNextQuestionPainted)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);

/// Ten questions a step, as many steps as the rows make, and one unit of twenty quiz steps with its Final.
void fillCourse(const Desk& desk, std::int64_t rows) {
    desk.exec(masterStore,
              "with recursive n(i) as (select 0 union all select i+1 from n where i<" +
                  std::to_string(rows - 1) +
                  ") insert into tovalin1_quiz_data(topicno,recordno,orderno,q1,q2,q3,a1,a2,autono) "
                  "select 1, i/10, i%10+1, 'question', 'yes', 'no', 'yes', '', i from n");
    desk.exec(courseStore,
              "with recursive n(i) as (select 1 union all select i+1 from n where i<20) "
              "insert into tablework(recordno,topicno,pageno,Type,Title,wordno,useform,quizno) "
              "select i+40,7,i,'Quiz','t',0,'frmQuiz7',10 from n");
}

void AssembleFinal(benchmark::State& state) {
    Desk desk;
    fillCourse(desk, state.range(0));
    desk.session.recordNo = 61;
    desk.session.topicNo = 7;
    for (auto _ : state)
        course::PrepareFinalData(desk.context());
}
BENCHMARK(AssembleFinal)->Arg(1000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);

/// The same hundred questions by statements alone.
void AssembleFinalPlainSqlite(benchmark::State& state) {
    Desk desk;
    fillCourse(desk, state.range(0));
    const std::string file = desk.file(courseStore).toStdString();
    const std::string master = desk.file(masterStore).toStdString();
    for (auto _ : state) {
        SQLite::Database course(file, SQLite::OPEN_READWRITE);
        SQLite::Database content(master, SQLite::OPEN_READONLY);
        SQLite::Transaction transaction(course);
        course.exec("delete from tablework_Final; delete from quiz_data_New3");
        course.exec(
            "insert into tablework_Final(recordno,topicno,pageno,Type,Title,useform,quizno) "
            "select recordno,topicno,pageno,Type,Title,useform,quizno from tablework where topicno=7");
        SQLite::Statement read(content,
                               "select topicno,recordno,orderno,q1,q2,q3,a1,a2 from tovalin1_quiz_data "
                               "where recordno=? and orderno=?");
        SQLite::Statement write(course,
                                "insert into quiz_data_New3(topicno,recordno,orderno,q1,q2,q3,a1,a2) "
                                "values (?,?,?,?,?,?,?,?)");
        for (int item = 0; item < 100; ++item) {
            read.bind(1, 41 + item / 5);
            read.bind(2, item % 5 + 1);
            read.executeStep();
            for (int i = 0; i < 8; ++i)
                write.bind(i + 1, read.getColumn(i).getString());
            write.exec();
            write.reset();
            read.reset();
        }
        transaction.commit();
    }
}
BENCHMARK(AssembleFinalPlainSqlite)->Arg(1000)->Arg(1000000)->Unit(benchmark::kMillisecond);

void writeNumbersOnce(SQLite::Database& store) {
    SQLite::Transaction transaction(store);
    SQLite::Statement update(store, "update quiz_data_New3 set orderno=? where _rowid_=?");
    for (int row = 1; row <= rowCount; ++row) {
        update.bind(1, row);
        update.bind(2, row);
        update.exec();
        update.reset();
    }
    transaction.commit();
}

void ShuffleFifteenRows(benchmark::State& state) {
    Desk desk;
    layQuestions(desk);
    const platform::Database course = core::openCourse(desk.context());
    SQLite::Database plain(desk.file(courseStore).toStdString(), SQLite::OPEN_READWRITE);
    Stopwatch shuffles;
    Stopwatch writes;
    for (auto _ : state) {
        state.SetIterationTime(shuffles.time([&] {
            platform::Recordset rows = course.openRecordset(QStringLiteral("Select * from quiz_data_new3"));
            platform::Transaction transaction(course);
            for (; !rows.eof(); rows.moveNext()) {
                rows.edit();
                rows.set(QStringLiteral("orderno"), 0);
                rows.update();
            }
            course::shuffleRows(desk.context(), rows, QStringLiteral("orderno"), rowCount,
                                QStringLiteral("topicno=1 and recordno=122 and "));
            transaction.commit();
        }));
        writes.time([&] { writeNumbersOnce(plain); });
    }
    state.counters["times_writing_once"] = shuffles.median() / writes.median();
}
BENCHMARK(ShuffleFifteenRows)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
