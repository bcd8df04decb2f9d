#pragma once

#include "tests/support/desk.h"

#include <gtest/gtest.h>

#include <numeric>

/// A desk with one quiz step laid on it.
class QuizDesk : public support::Desk {
   public:
    /// Fields of a question by name: {"q1", "Hi"}, {"a1", "b"}. `a1` and `a2` are empty unless given.
    using Question = std::map<std::string, std::string>;

    /// Makes step `recordNo` of topic 1 the step in hand, with these questions in the working table. The
    /// shuffle keeps their order.
    void layStep(int recordNo, const std::vector<Question>& questions, const std::string& screen = {});
    /// Opens a screen on the rows laid.
    core::Screen* run(const std::string& screen) { return open(QString::fromStdString(screen)); }
    /// Queues draws that make the shuffle give these numbers, row by row.
    void queueOrder(const std::vector<int>& numbers) {
        random.queueNumbers(numbers, static_cast<int>(numbers.size()));
    }
    /// Queues draws that leave `count` rows in their stored order.
    void queueStoredOrder(int count);

    /// Turns the step in hand into step `stepNo` of a Final Quiz of `stepCount` steps and 10 items, started
    /// from step 20.
    void enterFinal(int stepNo, int stepCount);

    /// Gives the course table the rows that it needs to open.
    void layTable() {
        exec(support::courseStore,
             "Insert into topic (topicno, Title) values (1, '명사');"
             "Insert into tablework (recordno, topicno, pageno, Type, Title, wordno, useform) "
             "values (1, 1, 1, 'Lesson', '명사', 0, 'frmLesson')");
    }

    QStringList column(const std::string& field) const;
    /// What the score store holds: "recordno|s4".
    QStringList scores() const {
        return rows(support::scoreStore, "Select recordno, printf('%g', s4) from score");
    }
};

inline void QuizDesk::layStep(int recordNo, const std::vector<Question>& questions,
                              const std::string& screen) {
    session.topicNo = 1;
    session.recordNo = recordNo;
    session.pageNo = 3;
    session.stepType = QStringLiteral("Quiz");
    session.stepTitle = QStringLiteral("명사 3");
    session.guideText = QStringLiteral("문장에서 명사를 골라 클릭하십시오.");
    session.useForm = QString::fromStdString(screen);
    exec(support::courseStore, "Delete from quiz_data_New3");
    for (Question question : questions) {
        question.try_emplace("a1", "");
        question.try_emplace("a2", "");
        std::string names = "topicno, recordno";
        std::string values = "1, " + std::to_string(recordNo);
        for (const auto& [name, value] : question) {
            names += ", " + name;
            std::string quoted;
            for (const char c : value)
                quoted += c == '\'' ? "''" : std::string(1, c);
            values += value == "NULL" ? ", NULL" : ", '" + quoted + "'";
        }
        exec(support::courseStore, "Insert into quiz_data_New3 (" + names + ") values (" + values + ")");
    }
    queueStoredOrder(static_cast<int>(questions.size()));
}

inline void QuizDesk::queueStoredOrder(int count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    queueOrder(numbers);
}

inline void QuizDesk::enterFinal(int stepNo, int stepCount) {
    session.stepType = QStringLiteral("Final");
    session.finalBaseRecordNo = 20;
    session.finalStepNo = stepNo;
    session.finalStepCount = stepCount;
    session.finalItemTotal = 10;
    session.finalItemNo = 1;
    session.wordNo = 0;
}

inline QStringList QuizDesk::column(const std::string& field) const {
    return rows(support::courseStore, "Select " + field + " from quiz_data_New3 order by _rowid_");
}

// Shorthands for the controls of the screen on show.

inline platform::Label& label(core::Screen* screen, const char* name) {
    return support::find<platform::Label>(screen, QLatin1String(name));
}

inline platform::TextBox& box(core::Screen* screen, const char* name) {
    return support::find<platform::TextBox>(screen, QLatin1String(name));
}

inline QWidget& part(core::Screen* screen, const char* name) {
    return support::find<QWidget>(screen, QLatin1String(name));
}

inline QString caption(core::Screen* screen, const char* name) {
    return label(screen, name).caption();
}

inline bool visible(core::Screen* screen, const char* name) {
    return part(screen, name).isVisible();
}

inline void press(core::Screen* screen, const char* name) {
    support::click(part(screen, name));
}

inline void pressEnter(core::Screen* screen, const char* name) {
    QTest::keyClick(&part(screen, name), Qt::Key_Return);
    support::settle();
}
