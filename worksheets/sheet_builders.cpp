#include "worksheets/sheet_builders.h"

#include "platform/int16.h"
#include "platform/storage/recordset.h"

#include <algorithm>
#include <array>

namespace worksheets {

using catalogue::Builder;
using catalogue::builderOf;

using platform::Database;
using platform::Int16;
using platform::Recordset;
using platform::Value;

namespace {

constexpr int bankWords = 12;
const QString notGiven = QStringLiteral("Blank");
const QString allLines = QStringLiteral("Select * From tempword");
const QString allQuestions = QStringLiteral("Select * from quiz_data_new3");
const QString allDrillRows = QStringLiteral("Select * from basic_data");

/// A field and where its content comes from; without a source it is written empty.
struct FieldPair {
    const char* target;
    const char* source;
};

void setFields(Recordset& target, const Recordset& source, std::span<const FieldPair> fields) {
    for (const FieldPair& field : fields)
        target.set(QLatin1String(field.target),
                   field.source == nullptr ? Value(QString()) : source.value(QLatin1String(field.source)));
}

/// Adds a line for each question, its fields as told, and counts the lines.
void buildColumns(const Database& course, std::span<const FieldPair> fields) {
    Recordset lines = course.openRecordset(allLines);
    Int16 lineNo = 1;
    for (Recordset questions = course.openRecordset(allQuestions); !questions.eof(); questions.moveNext()) {
        lines.addNew();
        setFields(lines, questions, fields);
        lines.set(QStringLiteral("orderno"), lineNo);
        lines.update();
        ++lineNo;
    }
}

constexpr std::array threeColumns{FieldPair{"word1", "q1"}, FieldPair{"word2", "q2"},
                                  FieldPair{"word3", "q3"}, FieldPair{"word4", "a1"},
                                  FieldPair{"word5", "a2"}};
constexpr std::array twoColumns{FieldPair{"word1", "q1"}, FieldPair{"word2", "q2"},
                                FieldPair{"word3", nullptr}, FieldPair{"word4", "a1"},
                                FieldPair{"word5", "a2"}};
constexpr std::array oneColumn{FieldPair{"word1", "q1"}, FieldPair{"word2", nullptr},
                               FieldPair{"word3", nullptr}, FieldPair{"word4", "a1"},
                               FieldPair{"word5", "a2"}};
constexpr std::array swappedColumns{FieldPair{"word1", "q2"}, FieldPair{"word2", "q1"},
                                    FieldPair{"word3", nullptr}, FieldPair{"word4", "a1"},
                                    FieldPair{"word5", "a2"}};

/// Two source rows share one line, so that the sheet has two columns.
void buildTwoUp(const Database& course, const QString& source, const char* question, const char* answer) {
    const std::array left{FieldPair{"word1", question}, FieldPair{"word2", answer},
                          FieldPair{"word3", nullptr}, FieldPair{"word4", nullptr},
                          FieldPair{"word5", nullptr}};
    const std::array right{FieldPair{"word3", question}, FieldPair{"word4", answer}};
    Recordset lines = course.openRecordset(allLines);
    Int16 pairSlot = 1;
    Int16 pairNo = 1;
    for (Recordset rows = course.openRecordset(source); !rows.eof(); rows.moveNext()) {
        if (pairSlot == 1) {
            lines.addNew();
            setFields(lines, rows, left);
            lines.set(QStringLiteral("recordno"), pairNo);
            lines.set(QStringLiteral("orderno"), pairNo);
            lines.set(QStringLiteral("orderno2"), 0);
            lines.update();
            pairSlot = 2;
            continue;
        }
        lines.findFirst(QStringLiteral("recordno=%1").arg(pairNo));
        lines.edit();
        lines.set(QStringLiteral("orderno2"), pairNo);
        setFields(lines, rows, right);
        lines.update();
        pairSlot = 1;
        ++pairNo;
    }
}

void countQuestions(const Database& course, const QString& criterion) {
    Int16 number = 1;
    Recordset rows = course.openRecordset(allQuestions + criterion);
    for (; !rows.eof(); rows.moveNext()) {
        rows.edit();
        rows.set(QStringLiteral("orderno"), number);
        rows.update();
        ++number;
    }
}

void numberQuestions(const Database& course) {
    for (Recordset rows = course.openRecordset(allQuestions); !rows.eof(); rows.moveNext()) {
        rows.edit();
        rows.set(QStringLiteral("orderno"), 0);
        rows.update();
    }
    countQuestions(course, QStringLiteral(" where recordno <=7"));
    countQuestions(course, QStringLiteral(" where recordno >=8"));
}

void buildMasks(const Database& course, int topicNo, int recordNo) {
    Recordset lines = course.openRecordset(allLines);
    Recordset rows =
        course.openRecordset(QStringLiteral("Select * from basic_data3 where topicno=%1 and recordno=%2")
                                 .arg(topicNo)
                                 .arg(recordNo));
    Int16 lineNo = 1;
    for (; !rows.eof(); rows.moveNext()) {
        lines.addNew();
        lines.set(QStringLiteral("recordno"), rows.value(QStringLiteral("recordno")));
        for (int i = 1; i <= 4; ++i) {
            const QString field = QStringLiteral("word%1").arg(i);
            const QString text = rows.textOrEmpty(field);
            const bool masked = i == 1 || text != notGiven;
            lines.set(field, rows.value(field));
            lines.set(QStringLiteral("word%1").arg(i + 4), masked ? maskOf(text) : QString());
        }
        lines.set(QStringLiteral("orderno"), lineNo);
        lines.set(QStringLiteral("orderno2"), 0);
        lines.set(QStringLiteral("vtitle"), rows.value(QStringLiteral("vtitle")));
        lines.update();
        ++lineNo;
    }
}

/// Leaves the distinct answers of the questions in `basic_data`, in the order of their first occurrence.
void listAnswers(const Database& course) {
    Recordset answers = course.openRecordset(allDrillRows);
    deleteAll(answers);
    answers = course.openRecordset(allDrillRows);
    for (Recordset questions = course.openRecordset(allQuestions); !questions.eof(); questions.moveNext()) {
        const QString answer = questions.text(QStringLiteral("a1"));
        answers.findFirst(QStringLiteral("word1='%1'").arg(answer));
        if (!answers.noMatch())
            continue;
        answers.addNew();
        answers.set(QStringLiteral("word1"), answer);
        answers.update();
    }
}

void buildWordBank(const Database& course) {
    listAnswers(course);
    const QString bank = QStringLiteral("Select * From sample");
    Recordset sample = course.openRecordset(bank);
    deleteAll(sample);
    sample = course.openRecordset(bank);
    sample.addNew();
    sample.update();
    sample.moveFirst();
    Recordset answers = course.openRecordset(allDrillRows);
    for (int k = 1; k <= bankWords && !answers.eof(); ++k, answers.moveNext()) {
        sample.edit();
        sample.set(QStringLiteral("w%1").arg(k), answers.value(QStringLiteral("word1")));
        sample.update();
    }
    buildColumns(course, oneColumn);
}

void buildBrackets(const Database& course) {
    constexpr std::array fields{FieldPair{"word2", "q1"}, FieldPair{"word3", nullptr},
                                FieldPair{"word4", "a1"}, FieldPair{"word5", "a2"}};
    Recordset lines = course.openRecordset(allLines);
    Int16 lineNo = 1;
    for (Recordset questions = course.openRecordset(allQuestions); !questions.eof(); questions.moveNext()) {
        lines.addNew();
        setFields(lines, questions, fields);
        lines.set(QStringLiteral("word1"),
                  bracketedChoices(questions.text(QStringLiteral("q2")), questions.text(QStringLiteral("q3")),
                                   questions.textOrEmpty(QStringLiteral("q4"))));
        lines.set(QStringLiteral("orderno"), lineNo);
        lines.update();
        ++lineNo;
    }
}

void addFinalLines(const Database& course, const Recordset& range, Recordset& lines, Int16& lineNo) {
    const int first = range.integer(QStringLiteral("recordno"));
    Recordset questions =
        course.openRecordset(allQuestions + QStringLiteral(" where recordno>=%1 and recordno <=%2")
                                                .arg(first)
                                                .arg(range.integer(QStringLiteral("recordno2"))));
    for (; !questions.eof(); questions.moveNext()) {
        lines.addNew();
        lines.set(QStringLiteral("word1"), questions.value(QStringLiteral("q1")));
        if (catalogue::hasSecondLine(first))
            lines.set(QStringLiteral("word2"), questions.value(QStringLiteral("q2")));
        lines.set(QStringLiteral("recordno"), questions.value(QStringLiteral("recordno")));
        lines.set(QStringLiteral("word7"), questions.value(QStringLiteral("a1")));
        lines.set(QStringLiteral("orderno"), lineNo);
        lines.update();
        ++lineNo;
    }
}

BuildResult buildFinal(const Database& course, int topicNo) {
    const QString list = QStringLiteral("Select * From tablework_final");
    Recordset ranges = course.openRecordset(list);
    deleteAll(ranges);
    Recordset master = course.openRecordset(
        QStringLiteral("Select * from tablework_final_data where topicno=%1").arg(topicNo));
    if (master.isEmpty())
        return BuildResult::NoFinalRows;
    ranges = course.openRecordset(list);
    for (; !master.eof(); master.moveNext()) {
        ranges.addNew();
        for (int i = 0; i < master.fieldCount(); ++i)
            ranges.set(i, master.value(i));
        ranges.update();
    }
    Recordset lines = course.openRecordset(allLines);
    Int16 lineNo = 1;
    for (ranges = course.openRecordset(list); !ranges.eof(); ranges.moveNext())
        addFinalLines(course, ranges, lines, lineNo);
    return BuildResult::Built;
}

}  // namespace

QString maskOf(const QString& text) {
    QString mask;
    for (const QChar letter : text)
        mask += letter == u' ' ? QChar(u' ') : QChar(u'□');
    return mask;
}

QString bracketedChoices(const QString& q2, const QString& q3, const QString& q4) {
    if (q4 == notGiven)
        return QStringLiteral("( ") + q2 + QStringLiteral("    ") + q3 + QStringLiteral("  )");
    return QStringLiteral("( ") + q2 + QStringLiteral("    ") + q3 + QStringLiteral("   ") + q4 +
           QStringLiteral(" ) ");
}

BuildResult buildSheet(const Database& course, int topicNo, int recordNo) {
    switch (builderOf(recordNo)) {
        case Builder::None: break;
        case Builder::TwoUpDrill: buildTwoUp(course, allDrillRows, "word1", "word2"); break;
        case Builder::TwoUpQuiz: buildTwoUp(course, allQuestions, "q1", "a1"); break;
        case Builder::Numbering: numberQuestions(course); break;
        case Builder::SentenceMasks: buildMasks(course, topicNo, recordNo); break;
        case Builder::ThreeColumns: buildColumns(course, threeColumns); break;
        case Builder::TwoColumns: buildColumns(course, twoColumns); break;
        case Builder::OneColumn: buildColumns(course, oneColumn); break;
        case Builder::SwappedColumns: buildColumns(course, swappedColumns); break;
        case Builder::WordBank: buildWordBank(course); break;
        case Builder::Brackets: buildBrackets(course); break;
        case Builder::Final: return buildFinal(course, topicNo);
    }
    return BuildResult::Built;
}

}  // namespace worksheets
