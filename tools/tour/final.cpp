// The tour's Final Quiz: every step that it draws from, to its end.

#include "platform/desktop/controls.h"
#include "tools/tour/guide.h"

namespace tools {

namespace {

constexpr int finalUnit = 1;
constexpr int rowBeforeTheFinal = 19;
const QString courseStore = QStringLiteral("D:\\tovalin.mdb");

/// The questions of one step of the Final in the order in which they are asked.
struct Questions {
    QStringList right;   // a1
    QStringList second;  // a2
};

Questions questionsOf(const TourGuide& guide, const QString& record) {
    const QString sql =
        QStringLiteral("Select * from quiz_data_New3 where recordno=%1 order by orderno").arg(record);
    return {guide.column(courseStore, sql, QStringLiteral("a1")),
            guide.column(courseStore, sql, QStringLiteral("a2"))};
}

QString caption(const TourGuide& guide, const char* array, int index) {
    return guide.as<platform::Label>(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index)).caption();
}

void pickOneOfTwo(TourGuide& guide, const Questions& questions) {
    for (int i = 0; i < questions.right.size(); ++i)
        guide.click(caption(guide, "lblWord2", i) == questions.right[i] ? QStringLiteral("lblWord2")
                                                                        : QStringLiteral("lblWord3"),
                    i);
}

void fillFromThePool(TourGuide& guide, const Questions& questions) {
    for (const QString& answer : questions.right) {
        int place = 0;
        while (caption(guide, "lblWord3", place) != answer)
            ++place;
        guide.click(QStringLiteral("lblWord3"), place);
    }
}

/// Corrects each sentence; the first one of the first such step is given wrong, to be told the right word.
void correctTheSentences(TourGuide& guide, const Questions& questions, bool firstWrong) {
    for (int i = 0; i < questions.second.size(); ++i) {
        guide.click(QStringLiteral("lblWord2"), 0);
        guide.control(QStringLiteral("txtWord")).setFocus();
        if (firstWrong && i == 0) {
            guide.type(QStringLiteral("oops"));
            guide.pictureNextBox(QStringLiteral("final-a-wrong-word"));
        } else {
            guide.type(questions.second[i]);
        }
        guide.press(Qt::Key_Return);
    }
}

/// The step before the Final, whose Next announces it.
void passTheStepBefore(TourGuide& guide) {
    guide.click(QStringLiteral("lblTopic"), finalUnit - 1);
    guide.click(QStringLiteral("lblTitle"), rowBeforeTheFinal - 1);
    guide.await(QStringLiteral("frmQuiz4"));
    correctTheSentences(guide, questionsOf(guide, QStringLiteral("19")), false);
    guide.pictureNextBox(QStringLiteral("next-lesson-asked"));
    guide.pictureNextBox(QStringLiteral("final-announced"));
    guide.click(QStringLiteral("picNext"));
}

}  // namespace

void walkAFinal(TourGuide& guide) {
    guide.await(QStringLiteral("frmTable"));
    passTheStepBefore(guide);

    guide.await(QStringLiteral("frmQuiz"));
    guide.picture(QStringLiteral("final-first-step"));
    pickOneOfTwo(guide, questionsOf(guide, QStringLiteral("16")));
    guide.click(QStringLiteral("picQuiz"));

    guide.await(QStringLiteral("frmQuiz11"));
    fillFromThePool(guide, questionsOf(guide, QStringLiteral("17")));
    guide.picture(QStringLiteral("final-second-step-filled"));
    guide.click(QStringLiteral("picQuiz"));

    guide.await(QStringLiteral("frmQuiz4"));
    correctTheSentences(guide, questionsOf(guide, QStringLiteral("18")), true);
    guide.waitUntil(
        [&] {
            return guide.as<platform::Label>(QStringLiteral("lblTopic"))
                .caption()
                .endsWith(QStringLiteral("19"));
        },
        QStringLiteral("the last step"));
    guide.await(QStringLiteral("frmQuiz4"));
    guide.pictureNextBox(QStringLiteral("final-completed"));
    correctTheSentences(guide, questionsOf(guide, QStringLiteral("19")), false);

    guide.await(QStringLiteral("frmTable"));
    guide.picture(QStringLiteral("final-score-in-the-table"));
}

}  // namespace tools
