#include "core/schema.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace core {

namespace {

constexpr auto integer = FieldKind::Integer;
constexpr auto number = FieldKind::Number;
constexpr auto date = FieldKind::Date;

// The first twelve fields are copied by position into the list of a Final Quiz.
constexpr std::array steps{FieldShape{"recordno", integer},
                           FieldShape{"topicno", integer},
                           FieldShape{"pageno", integer},
                           FieldShape{"Type"},
                           FieldShape{"Title"},
                           FieldShape{"Data"},
                           FieldShape{"guide"},
                           FieldShape{"guide2"},
                           FieldShape{"wordno", integer},
                           FieldShape{"usedata"},
                           FieldShape{"useform"},
                           FieldShape{"quizno", integer},
                           FieldShape{"testtype"}};
constexpr std::array finalSteps{FieldShape{"recordno", integer},
                                FieldShape{"topicno", integer},
                                FieldShape{"pageno", integer},
                                FieldShape{"Type"},
                                FieldShape{"Title"},
                                FieldShape{"Data"},
                                FieldShape{"guide"},
                                FieldShape{"guide2"},
                                FieldShape{"wordno", integer},
                                FieldShape{"usedata"},
                                FieldShape{"useform"},
                                FieldShape{"quizno", integer},
                                FieldShape{"testtype"},
                                FieldShape{"recordno2", integer}};
constexpr std::array topics{FieldShape{"topicno", integer}, FieldShape{"Title"}};
constexpr std::array newWords{FieldShape{"recordno", integer}, FieldShape{"word"}, FieldShape{"korean"},
                              FieldShape{"scode"}};
constexpr std::array quizMaster{FieldShape{"topicno", integer},
                                FieldShape{"recordno", integer},
                                FieldShape{"orderno", integer},
                                FieldShape{"orderno2", integer},
                                FieldShape{"q1"},
                                FieldShape{"q2"},
                                FieldShape{"q3"},
                                FieldShape{"q4"},
                                FieldShape{"q5"},
                                FieldShape{"q6"},
                                FieldShape{"q7"},
                                FieldShape{"a1"},
                                FieldShape{"a2"},
                                FieldShape{"correct"},
                                FieldShape{"extra1"},
                                FieldShape{"extra2"},
                                FieldShape{"extra3"},
                                FieldShape{"autono", integer}};
constexpr std::array basicMaster{FieldShape{"topicno", integer},
                                 FieldShape{"recordno", integer},
                                 FieldShape{"orderno", integer},
                                 FieldShape{"word1"},
                                 FieldShape{"word2"},
                                 FieldShape{"word3"},
                                 FieldShape{"extra1"},
                                 FieldShape{"extra2"},
                                 FieldShape{"autono", integer}};
constexpr std::array tipMaster{FieldShape{"recordno", integer}, FieldShape{"topicno", integer},
                               FieldShape{"tips"}, FieldShape{"autono", integer}};
constexpr std::array secondList{FieldShape{"autono", integer}, FieldShape{"word"}};
constexpr std::array secondListWork{FieldShape{"orderno2", integer}, FieldShape{"word"}};
constexpr std::array sentenceContent{FieldShape{"topicno", integer},
                                     FieldShape{"recordno", integer},
                                     FieldShape{"word1"},
                                     FieldShape{"word2"},
                                     FieldShape{"word3"},
                                     FieldShape{"word4"},
                                     FieldShape{"vtitle"}};
constexpr std::array ruleLines{FieldShape{"topicno", integer}, FieldShape{"recordno", integer},
                               FieldShape{"orderno", integer}, FieldShape{"tip2"}};
constexpr std::array blanks{FieldShape{"orderno", integer}, FieldShape{"blankno", integer},
                            FieldShape{"word"}, FieldShape{"showword"}};
constexpr std::array blanks2{FieldShape{"orderno", integer}, FieldShape{"blankno", integer}};
constexpr std::array sheetLines{FieldShape{"word1"},
                                FieldShape{"word2"},
                                FieldShape{"word3"},
                                FieldShape{"word4"},
                                FieldShape{"word5"},
                                FieldShape{"word6"},
                                FieldShape{"word7"},
                                FieldShape{"word8"},
                                FieldShape{"recordno", integer},
                                FieldShape{"orderno", integer},
                                FieldShape{"orderno2", integer},
                                FieldShape{"vtitle"}};
constexpr std::array student{FieldShape{"Name"}, FieldShape{"topic"}, FieldShape{"lessonno", integer}};
constexpr std::array guide{FieldShape{"recordno", integer}, FieldShape{"guide"}};
constexpr std::array sample{FieldShape{"w1"}, FieldShape{"w2"},  FieldShape{"w3"},  FieldShape{"w4"},
                            FieldShape{"w5"}, FieldShape{"w6"},  FieldShape{"w7"},  FieldShape{"w8"},
                            FieldShape{"w9"}, FieldShape{"w10"}, FieldShape{"w11"}, FieldShape{"w12"}};
constexpr std::array allWords{FieldShape{"word"}};
constexpr std::array dictionary{FieldShape{"word"}, FieldShape{"scode"}, FieldShape{"defsen"}};
constexpr std::array version{FieldShape{"program"}, FieldShape{"pVersion", integer}};
constexpr std::array wordBook{FieldShape{"word"},   FieldShape{"Page", integer},
                              FieldShape{"korean"}, FieldShape{"recordno", integer},
                              FieldShape{"scode"},  FieldShape{"orderno", integer}};
constexpr std::array testWords{FieldShape{"word"}, FieldShape{"definition"}, FieldShape{"orderno", integer}};
constexpr std::array testWords2{FieldShape{"word"},
                                FieldShape{"definition"},
                                FieldShape{"orderno", integer},
                                FieldShape{"korean"},
                                FieldShape{"scode"},
                                FieldShape{"missed"},
                                FieldShape{"answerno", integer},
                                FieldShape{"answer1"},
                                FieldShape{"answer2"},
                                FieldShape{"answer3"},
                                FieldShape{"answer4"},
                                FieldShape{"word1"},
                                FieldShape{"word2"},
                                FieldShape{"word3"},
                                FieldShape{"word4"}};
constexpr std::array testWords4{FieldShape{"word"},       FieldShape{"orderno", integer},
                                FieldShape{"definition"}, FieldShape{"picword"},
                                FieldShape{"scode"},      FieldShape{"korean"},
                                FieldShape{"missed"},     FieldShape{"answer1"},
                                FieldShape{"answer2"},    FieldShape{"answer3"},
                                FieldShape{"answer4"},    FieldShape{"word1"},
                                FieldShape{"word2"},      FieldShape{"word3"},
                                FieldShape{"word4"},      FieldShape{"answerno", integer}};
constexpr std::array testWords6{FieldShape{"word"}, FieldShape{"definition"}, FieldShape{"correct"},
                                FieldShape{"orderno", integer}, FieldShape{"orderno2", integer}};
constexpr std::array scores{FieldShape{"recordno", integer},
                            FieldShape{"page2", integer},
                            FieldShape{"datapage", integer},
                            FieldShape{"lessontype"},
                            FieldShape{"vtitle"},
                            FieldShape{"s1"},
                            FieldShape{"s2"},
                            FieldShape{"s3"},
                            FieldShape{"s4", number},
                            FieldShape{"s5"},
                            FieldShape{"s6"},
                            FieldShape{"s7"},
                            FieldShape{"S8"},
                            FieldShape{"s9"},
                            FieldShape{"s10"},
                            FieldShape{"s11"},
                            FieldShape{"s12"},
                            FieldShape{"st1"},
                            FieldShape{"st2"},
                            FieldShape{"st3"},
                            FieldShape{"st4"},
                            FieldShape{"st5"},
                            FieldShape{"st6"},
                            FieldShape{"st7"},
                            FieldShape{"st8"},
                            FieldShape{"dayno", integer},
                            FieldShape{"vDate", date},
                            FieldShape{"studentno"},
                            FieldShape{"program"},
                            FieldShape{"studentname"},
                            FieldShape{"bookno", integer}};

constexpr std::array definitions{
    TableDefinition{"dicword.mdb", "allword", allWords, "word"},
    TableDefinition{"dicword.mdb", "dicword", dictionary, "word"},
    TableDefinition{"dicword_K.mdb", "allword", allWords, "word"},
    TableDefinition{"DbScore", "score", scores,
                    "studentno,program,recordno;studentno,program,page2;studentno,program,s4"},
    TableDefinition{"Pversion_2026.mdb", "pversion", version, "program"},
    TableDefinition{"tovalin.mdb", "tablework", steps, "recordno;topicno,pageno"},
    TableDefinition{"tovalin.mdb", "topic", topics, "topicno"},
    TableDefinition{"tovalin.mdb", "newword", newWords, "recordno"},
    TableDefinition{"tovalin.mdb", "tablework_final_data", finalSteps, "topicno"},
    TableDefinition{"tovalin.mdb", "tablework_Final", finalSteps, ""},
    TableDefinition{"tovalin.mdb", "quiz_data_New3", {quizMaster.data(), quizCopyFields}, ""},
    TableDefinition{"tovalin.mdb", "basic_Data", {basicMaster.data(), basicCopyFields}, ""},
    TableDefinition{"tovalin.mdb", "basic_Data2", secondListWork, ""},
    TableDefinition{"tovalin.mdb", "basic_data3", sentenceContent, "recordno"},
    TableDefinition{"tovalin.mdb", "gram_tip", {tipMaster.data(), tipCopyFields}, ""},
    TableDefinition{"tovalin.mdb", "gram_tip2", ruleLines, "recordno,orderno"},
    TableDefinition{"tovalin.mdb", "blankno", blanks, ""},
    TableDefinition{"tovalin.mdb", "blankno2", blanks2, ""},
    TableDefinition{"tovalin.mdb", "tempword", sheetLines, ""},
    TableDefinition{"tovalin.mdb", "student", student, ""},
    TableDefinition{"tovalin.mdb", "guide", guide, ""},
    TableDefinition{"tovalin.mdb", "sample", sample, ""},
    TableDefinition{"Tovalin_Data.mdb", "tovalin1_quiz_data", quizMaster, "recordno,orderno;recordno,autono"},
    TableDefinition{"Tovalin_Data.mdb", "tovalin1_Basic_Data", basicMaster, "recordno,autono"},
    TableDefinition{"Tovalin_Data.mdb", "tovalin1_gram_tip", tipMaster, "recordno,autono;topicno"},
    TableDefinition{"Tovalin_Data.mdb", "tovalin1_BasicData_115", secondList, "autono"},
    TableDefinition{"testword_im.mdb", "word_book", wordBook, ""},
    TableDefinition{"testword_2013.mdb", "testword", testWords, ""},
    TableDefinition{"testword_2013.mdb", "testword2", testWords2, ""},
    TableDefinition{"testword_2013.mdb", "testword3", allWords, ""},
    TableDefinition{"testword_2013.mdb", "testword4", testWords4, ""},
    TableDefinition{"testword_2013.mdb", "testword6", testWords6, ""},
};

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString columnType(FieldKind kind) {
    switch (kind) {
        case FieldKind::Integer: return QStringLiteral("INTEGER");
        case FieldKind::Number: return QStringLiteral("REAL");
        case FieldKind::Date:
        case FieldKind::Text: break;
    }
    // Texts compare without regard to case, as every query of the course counts on.
    return QStringLiteral("TEXT COLLATE NOCASE");
}

bool sameName(std::string_view one, std::string_view other) {
    return fromView(one).compare(fromView(other), Qt::CaseInsensitive) == 0;
}

}  // namespace

std::span<const TableDefinition> tableDefinitions() {
    return definitions;
}

const TableDefinition* findTable(std::string_view store, std::string_view table) {
    const auto found = std::find_if(definitions.begin(), definitions.end(), [&](const TableDefinition& d) {
        return sameName(d.store, store) && sameName(d.table, table);
    });
    return found == definitions.end() ? nullptr : &*found;
}

QStringList createStatements(const TableDefinition& definition) {
    const QString table = fromView(definition.table);
    QStringList columns;
    for (const FieldShape& field : definition.fields)
        columns.append(QStringLiteral("\"%1\" %2").arg(fromView(field.name), columnType(field.kind)));
    QStringList statements{
        QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(table, columns.join(QStringLiteral(", ")))};
    int count = 0;
    for (const QString& fields : fromView(definition.indexes).split(u';', Qt::SkipEmptyParts))
        statements.append(
            QStringLiteral("CREATE INDEX \"%1_by_%2\" ON \"%1\" (%3)").arg(table).arg(++count).arg(fields));
    return statements;
}

}  // namespace core
