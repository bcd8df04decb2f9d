// Saves scores one after the other and tells each on standard output once the save has returned: "step
// score". Arguments: the root of an install, the first step, the number of steps, and how often each is
// saved; 0 saves until the process is killed.

#include "course/score.h"
#include "course/score_store.h"
#include "tests/support/recorder.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 5)
        return 2;
    const int first = std::atoi(argv[2]);
    const int count = std::atoi(argv[3]);
    const int rounds = std::atoi(argv[4]);
    core::Session session;
    const platform::Drives drives{QString::fromLocal8Bit(argv[1])};
    const support::FakeSettings settings{};
    const support::FakeClock clock{};
    support::FakeRandom random;
    support::SoundList sound;
    support::MessageList boxes;
    support::RecordingNavigator navigator;
    const core::Context context{
        session, drives, settings, clock, random, sound, boxes, navigator, QStringLiteral("D:\\"), nullptr};
    session.userId = QStringLiteral("1001");
    session.programCode = QStringLiteral("Tovalin1");
    session.today = clock.day;
    session.stepType = QStringLiteral("Quiz");
    session.scoreSlot = 4;
    for (int round = 1; rounds == 0 || round <= rounds; ++round)
        for (int step = first; step < first + count; ++step) {
            session.recordNo = step;
            session.scoreValue = round % 32000;
            // As a step does before it starts: the kill may fall into that as well.
            course::requireWritableScores(context);
            course::SaveScore(context);
            char line[32];
            const int length = std::snprintf(line, sizeof line, "%d %d\n", step, round);
            if (write(STDOUT_FILENO, line, static_cast<std::size_t>(length)) != length)
                return 1;
        }
    return 0;
}
