// What a learner has to type into the boxes of a drill.

#include "catalogue/steps.h"
#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace tools::check {

namespace {

/// Visits each row of each drill page with the answer that its box asks for.
template <typename Visit>
void eachAnswer(const Course& course, Visit visit) {
    const auto page = [&](const DrillShape& shape, int record) {
        for (const DrillRow* row : course.of(record).drill) {
            const bool listed = shape.listFrom != 0 && row->order.value_or(0) >= shape.listFrom;
            const std::size_t field = listed ? 1 : static_cast<std::size_t>(shape.answer);
            visit(shape, *row, field == 1 ? "word1" : "word2", row->word[field]);
        }
    };
    for (const Step& step : course.steps) {
        const DrillShape* shape = drillOfStep(step.form, step.record.value_or(0));
        if (shape == nullptr || course.step(step.record) != &step)
            continue;
        page(*shape, *step.record);
        if (step.form == QStringLiteral("frmLesson2"))
            page(*findDrillShape(QStringLiteral("frmLesson2_2")), catalogue::secondPageRows);
    }
}

void answerMissing(const Course& course, Findings& findings) {
    eachAnswer(course, [&](const DrillShape&, const DrillRow& row, const char* field, const QString& answer) {
        if (folded(answer).isEmpty())
            findings.add(row.at(field), QStringLiteral("the box has no right word"),
                         QStringLiteral("the answer"));
    });
}

void answerApostrophe(const Course& course, Findings& findings) {
    eachAnswer(course, [&](const DrillShape&, const DrillRow& row, const char* field, const QString& answer) {
        if (answer.contains(u'\''))
            findings.add(row.at(field), QStringLiteral("an apostrophe typed into a drill ends the program"),
                         QStringLiteral("an answer without an apostrophe"));
    });
}

void answerTypable(const Course& course, Findings& findings) {
    eachAnswer(course, [&](const DrillShape&, const DrillRow& row, const char* field, const QString& answer) {
        if (!isTypable(answer))
            findings.add(
                row.at(field),
                QStringLiteral("'%1' cannot be typed into a box, which takes Latin letters").arg(answer),
                QStringLiteral("an English answer"));
        else if (answer != answer.simplified())
            findings.add(row.at(field),
                         QStringLiteral("'%1' has blanks that nobody sees, and is never right").arg(answer),
                         QStringLiteral("'%1'").arg(answer.simplified()));
    });
}

/// Words that are right wherever they stand: a second one of the same text can never be marked.
void listedTwice(const Course& course, Findings& findings) {
    QSet<std::pair<const DrillShape*, QString>> seen;
    eachAnswer(course, [&](const DrillShape& shape, const DrillRow& row, const char* field,
                           const QString& answer) {
        if (shape.listFrom == 0 || folded(answer).isEmpty())
            return;
        const std::pair<const DrillShape*, QString> key(&shape, folded(answer));
        if (seen.contains(key) && row.order.value_or(0) >= shape.listFrom)
            findings.add(row.at(field),
                         QStringLiteral("'%1' is in the list already, and only its first row can be right")
                             .arg(answer),
                         QStringLiteral("a word that no other row has"));
        seen.insert(key);
    });
}

bool isRecalledSet(const DrillShape& shape) {
    return shape.form == "frmLesson2" || shape.form == "frmLesson2_2";
}

void setTwice(const Course& course, Findings& findings) {
    QSet<std::pair<const DrillShape*, QString>> seen;
    eachAnswer(course,
               [&](const DrillShape& shape, const DrillRow& row, const char* field, const QString& answer) {
                   if (!isRecalledSet(shape) && shape.form != "frmLesson17")
                       return;
                   const std::pair<const DrillShape*, QString> key(&shape, folded(answer));
                   if (seen.contains(key))
                       findings.add(row.at(field), QStringLiteral("'%1' is asked twice").arg(answer),
                                    QStringLiteral("a word that no other row has"));
                   seen.insert(key);
               });
}

/// The first row's answer is read off the second.
void promptTwice(const Course& course, Findings& findings) {
    QSet<std::pair<int, QString>> seen;
    eachAnswer(course, [&](const DrillShape& shape, const DrillRow& row, const char*, const QString&) {
        const bool prompted =
            shape.prompt != 0 && (shape.lastPrompted == 0 || row.order <= shape.lastPrompted);
        if (!prompted || folded(row.word[1]).isEmpty())
            return;
        const std::pair key(row.record.value_or(0), folded(row.word[1]));
        if (seen.contains(key))
            findings.add(row.at("word1"), QStringLiteral("'%1' prompts another box already").arg(row.word[1]),
                         QStringLiteral("a prompt that no other row has"));
        seen.insert(key);
    });
}

void setCapital(const Course& course, Findings& findings) {
    eachAnswer(
        course, [&](const DrillShape& shape, const DrillRow& row, const char* field, const QString& answer) {
            if (isRecalledSet(shape) && answer != answer.toLower())
                findings.add(
                    row.at(field),
                    QStringLiteral("'%1' shows red after a check even where it was typed right").arg(answer),
                    QStringLiteral("'%1'").arg(answer.toLower()));
        });
}

void studiedOther(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (step.form == QStringLiteral("frmLesson11"))
            for (const DrillRow* row : course.of(step.record).drill)
                if (row->word[1] != row->word[2])
                    findings.add(row->at("word2"),
                                 QStringLiteral("the box shows '%1' for study and then asks '%2'")
                                     .arg(row->word[1], row->word[2]),
                                 QStringLiteral("the same text in word1 and word2"));
}

// The prompts of the pronoun table stand on the screen.
constexpr std::array pronouns{"my",   "me",     "mine",  "your", "you",    "yours", "his", "him",  "his",
                              "her",  "her",    "hers",  "its",  "it",     "our",   "us",  "ours", "their",
                              "them", "theirs", "whose", "whom", "whose",  "his",   "him", "his",  "her",
                              "her",  "hers",   "their", "them", "theirs", "your",  "you", "yours"};

void pronounTable(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        if (step.form != QStringLiteral("frmLesson4"))
            continue;
        std::size_t place = 0;
        for (const DrillRow* row : course.of(step.record).drill) {
            if (place == pronouns.size())
                break;
            const QString fixed = QLatin1String(pronouns[place++]);
            if (folded(row->word[1]) != fixed)
                findings.add(
                    row->at("word1"),
                    QStringLiteral("'%1' stands in the box of another pronoun").arg(row->word[1]),
                    QStringLiteral("'%1', which the fixed prompts of the screen ask for").arg(fixed));
        }
    }
}

constexpr std::array rules{
    Rule{"drill-answer-missing", Severity::Error, "every box has an answer", answerMissing},
    Rule{"drill-apostrophe", Severity::Error, "no drill answer holds an apostrophe", answerApostrophe},
    Rule{"drill-answer-typable", Severity::Error, "drill answers can be typed and have no stray blanks",
         answerTypable},
    Rule{"drill-list-twice", Severity::Error, "words asked in any order are all different", listedTwice},
    Rule{"drill-set-twice", Severity::Warning, "no word is asked twice in a drill of words", setTwice},
    Rule{"drill-prompt-twice", Severity::Warning, "no prompt stands twice in a drill", promptTwice},
    Rule{"drill-set-capital", Severity::Warning, "words of the set drills are written small", setCapital},
    Rule{"drill-studied-other", Severity::Warning, "the comparison drill asks what it showed", studiedOther},
    Rule{"drill-pronouns", Severity::Error, "the pronoun drill follows the prompts of its screen",
         pronounTable},
};

}  // namespace

std::span<const Rule> drillAnswerRules() {
    return rules;
}

}  // namespace tools::check
