// Instructions: one way to speak to the learner, and what the screen judges is said.

#include "tools/rules/quiz_visit.h"

#include <QMap>
#include <QRegularExpression>

namespace tools::check {

namespace {

/// Ways to end a Korean sentence, by how they address the reader.
enum class Manner { None, Formal, Polite, Written, Plain };

QString nameOf(Manner manner) {
    switch (manner) {
        case Manner::Formal: return QStringLiteral("-ㅂ니다, -하십시오");
        case Manner::Polite: return QStringLiteral("-아요, -하세요");
        case Manner::Written: return QStringLiteral("-하시오");
        default: return QStringLiteral("-다, -하라");
    }
}

Manner mannerOf(const QString& sentence) {
    static const QRegularExpression marks(QStringLiteral("[\\s.!?\"'”’]+$"));
    const QString end = QString(sentence).remove(marks);
    const auto ends = [&](std::initializer_list<const char16_t*> endings) {
        return std::any_of(endings.begin(), endings.end(),
                           [&](const char16_t* ending) { return end.endsWith(QString::fromUtf16(ending)); });
    };
    if (ends({u"십시오", u"십시요", u"니다", u"니까", u"십시다"}))
        return Manner::Formal;
    if (ends({u"요", u"죠"}))
        return Manner::Polite;
    if (ends({u"시오", u"하오"}))
        return Manner::Written;
    if (ends({u"다", u"라", u"자"}))
        return Manner::Plain;
    return Manner::None;
}

/// The sentences of an instruction without what stands in brackets.
QStringList sentencesIn(QString text) {
    static const QRegularExpression brackets(QStringLiteral("\\([^)]*\\)"));
    static const QRegularExpression ends(QStringLiteral("(?<=[.!?])\\s+"));
    return text.remove(brackets).split(ends, Qt::SkipEmptyParts);
}

template <typename Visit>
void eachInstruction(const Course& course, Visit visit) {
    for (const Step& step : course.steps) {
        visit(step, "guide", step.guide);
        visit(step, "guide2", step.guide2);
    }
}

void oneManner(const Course& course, Findings& findings) {
    QMap<Manner, int> counts;
    eachInstruction(course, [&](const Step&, const char*, const QString& text) {
        for (const QString& sentence : sentencesIn(text))
            ++counts[mannerOf(sentence)];
    });
    counts.remove(Manner::None);
    const auto most = std::max_element(counts.begin(), counts.end());
    if (most == counts.end())
        return;
    eachInstruction(course, [&](const Step& step, const char* field, const QString& text) {
        for (const QString& sentence : sentencesIn(text))
            if (const Manner manner = mannerOf(sentence); manner != Manner::None && manner != most.key()) {
                findings.add(
                    step.at(field),
                    QStringLiteral("'%1' addresses the learner with %2, and most instructions do with "
                                   "%3")
                        .arg(sentence, nameOf(manner), nameOf(most.key())),
                    QStringLiteral("one way to speak to the learner in the whole course"));
                break;
            }
    });
}

/// Slots of a pool fill in the order of the questions, which nothing else on the screen tells.
void poolOrder(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if ((step.form == QStringLiteral("frmQuiz11") || step.form == QStringLiteral("frmQuiz12")) &&
            !step.isFinal() && !step.guide.contains(QStringLiteral("순서")) &&
            !step.guide.contains(QStringLiteral("차례")))
            findings.add(step.at("guide"),
                         QStringLiteral("the answers are clicked in the order of the questions, and the "
                                        "instruction does not say so"),
                         QStringLiteral("a word such as '문제 순서대로' or '차례로'"));
}

/// A typed sentence is compared letter for letter.
void sentenceMarks(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (step.form == QStringLiteral("frmQuiz6") && !step.isFinal() &&
            !step.guide.contains(QStringLiteral("부호")))
            findings.add(step.at("guide"),
                         QStringLiteral("the final mark is judged, and the instruction does not say so"),
                         QStringLiteral("words such as '문장 부호까지'"));
}

constexpr std::array rules{
    Rule{"register", Severity::Warning, "all instructions address the learner in the same way", oneManner},
    Rule{"instruction-order", Severity::Warning,
         "a pool's instruction says in which order answers are clicked", poolOrder},
    Rule{"instruction-marks", Severity::Warning,
         "where a whole sentence is typed, the instruction asks for its "
         "final mark",
         sentenceMarks},
};

}  // namespace

std::span<const Rule> guideRules() {
    return rules;
}

}  // namespace tools::check
