#pragma once

#include "catalogue/quizzes.h"
#include "course/exercise_screen.h"
#include "platform/error.h"
#include "quizzes/quiz_look.h"

namespace quizzes {

using catalogue::CheckManner;
using catalogue::EndAct;
using catalogue::QuizEntry;
using catalogue::TeacherHelp;

/// What a restart shuffles, whatever else the first start does.
inline constexpr std::array restartOrder{"orderno"};

using core::Int16;
using platform::ControlArray;
using platform::Label;
using platform::TextBox;
using platform::TextRole;

/// What all quiz screens share: the load step, the rows of the step in a random order, the counters, the end
/// of a quiz in an ordinary step and inside a Final Quiz, and leaving.
class QuizScreen : public course::ExerciseScreen {
    Q_OBJECT
   protected:
    QuizScreen(core::Context& context, const QuizEntry& entry);

    const QuizEntry& entry() const { return entry_; }

    /// Work of the first tick before any data is opened.
    virtual void prepare() {}
    /// Opens, shuffles and fills: the screen's own part of the first tick.
    virtual void start() = 0;
    /// `picBegin` and `picQuiz`, once the screen is running.
    virtual void begin() = 0;
    virtual void check() {}
    /// The choice with a number from 1 was asked for by its digit key.
    virtual void chooseByDigit(int number);

    /// Opens `quizRs` on the rows of the step; `order` names fields to sort by. A step without rows ends the
    /// run.
    void openRows(const char* order = nullptr);
    /// Zeroes the order fields, and empties `emptied` where given, on every row; then draws each order anew.
    /// Sets `itemTotal`.
    void shuffle(std::span<const char* const> orders, const char* emptied = nullptr);
    /// "topicno=1 and recordno=2 and "
    QString rowScope() const;
    /// The text of a field that a question cannot do without.
    QString required(const char* field) const;
    /// Ends the run with a sentence that names the step and what is wrong with its rows.
    [[noreturn]] void failRows(platform::ErrorCode code, const QString& what) const;

    /// Whether the box of an answer holds it from the start.
    bool fillsForTeacher() const {
        return entry_.teacherHelp == TeacherHelp::FillsAnswer && session().isTeacher();
    }
    void showAnswerLine();
    void showCounters(int item, int total);
    void showFinalCounters();
    /// Hides or shows the four labels.
    void setCountersVisible(bool visible);
    Label& currentCounter() const { return *lblCurrent_; }

    /// Whether an answer counts at this time.
    bool gateOpen() const { return !loading() && (!entry_.gated || quizRunning_ == QStringLiteral("YES")); }
    void setRunning(bool running);
    void offerQuiz();

    /// Ends the quiz: the acts of an ordinary step, or the road to the next step of a Final Quiz.
    void finish(const CheckManner& manner, Int16 score);
    virtual void startWalk() {}

    void addHint(int top);
    /// Takes the keyboard from the buttons of the side to the first control that answers.
    void focusContent();
    bool isFinal() const { return session().isFinal(); }

    void closeRecordsets() override { quizRs.close(); }
    void keyPressEvent(QKeyEvent* event) override;

    platform::Recordset quizRs;
    Int16 itemTotal;
    Label* lblAnswer = nullptr;

   private:
    void firstTick() final;
    void beginClicked() final;
    void quizClicked() final;
    void nextClicked() override;
    void exitClicked() override;

    void buildSide();
    void act(EndAct step, Int16 score);
    void tell(const QString& text);
    void finishFinalStep(const CheckManner& manner, Int16 score);

    const QuizEntry& entry_;
    QString quizRunning_ = QStringLiteral("NO");
    std::array<Label*, 4> counterLabels_{};
    Label* lblCurrent_ = nullptr;
    Label* lblTotal_ = nullptr;
};

}  // namespace quizzes
