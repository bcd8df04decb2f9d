#pragma once

#include "catalogue/drills.h"
#include "platform/desktop/controls.h"
#include "tests/support/desk.h"

namespace lessons_test {

using platform::BoxMark;
using platform::Label;
using platform::PictureButton;
using platform::TextBox;
namespace colour = platform::colour;

/// One row of `basic_Data`: prompt and answer as a rule, and the scratch field.
struct Row {
    QString word1;
    QString word2;
    QString word3 = QStringLiteral("left over");
};

/// A desk with the content of one drill step, and the hands to work the drill.
class DrillDesk : public support::Desk {
   public:
    static constexpr int topic = 1;

    /// A step of its own number for the screen, with as many rows as the screen has boxes, a tip and rules.
    explicit DrillDesk(const QString& screen);
    /// The same with rows of the test's own.
    DrillDesk(const QString& screen, const std::vector<Row>& rows);

    /// "one", "ones" and the like: rows that suit any screen.
    static std::vector<Row> plainRows(int count);

    void setRows(const std::vector<Row>& rows, int record);
    void setSecondList(int count);
    void setTip(const QString& text);
    void setRules(int count, int record);

    const catalogue::Drill& drill() const { return drill_; }
    int step() const { return session.recordNo; }
    /// Opens the screen; null when it failed.
    core::Screen* open();
    core::Screen& form();

    TextBox& box(int index);
    Label& label(const char* name);
    QString caption(const char* name) { return label(name).caption(); }
    bool isShown(const char* name);
    QString boxText(int index) { return box(index).text(); }
    /// Texts of the boxes of a range.
    QStringList boxTexts(int first, int count);
    void press(const char* button);
    void begin() { press("picBegin"); }
    void check() { press("picQuiz"); }
    /// Puts texts into the boxes from box 0 on.
    void answer(const QStringList& words);
    void answer(int index, const QString& word);
    /// The right words of the rows, in order.
    QStringList rightWords() const;
    /// Types all rows' words, but rubbish into some boxes, and presses the check.
    void answerAndCheck(const std::vector<int>& wrong = {});
    /// The same after a press of Begin.
    void fail(const std::vector<int>& wrong);
    void key(int index, Qt::Key key);
    /// The number of the box that has the focus, -1 without one.
    int focusedBox();

    QStringList blanks() {
        return this->rows(support::courseStore,
                          "SELECT orderno, blankno, word, showword FROM blankno ORDER BY orderno");
    }
    QStringList content(const char* field);
    QStringList wrongBoxes();

   private:
    const catalogue::Drill& drill_;
    std::vector<Row> rows_;
};

}  // namespace lessons_test
