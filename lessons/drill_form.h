#pragma once

#include "catalogue/drills.h"
#include "course/exercise_screen.h"
#include "lessons/drill_layout.h"
#include "platform/storage/recordset.h"

namespace lessons {

using catalogue::ClosedSets;
using catalogue::Drill;
using catalogue::SetUse;

using core::Int16;
using platform::Label;
using platform::Recordset;
using platform::TextBox;

/// What all drill screens share: the controls that a catalogue row asks for, the content on the form, the
/// way from box to box, and the sets of rows to close.
class DrillForm : public course::ExerciseScreen {
    Q_OBJECT
   public:
    DrillForm(core::Context& context, const Drill& drill);

   protected:
    const Drill& drill() const { return drill_; }

    void firstTick() override;
    /// Enter was pressed in a box that is not the last.
    virtual void enterPressed(int box) = 0;

    void closeRecordsets() override { close(drill_.closes); }
    void closeRecordsetsForNo() override { close(drill_.closesForNo); }
    void closeRecordsetsForPre() override { close(drill_.closesForPre); }
    void nextClicked() override;
    void preClicked() override;

    /// How many boxes are in play.
    int boxCount() const { return boxCount_; }
    /// Selects the text of a box, so that typing replaces it, and puts the focus there.
    void goTo(int box);
    /// Goes from a box to the next one on the list in `blankRs`: from any box off the list to its first, from
    /// its last nowhere.
    void goToNextListed(int box);

    void openRows();
    /// Puts `basicRs` at its first row. Throws an error that names step, table and count where it has none.
    void toFirstRow();
    void openBlanks(const QString& rest = QStringLiteral(" order by orderno"));
    void deleteBlanks();
    bool retrying() const { return retryState_ == QStringLiteral("YES"); }
    void startRetrying() { retryState_ = QStringLiteral("YES"); }
    /// After a press of Begin: the boxes can be typed in and checked.
    void showTyping();
    /// After a failed check, and on the screens that ask again after a passed one.
    void showReview();
    void setBox(int box, const QString& text, QRgb foreColor,
                platform::BoxMark mark = platform::BoxMark::None);
    void blankAllBoxes();
    /// The only score a drill can have, stored for the step in hand.
    void saveFullMarks();
    /// Tells that the drill is done.
    void showCompletion();

    Recordset tipRs;
    Recordset tip2Rs;
    Recordset basicRs;
    Recordset blankRs;
    platform::ControlArray<TextBox> txtWord{QStringLiteral("txtWord")};
    platform::ControlArray<Label> lblWord;

   private:
    void buildTexts();
    void buildGrid();
    void buildBox(const GridBlock& block, int n);
    void fitText(TextBox& box) const;
    void keyDown(int box, int code);
    void readTip();
    void readRules();
    void readSecondList();
    void readRows();
    void writeRows();
    void fillRow(int row);
    bool isPlainRow() const;
    void close(const ClosedSets& sets);
    int recordNo() const;
    QString stepQuery(const char* table, const QString& order = {}) const;
    /// Whether a set of the step is to be read: false for one that the screen leaves alone, and for one
    /// without rows where the drill goes on without them. Throws where it needs one.
    bool isToBeRead(const Recordset& rows, SetUse use, const char* table) const;
    /// Throws where a set has more rows than the form has room for; else the set stands at its first row.
    void requireRoom(Recordset& rows, int room, const char* table, const QString& control) const;

    const Drill& drill_;
    platform::ControlArray<Label> lblTopic3_{QStringLiteral("lblTopic3")};
    platform::StoryBox* txtStory_ = nullptr;
    Int16 boxCount_;
    QString retryState_ = QStringLiteral("NO");
};

/// Sets a field of the current row unless it holds just that, so that a load which changes nothing costs no
/// write.
void setField(Recordset& rows, const QString& field, const platform::Value& value);

}  // namespace lessons
