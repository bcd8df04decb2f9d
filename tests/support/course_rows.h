#pragma once

#include "tests/support/desk.h"

namespace support {

/// A row of `tablework`; what a test does not name is a plain quiz without words in unit 1.
struct StepRow {
    int recordNo = 1;
    int topicNo = 1;
    int pageNo = 1;
    std::string type = "Quiz";
    std::string useForm = "frmQuiz";
    int wordNo = 0;
    int quizNo = 0;
    std::string title = "명사";
};

inline void addSteps(const Desk& desk, const std::vector<StepRow>& steps) {
    std::string sql = "begin;";
    for (const StepRow& step : steps)
        sql +=
            "insert into "
            "tablework(recordno,topicno,pageno,Type,Title,Data,guide,guide2,wordno,usedata,useform,quizno,"
            "testtype) values(" +
            std::to_string(step.recordNo) + "," + std::to_string(step.topicNo) + "," +
            std::to_string(step.pageNo) + ",'" + step.type + "','" + step.title + "','data " +
            std::to_string(step.recordNo) + "','guide " + std::to_string(step.recordNo) + "','sheet " +
            std::to_string(step.recordNo) + "'," + std::to_string(step.wordNo) + ",'YES','" + step.useForm +
            "'," + std::to_string(step.quizNo) + ",'choice');";
    desk.exec(courseStore, sql + "commit");
}

/// Questions 1 to `count` of a step in the master store: "q3 of 5" is the third of step 5.
inline void addQuestions(const Desk& desk, int recordNo, int count) {
    std::string sql = "begin;";
    const std::string step = std::to_string(recordNo);
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        sql +=
            "insert into tovalin1_quiz_data(topicno,recordno,orderno,orderno2,q1,a1,a2,correct,autono) "
            "values(1," +
            step + "," + number + ",0,'q" + number + " of " + step + "','a" + number + "','','',100*" + step +
            "+" + number + ");";
    }
    desk.exec(masterStore, sql + "commit");
}

}  // namespace support
