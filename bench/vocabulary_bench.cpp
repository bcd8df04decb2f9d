// What a learner waits for on the word screens: the next letter box, the next word, and the lists that are
// made before the first word. The median of each wait is told beside its mean.

#include "core/stores.h"
#include "tests/vocabulary/word_desk.h"
#include "vocabulary/spelling.h"
#include "vocabulary/word_list.h"

#include <benchmark/benchmark.h>
#include <algorithm>
#include <chrono>

namespace {

constexpr int listedWords = 200;
constexpr int measuredWords = 120;

/// Times waits one by one, for a median.
class Waits {
   public:
    explicit Waits(benchmark::State& state) : state_(state) {}
    ~Waits() {
        if (waits_.empty())
            return;
        std::sort(waits_.begin(), waits_.end());
        state_.counters["median_ms"] = waits_[waits_.size() / 2] * 1000;
        state_.counters["worst_ms"] = waits_.back() * 1000;
    }
    template <typename Work>
    void time(Work work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> wait = std::chrono::steady_clock::now() - start;
        waits_.push_back(wait.count());
        state_.SetIterationTime(wait.count());
    }

   private:
    benchmark::State& state_;
    std::vector<double> waits_;
};

/// Lets everything that the event has asked for be painted.
void paint() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void RightLetterToNextBox(benchmark::State& state) {
    WordDesk desk(oneWord("responsibilitys", "책임"));
    core::Screen* form = desk.open(QStringLiteral("frmVoca2"));
    support::click(support::find(form, QStringLiteral("cmdPractice")));
    const char* letters = "responsibilitys";
    int at = 0;
    Waits waits(state);
    for (auto _ : state) {
        if (letters[at + 1] == '\0') {
            at = 0;
            box(form, "txtType1", 0).selectAndFocus();
            paint();
        }
        waits.time([&] {
            QTest::keyClick(form->focusWidget(), letters[at]);
            paint();
        });
        ++at;
    }
}
BENCHMARK(RightLetterToNextBox)->UseManualTime()->Iterations(1000)->Unit(benchmark::kMillisecond);

void LastLetterToNextWordOfTheCoach(benchmark::State& state) {
    WordDesk desk(manyWords(listedWords));
    core::Screen* form = desk.open(QStringLiteral("frmVoca2"));
    const QStringList words = desk.rows(support::testWordStore, "select word from testword");
    int at = 0;
    Waits waits(state);
    for (auto _ : state) {
        const QByteArray word = words[at].toLatin1();
        QByteArray vowels;
        QByteArray consonants;
        for (const char letter : word) {
            if (vocabulary::isVowel(QLatin1Char(letter)))
                vowels += letter;
            if (vocabulary::isConsonant(QLatin1Char(letter)))
                consonants += letter;
        }
        support::click(support::find(form, QStringLiteral("cmdPractice")));
        spell(form, (word + word + vowels + consonants + word.chopped(1)).constData());
        paint();
        waits.time([&] {
            QTest::keyClick(form->focusWidget(), word.back());
            paint();
        });
        if (label(form, "lblNow").caption() != QString::number(++at))
            state.SkipWithError("the next word did not come");
    }
}
BENCHMARK(LastLetterToNextWordOfTheCoach)
    ->UseManualTime()
    ->Iterations(measuredWords)
    ->Unit(benchmark::kMillisecond);

void LastLetterToNextWordOfTheQuiz(benchmark::State& state) {
    WordDesk desk(manyWords(listedWords));
    core::Screen* form = desk.open(QStringLiteral("frmVoca4"));
    support::click(support::find(form, QStringLiteral("picBegin")));
    const QStringList words =
        desk.rows(support::testWordStore, "select word from testword2 order by orderno");
    int at = 0;
    Waits waits(state);
    for (auto _ : state) {
        const QByteArray word = words[at].toLatin1();
        spell(form, word.chopped(1).constData());
        paint();
        const QString next = QString::number(++at + 1);
        waits.time([&] {
            QTest::keyClick(form->focusWidget(), word.back());
            while (label(form, "lblNow").caption() != next)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            paint();
        });
    }
}
BENCHMARK(LastLetterToNextWordOfTheQuiz)
    ->UseManualTime()
    ->Iterations(measuredWords)
    ->Unit(benchmark::kMillisecond);

void CoachList(benchmark::State& state) {
    WordDesk desk(manyWords(static_cast<int>(state.range(0))));
    const auto book = core::openWordBook(desk.context());
    const auto store = core::openTestWords(desk.context());
    for (auto _ : state) {
        vocabulary::emptyTable(store, QStringLiteral("testword"));
        auto words = book.openRecordset(QStringLiteral("Select * from word_book"));
        vocabulary::copyWords(words, store, QStringLiteral("testword"), vocabulary::isCoached);
    }
}
BENCHMARK(CoachList)->Arg(20)->Arg(listedWords)->Unit(benchmark::kMillisecond);

void MatchingListAndFirstPage(benchmark::State& state) {
    WordDesk desk(manyWords(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        desk.screens().open(QStringLiteral("frmVoca3"));
        while (desk.top() == nullptr || !shown(desk.top(), "picNext"))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.PauseTiming();
        desk.top()->unload();
        support::settle();
        state.ResumeTiming();
    }
}
BENCHMARK(MatchingListAndFirstPage)->Arg(20)->Arg(listedWords)->Unit(benchmark::kMillisecond);

void QuizListsAndFirstWord(benchmark::State& state) {
    WordDesk desk(manyWords(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        state.PauseTiming();
        core::Screen* form = desk.open(QStringLiteral("frmVoca4"));
        state.ResumeTiming();
        QTest::mouseClick(&support::find(form, QStringLiteral("picBegin")), Qt::LeftButton);
        paint();
        state.PauseTiming();
        form->unload();
        support::settle();
        state.ResumeTiming();
    }
}
BENCHMARK(QuizListsAndFirstWord)->Arg(20)->Arg(listedWords)->Unit(benchmark::kMillisecond);

}  // namespace
