#include "platform/media/media_view.h"
#include "tools/tour/guide.h"

#include <QApplication>

namespace tools {

namespace {

constexpr qint64 firstSecond = 1000;  // milliseconds of a video until its first slide stands
const QString testWordStore = QStringLiteral("D:\\testword_2013.mdb");
const QString courseStore = QStringLiteral("D:\\tovalin.mdb");

void seeTheTable(TourGuide& guide) {
    guide.await(QStringLiteral("frmTable"));
    guide.picture(QStringLiteral("course-table"));
    guide.hover(QStringLiteral("picStudy"));
    guide.pictureNextBox(QStringLiteral("nothing-to-resume"));
    guide.click(QStringLiteral("picStudy"));
    guide.click(QStringLiteral("lblTopic"), 6);
    guide.click(QStringLiteral("picDown"));
    guide.picture(QStringLiteral("second-page-of-a-unit"));
    guide.click(QStringLiteral("lblTopic"), 0);
}

/// One word through the whole method: two copies, the vowels, the consonants, and once from memory.
void walkTheMethod(TourGuide& guide, const QString& word) {
    const QString vowels = QStringLiteral("aeiouy");
    guide.picture(QStringLiteral("spelling-copy"));
    guide.type(word);
    guide.type(word);
    guide.picture(QStringLiteral("spelling-vowels"));
    for (const QChar letter : word)
        if (vowels.contains(letter))
            guide.type(letter);
    guide.picture(QStringLiteral("spelling-consonants"));
    for (const QChar letter : word)
        if (!vowels.contains(letter) || letter == u'y')
            guide.type(letter);
    guide.picture(QStringLiteral("spelling-from-memory"));
    guide.type(word);
}

void spellTheWords(TourGuide& guide) {
    guide.click(QStringLiteral("lblTitle"), 0);
    guide.await(QStringLiteral("frmVoca2"));
    guide.picture(QStringLiteral("spelling-coach"));
    const QStringList words =
        guide.column(testWordStore, QStringLiteral("Select * from testword"), QStringLiteral("word"));
    guide.control(QStringLiteral("txtWord")).setFocus();
    guide.pictureNextBox(QStringLiteral("spelling-second-chance"));
    for (int miss = 0; miss < 2; ++miss) {
        guide.type(QStringLiteral("zzz"));
        guide.press(Qt::Key_Return);
    }
    walkTheMethod(guide, words[0]);
    for (qsizetype i = 1; i < words.size(); ++i) {
        if (i + 1 == words.size())
            guide.pictureNextBox(QStringLiteral("spelling-finished"));
        guide.type(words[i]);
        guide.press(Qt::Key_Return);
    }
    guide.click(QStringLiteral("picNext"));
}

void matchTheWords(TourGuide& guide) {
    guide.await(QStringLiteral("frmVoca3"));
    guide.picture(QStringLiteral("word-matching"));
    for (int page = 0; page < 2; ++page) {
        const QStringList places =
            guide.column(testWordStore,
                         QStringLiteral("Select * from testword6 where %1 order by orderno")
                             .arg(page == 0 ? QStringLiteral("orderno<=10") : QStringLiteral("orderno>10")),
                         QStringLiteral("orderno2"));
        for (int i = 0; i < places.size(); ++i) {
            if (page == 1 && i + 1 == places.size())
                guide.pictureNextBox(QStringLiteral("word-matching-score"));
            guide.click(QStringLiteral("lblWord"), i);
            guide.click(QStringLiteral("lblDefinition"), places[i].toInt() - 1);
            if (page == 0 && i == 3)
                guide.picture(QStringLiteral("word-matching-under-way"));
        }
        if (page == 0)
            guide.picture(QStringLiteral("word-matching-second-page"));
    }
    guide.click(QStringLiteral("picNext"));
}

void takeTheWordQuiz(TourGuide& guide) {
    guide.await(QStringLiteral("frmVoca4"));
    guide.click(QStringLiteral("picBegin"));
    guide.picture(QStringLiteral("word-quiz"));
    const QStringList words = guide.column(
        testWordStore, QStringLiteral("Select * from testword2 order by orderno"), QStringLiteral("word"));
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString number = QString::number(i + 1);
        guide.waitUntil([&] { return guide.as<QLabel>(QStringLiteral("lblNow")).text() == number; },
                        QStringLiteral("word ") + number);
        if (i + 1 == words.size())
            guide.pictureNextBox(QStringLiteral("word-quiz-score"));
        guide.type(words[i]);
    }
}

void watchTheVideo(TourGuide& guide) {
    guide.await(QStringLiteral("frmVideo2"));
    const auto& player = guide.as<platform::MediaView>(QStringLiteral("Web1"));
    guide.waitUntil([&] { return player.hasFailed() || player.position() > firstSecond; },
                    QStringLiteral("the video's first second"));
    guide.picture(QStringLiteral("video-playing"));
    guide.screen().close();
    guide.await(QStringLiteral("frmVideo_2014"));
    guide.picture(QStringLiteral("video-tips"));
    guide.click(QStringLiteral("picExit"));
}

/// Types a drill's answers box by box; the boxes named in `wrong` get something else.
void typeAnswers(TourGuide& guide, const QStringList& answers, const QList<int>& wrong) {
    for (int i = 0; i < answers.size(); ++i) {
        guide.control(QStringLiteral("txtWord(%1)").arg(i)).setFocus();
        guide.type(wrong.contains(i) ? QStringLiteral("oops") : answers[i]);
    }
}

void drillThePlurals(TourGuide& guide) {
    guide.await(QStringLiteral("frmLesson"));
    guide.picture(QStringLiteral("drill-study"));
    const QStringList answers = guide.column(
        courseStore, QStringLiteral("Select * from basic_Data order by orderno"), QStringLiteral("word2"));
    guide.click(QStringLiteral("picBegin"));
    typeAnswers(guide, answers, {3, 8, 20});
    guide.picture(QStringLiteral("drill-typed"));
    guide.pictureNextBox(QStringLiteral("drill-some-are-wrong"));
    guide.click(QStringLiteral("picQuiz"));
    guide.picture(QStringLiteral("drill-wrong-ones-in-red"));
    guide.click(QStringLiteral("picBegin"));
    for (const int box : {3, 8, 20}) {
        guide.type(answers[box]);
        guide.press(Qt::Key_Return);
    }
    guide.pictureNextBox(QStringLiteral("drill-completed"));
    guide.click(QStringLiteral("picQuiz"));
    guide.click(QStringLiteral("picTable"));
    guide.await(QStringLiteral("frmTable"));
    guide.picture(QStringLiteral("course-table-with-score"));
}

/// A step that is opened from the table, pictured, and left again.
void visit(TourGuide& guide, int unit, int row, const QString& screen, const QString& name) {
    guide.await(QStringLiteral("frmTable"));
    guide.click(QStringLiteral("lblTopic"), unit - 1);
    guide.click(QStringLiteral("lblTitle"), row - 1);
    if (screen.startsWith(QStringLiteral("frmLesson")))
        guide.passWordsAndVideo(screen);
    guide.await(screen);
    guide.picture(name);
}

void backToTable(TourGuide& guide) {
    guide.click(QStringLiteral("picTable"));
    guide.await(QStringLiteral("frmTable"));
}

/// A step to look at: its unit, its row there, the screen that it opens and the picture's name.
struct Stop {
    int unit;
    int row;
    const char* screen;
    const char* name;
};

void visitAll(TourGuide& guide, std::initializer_list<Stop> stops) {
    for (const Stop& stop : stops) {
        visit(guide, stop.unit, stop.row, QLatin1String(stop.screen), QLatin1String(stop.name));
        backToTable(guide);
    }
}

void seeTheQuizzes(TourGuide& guide) {
    visit(guide, 1, 2, QStringLiteral("frmQuiz"), QStringLiteral("quiz-pick-one-of-two"));
    guide.click(QStringLiteral("lblWord2"), 0);
    guide.pictureNextBox(QStringLiteral("quiz-wrong-picks"));
    guide.click(QStringLiteral("picQuiz"));
    guide.picture(QStringLiteral("quiz-answers-in-red"));
    backToTable(guide);
    visitAll(guide, {{1, 4, "frmQuiz2", "quiz-typed-table"},
                     {1, 7, "frmQuiz7", "quiz-click-the-word"},
                     {1, 8, "frmQuiz11", "quiz-pool"},
                     {1, 18, "frmQuiz4", "quiz-wrong-word"},
                     {2, 3, "frmQuiz5", "quiz-article-buttons"},
                     {3, 9, "frmQuiz9", "quiz-two-columns"},
                     {3, 12, "frmQuiz12", "quiz-pool-without-sound"},
                     {3, 13, "frmQuiz3", "quiz-two-picks"},
                     {3, 15, "frmQuiz10", "quiz-words-into-gaps"},
                     {3, 16, "frmQuiz8", "quiz-four-choices"},
                     {11, 8, "frmQuiz6", "quiz-whole-sentence"}});
}

void seeTheOtherDrills(TourGuide& guide) {
    visitAll(guide, {{1, 15, "frmLesson2", "drill-set"},
                     {2, 1, "frmLesson3_2", "drill-cloze"},
                     {3, 1, "frmLesson4", "drill-pronouns"},
                     {6, 1, "frmLesson24", "drill-numbers"},
                     {8, 1, "frmLesson9", "drill-adjectives"},
                     {11, 1, "frmLesson11", "drill-comparison"},
                     {16, 1, "frmLesson8", "drill-ing-forms"},
                     {17, 1, "frmLesson17", "drill-prepositions"}});
}

void seeVideosAndSheets(TourGuide& guide) {
    guide.click(QStringLiteral("picVideo"));
    guide.await(QStringLiteral("frmVideo"));
    guide.picture(QStringLiteral("video-menu"));
    guide.click(QStringLiteral("picExit"));
    guide.await(QStringLiteral("frmTable"));
    guide.click(QStringLiteral("picRepeat"));
    guide.await(QStringLiteral("frmWorkSheet"));
    guide.picture(QStringLiteral("worksheet-menu"));
    guide.click(QStringLiteral("lblTopic"), 0);
    for (const int lesson : {1, 2, 15, 17}) {
        guide.click(QStringLiteral("lblLessonNo"), lesson - 1);
        QWidget& sheet = guide.awaitWindow(QStringLiteral("frmReport"));
        guide.picture(QStringLiteral("worksheet-of-lesson-%1").arg(lesson));
        sheet.close();
        QCoreApplication::processEvents();
    }
    guide.click(QStringLiteral("picExit"));
    guide.await(QStringLiteral("frmTable"));
}

}  // namespace

const std::vector<TourChapter>& tourChapters() {
    static const std::vector<TourChapter> chapters{
        {"The course table", seeTheTable},       {"Spelling coach", spellTheWords},
        {"Word matching", matchTheWords},        {"Word quiz", takeTheWordQuiz},
        {"The step's video", watchTheVideo},     {"The drill", drillThePlurals},
        {"The quizzes", seeTheQuizzes},          {"A Final Quiz", walkAFinal},
        {"The other drills", seeTheOtherDrills}, {"Videos and worksheets", seeVideosAndSheets},
    };
    return chapters;
}

}  // namespace tools
