#include "course/preparation.h"

#include "catalogue/steps.h"
#include "core/schema.h"
#include "core/stores.h"
#include "course/score_store.h"
#include "course/shuffle.h"
#include "platform/desktop/cursor.h"

#include <algorithm>
#include <utility>

namespace course {

using core::Context;
using platform::Database;
using platform::Recordset;
using platform::Transaction;

namespace {

constexpr int questionsPerFinalStep = 5;

// The one lesson whose drill rows are those of two steps, and the one with a second list of prompts.

Recordset emptied(const Database& database, const QString& table) {
    const QString sql = QStringLiteral("Select * from ") + table;
    Recordset rows = database.openRecordset(sql);
    deleteAll(rows);
    return database.openRecordset(sql);
}

/// Which field of the source each of the target's first fields takes: the one of the same name, else the one
/// at the same place. Stores brought along from elsewhere order some of these fields in another way.
std::vector<int> copyPlan(const Recordset& source, const Recordset& target, int count) {
    std::vector<int> plan;
    for (int i = 0; i < count; ++i) {
        const int sameName = source.findField(target.fieldName(i));
        plan.push_back(sameName >= 0 ? sameName : i);
    }
    return plan;
}

void copyFields(const Recordset& source, Recordset& target, const std::vector<int>& plan) {
    for (std::size_t i = 0; i < plan.size(); ++i)
        target.set(static_cast<int>(i), source.value(plan[i]));
}

/// The working table that takes the rows of a query on another store.
struct Filled {
    const Database& database;
    QString table;
};

void copyRows(Recordset source, const Filled& filled, int count) {
    Recordset target = emptied(filled.database, filled.table);
    filled.database.noteOrigin(filled.table, source.description());
    const auto plan = copyPlan(source, target, count);
    for (; !source.eof(); source.moveNext()) {
        target.addNew();
        copyFields(source, target, plan);
        target.update();
    }
}

void fillWordBook(const Context& context, Recordset book, const Database& course) {
    Recordset words = course.openRecordset(
        QStringLiteral("Select * from newword where recordno =%1").arg(context.session.recordNo));
    for (; !words.eof(); words.moveNext()) {
        // The word screens need both; what is missing is told here, where its table and row are known.
        if (context.session.wordNo > 0)
            for (const char* field : {"word", "korean"})
                words.text(QLatin1String(field));
        book.addNew();
        book.set(QStringLiteral("word"), words.value(QStringLiteral("word")));
        book.set(QStringLiteral("Page"), words.value(QStringLiteral("recordno")));
        book.set(QStringLiteral("korean"), words.value(QStringLiteral("korean")));
        book.set(QStringLiteral("recordno"), words.value(QStringLiteral("recordno")));
        book.set(QStringLiteral("scode"), words.value(QStringLiteral("scode")));
        book.set(QStringLiteral("orderno"), 0);
        book.update();
    }
}

QString basicRowsQuery(int recordNo) {
    const QString from = QStringLiteral("Select * from tovalin1_Basic_Data WHERE ");
    if (recordNo == catalogue::doubleStep)
        return from + QStringLiteral("recordno >=%1 and recordno <=%2 order by autono")
                          .arg(catalogue::doubleStep)
                          .arg(catalogue::secondPageRows);
    return from + QStringLiteral("recordno=%1 order by autono").arg(recordNo);
}

void fillSecondList(const Database& course, const Database& master) {
    Recordset target = emptied(course, QStringLiteral("basic_Data2"));
    Recordset source = master.openRecordset(QStringLiteral("Select * from tovalin1_BasicData_115"));
    course.noteOrigin(QStringLiteral("basic_Data2"), source.description());
    for (; !source.eof(); source.moveNext()) {
        target.addNew();
        target.set(QStringLiteral("orderno2"), source.value(QStringLiteral("autono")));
        target.set(QStringLiteral("word"), source.value(QStringLiteral("word")));
        target.update();
    }
}

/// The quiz steps that a Final Quiz is made of. Two finals of the first unit split it between them.
QString finalStepsQuery(const core::Session& session) {
    const QString from = QStringLiteral("Select * from tablework where ");
    const QString order = QStringLiteral(" order by recordno");
    if (const auto steps = catalogue::drawnRange(session.recordNo))
        return from + QStringLiteral("recordno >=%1 and recordno<=%2").arg(steps->first).arg(steps->last) +
               order;
    return from + QStringLiteral("topicno =%1 and type='Quiz'").arg(session.topicNo) + order;
}

void listFinalSteps(const Context& context, const Database& course) {
    Recordset steps = course.openRecordset(finalStepsQuery(context.session));
    Recordset list = emptied(course, QStringLiteral("tablework_Final"));
    course.noteOrigin(QStringLiteral("tablework_Final"), steps.description());
    const auto plan = copyPlan(steps, list, core::stepCopyFields);
    for (; !steps.eof(); steps.moveNext()) {
        list.addNew();
        copyFields(steps, list, plan);
        list.set(QStringLiteral("guide2"), steps.value(QStringLiteral("guide2")));
        list.update();
    }
}

/// Draws five different question numbers of a step into `tempword`.
void drawQuestions(const Context& context, Recordset& drawn, int quizNo) {
    for (int count = 0; count < questionsPerFinalStep;) {
        const int number = drawNumber(context, quizNo);
        drawn.findFirst(QStringLiteral("orderno=%1").arg(number));
        if (!drawn.noMatch())
            continue;
        drawn.addNew();
        drawn.set(QStringLiteral("orderno"), number);
        drawn.update();
        ++count;
    }
}

void addQuestion(Recordset& questions, const Recordset& step, const platform::Value& orderNo) {
    questions.addNew();
    questions.set(QStringLiteral("topicno"), step.value(QStringLiteral("topicno")));
    questions.set(QStringLiteral("recordno"), step.value(QStringLiteral("recordno")));
    questions.set(QStringLiteral("orderno"), orderNo);
    questions.update();
}

/// Five questions of a step with five or more, the one of a step with one. A step with two to four gives
/// none and yet stays a step of the Final Quiz.
void chooseQuestions(const Context& context, const Database& course) {
    Recordset questions = emptied(course, QStringLiteral("quiz_data_New3"));
    Recordset steps = course.openRecordset(QStringLiteral("Select * from tablework_Final order by recordno"));
    for (; !steps.eof(); steps.moveNext()) {
        Recordset drawn = emptied(course, QStringLiteral("tempword"));
        const int quizNo = steps.integer(QStringLiteral("quizno"));
        if (quizNo >= questionsPerFinalStep) {
            drawQuestions(context, drawn, quizNo);
            Recordset chosen = course.openRecordset(QStringLiteral("Select * from tempword"));
            for (; !chosen.eof(); chosen.moveNext())
                addQuestion(questions, steps, chosen.value(QStringLiteral("orderno")));
        } else if (quizNo == 1) {
            addQuestion(questions, steps, 1);
        }
    }
}

void fetchQuestions(const Context& context, const Database& course) {
    const platform::Hourglass hourglass;
    const Database master = core::openMaster(context);
    const QString all = QStringLiteral("Select * from tovalin1_quiz_data");
    const Recordset held = master.openRecordset(all);
    course.noteOrigin(QStringLiteral("quiz_data_New3"), held.description());
    Recordset questions = course.openRecordset(QStringLiteral("Select * from quiz_data_New3"));
    for (; !questions.eof(); questions.moveNext()) {
        const Recordset source =
            master.openRecordset(all + QStringLiteral(" where recordno=%1 and orderno=%2")
                                           .arg(questions.integer(QStringLiteral("recordno")))
                                           .arg(questions.integer(QStringLiteral("orderno"))));
        if (!source.eof()) {
            questions.edit();
            copyFields(source, questions, copyPlan(source, questions, core::quizCopyFields));
            questions.update();
        }
        ++context.session.finalItemTotal;
    }
}

}  // namespace

void PrepareStepData(const Context& context, const QString& courseFile) {
    const Database master = core::openMaster(context);
    const int recordNo = context.session.recordNo;
    const Database wordBook = core::openWordBook(context);
    Transaction words(wordBook);
    Recordset book = emptied(wordBook, QStringLiteral("word_book"));
    const Database course = core::openStore(context, courseFile);
    fillWordBook(context, std::move(book), course);
    wordBook.noteOrigin(QStringLiteral("word_book"),
                        QStringLiteral("table 'newword' of '%1'").arg(courseFile));
    words.commit();
    const platform::Hourglass hourglass;
    const auto masterRows = [&](const QString& sql) { return master.openRecordset(sql); };
    Transaction transaction(course);
    copyRows(masterRows(QStringLiteral("Select * from tovalin1_quiz_data WHERE recordno=%1 order by autono")
                            .arg(recordNo)),
             {course, QStringLiteral("quiz_data_New3")}, core::quizCopyFields);
    copyRows(masterRows(QStringLiteral("Select * from tovalin1_gram_tip WHERE recordno=%1 order by autono")
                            .arg(recordNo)),
             {course, QStringLiteral("gram_tip")}, core::tipCopyFields);
    copyRows(masterRows(basicRowsQuery(recordNo)), {course, QStringLiteral("basic_Data")},
             core::basicCopyFields);
    if (recordNo == catalogue::secondListStep)
        fillSecondList(course, master);
    transaction.commit();
}

void PrepareFinalData(const Context& context, const QString& courseFile) {
    context.session.finalItemTotal = 0;
    const Database course = core::openStore(context, courseFile);
    Transaction transaction(course);
    listFinalSteps(context, course);
    chooseQuestions(context, course);
    fetchQuestions(context, course);
    transaction.commit();
    context.session.finalItemNo = 1;
}

void PrepareStepData(const Context& context) {
    requireWritableScores(context);
    PrepareStepData(context, core::coursePath(context));
}

void PrepareFinalData(const Context& context) {
    requireWritableScores(context);
    PrepareFinalData(context, context.applicationFolder + QStringLiteral("tovalin.mdb"));
}

void PrepareStepDataForSheet(const Context& context) {
    PrepareStepData(context, core::worksheetCoursePath());
}

void PrepareFinalDataForSheet(const Context& context) {
    PrepareFinalData(context, core::worksheetCoursePath());
}

}  // namespace course
