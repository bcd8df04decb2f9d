#include "tools/rules/figures.h"

#include "tools/english/english.h"
#include "tools/rules/sentences.h"

#include <QMap>
#include <QSet>

#include <algorithm>
#include <array>
#include <map>

namespace tools::check {

namespace {

constexpr std::array bands{
    LengthBand{1, 4, 4.0, 7.0},    LengthBand{5, 8, 5.5, 8.0},    LengthBand{9, 12, 6.0, 9.0},
    LengthBand{13, 17, 6.5, 10.0}, LengthBand{18, 24, 8.0, 12.0},
};

constexpr int wholeSentenceWords = 3;
constexpr qsizetype shownNouns = 15;

/// How a question is answered.
enum class Way { Click, Type, Correct };

Way wayOf(const QuizShape& shape) {
    if (shape.form == "frmQuiz4")
        return Way::Correct;
    const bool typed = shape.form == "frmQuiz2" || shape.form == "frmQuiz6" || shape.form == "frmQuiz9" ||
                       shape.form == "frmQuiz10";
    return typed ? Way::Type : Way::Click;
}

/// Whether the learner writes the sentence: all of it, or all but a word.
bool isWritten(const Sentence& sentence) {
    const bool typed = sentence.shape->form == "frmQuiz2" || sentence.shape->form == "frmQuiz6" ||
                       sentence.shape->form == "frmQuiz10";
    const qsizetype answer = englishWords(sentence.question->a1).size();
    return typed && sentence.isSentence() && answer >= wholeSentenceWords &&
           answer + 1 >= sentence.words.size();
}

/// What is counted for a unit, or for the whole course.
struct Figures {
    int questions = 0;
    std::map<Way, int> ways;
    int written = 0;
    int sentences = 0;
    qsizetype length = 0;
    QSet<QString> points;
    QSet<QString> words;
    QSet<QString> listed;
    QMap<QString, int> nouns;

    void add(const Sentence& sentence) {
        ++questions;
        ++ways[wayOf(*sentence.shape)];
        written += isWritten(sentence) ? 1 : 0;
        for (const QString& point : sentence.question->points())
            points.insert(point);
        if (sentence.isSentence()) {
            ++sentences;
            length += sentence.words.size();
        }
        QSet<QString> met;
        for (const QString& word : sentence.words) {
            words.insert(english::baseForm(word));
            if (english::canWearOut(word))
                met.insert(english::baseForm(word));
        }
        for (const QString& noun : met)
            ++nouns[noun];
    }
};

/// The nouns that stand in most questions, each with its number.
QStringList topNouns(const Figures& figures, qsizetype most) {
    std::vector<std::pair<int, QString>> counted;
    for (auto noun = figures.nouns.cbegin(); noun != figures.nouns.cend(); ++noun)
        counted.emplace_back(-*noun, noun.key());
    std::sort(counted.begin(), counted.end());
    QStringList top;
    for (const auto& [count, noun] : counted)
        if (top.size() < most)
            top.append(QStringLiteral("%1 %2").arg(noun).arg(-count));
    return top;
}

QString share(int part, int whole) {
    return QStringLiteral("%1%").arg(whole == 0 ? 0 : qRound(100.0 * part / whole));
}

QString line(const QString& name, const Figures& figures) {
    const auto way = [&](Way wanted) {
        const auto found = figures.ways.find(wanted);
        return share(found == figures.ways.end() ? 0 : found->second, figures.questions);
    };
    const double mean = figures.sentences == 0 ? 0 : static_cast<double>(figures.length) / figures.sentences;
    const QStringList cells{QString::number(figures.questions),
                            QString::number(figures.points.size()),
                            QString::number(mean, 'f', 1),
                            way(Way::Click),
                            way(Way::Type),
                            way(Way::Correct),
                            share(figures.written, figures.questions),
                            QString::number(figures.words.size()),
                            QString::number(figures.listed.size())};
    QString text = name.leftJustified(6);
    for (const QString& cell : cells)
        text += cell.rightJustified(10);
    return text + QStringLiteral("  ") + topNouns(figures, 3).join(QStringLiteral(", "));
}

QString heading() {
    QString text = QStringLiteral("unit  ");
    for (const char* column :
         {"questions", "points", "words", "click", "type", "correct", "written", "different", "in lists"})
        text += QString::fromLatin1(column).rightJustified(10);
    return text + QStringLiteral("  most frequent nouns");
}

}  // namespace

const LengthBand* lengthBand(int unit) {
    const auto band = std::find_if(bands.begin(), bands.end(), [&](const LengthBand& those) {
        return unit >= those.firstUnit && unit <= those.lastUnit;
    });
    return band == bands.end() ? nullptr : &*band;
}

QStringList figures(const Course& course) {
    std::map<int, Figures> units;
    Figures whole;
    for (const Sentence& sentence : sentencesOf(course)) {
        units[sentence.unit].add(sentence);
        whole.add(sentence);
    }
    for (const Word& word : course.words) {
        const Step* step = course.step(word.record);
        units[step == nullptr ? 0 : step->topic.value_or(0)].listed.insert(folded(word.word));
        whole.listed.insert(folded(word.word));
    }
    QStringList lines{heading()};
    for (const auto& [unit, those] : units)
        lines.append(line(QString::number(unit), those));
    lines.append(line(QStringLiteral("all"), whole));
    lines.append(QStringLiteral("nouns: ") + topNouns(whole, shownNouns).join(QStringLiteral(", ")));
    return lines;
}

}  // namespace tools::check
