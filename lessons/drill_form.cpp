#include "lessons/drill_form.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "course/score.h"
#include "course/walk.h"
#include "lessons/box_keys.h"
#include "lessons/drill_look.h"

#include <QFontMetrics>

namespace lessons {

using catalogue::always;
using catalogue::BoxColour;
using catalogue::CompletionIcon;
using catalogue::Field;
using catalogue::never;
using catalogue::Prompts;

using platform::TextRole;

namespace {

// What boxes and prompts hold by design, and go on holding where a step has fewer rows than the form boxes.
const QString samplePrompt = QStringLiteral("house");
const QString sampleAnswer = QStringLiteral("houses");

constexpr int narrowBox = 100;
// A text that is too long for its box is written smaller, down to this.
constexpr int leastPixels = 9;

}  // namespace

void setField(Recordset& rows, const QString& field, const platform::Value& value) {
    if (rows.value(field).content() == value.content())
        return;
    rows.edit();
    rows.set(field, value);
    rows.update();
}

DrillForm::DrillForm(core::Context& context, const Drill& drill)
    : ExerciseScreen(context, QString::fromUtf8(drill.name), chromeOf(drill)),
      lblWord(QString::fromUtf8(drill.promptName)),
      drill_(drill) {
    session().scoreSlot = drill.scoreSlot;
    showPreByWords();
    boxCount_ = drill.countsRows ? 0 : drill.boxes;
    buildTexts();
    buildGrid();
}

void DrillForm::buildTexts() {
    const DrillLayout& layout = layoutOf(drill_.name);
    addLabel(QStringLiteral("lblTopic2"), layout.headline, TextRole::Heading,
             QString::fromUtf8(drill_.headline));
    Label& instruction = addLabel(QString::fromUtf8(drill_.instructionName), layout.instruction,
                                  TextRole::Body, QString::fromUtf8(drill_.instruction));
    instruction.setWordWrap(true);
    instruction.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (!layout.story.isNull()) {
        txtStory_ = &addStoryBox(QStringLiteral("txtStory"), layout.story);
        txtStory_->setAccessibleName(QStringLiteral("Explanation"));
    }
    for (int i = 0; i < drill_.ruleLines; ++i)
        addLabel(lblTopic3_, rulePlace(layout.rules, i), TextRole::Body);
    for (const FixedText& text : layout.texts) {
        Label& label =
            addLabel(QString::fromUtf8(text.name), text.place, text.role, QString::fromUtf8(text.text));
        if (text.centred)
            label.setAlignment(Qt::AlignCenter);
    }
}

void DrillForm::buildGrid() {
    for (const GridBlock& block : layoutOf(drill_.name).grid)
        for (int n = 0; n < block.count; ++n)
            buildBox(block, n);
    for (int i = 0; i < static_cast<int>(drill_.fixedPrompts.size()); ++i)
        lblWord(i).setCaption(QString::fromUtf8(drill_.fixedPrompts[static_cast<std::size_t>(i)]));
}

void DrillForm::buildBox(const GridBlock& block, int n) {
    if (block.promptWidth > 0) {
        Label& prompt = addLabel(lblWord, promptPlace(block, n), TextRole::Prompt);
        prompt.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        prompt.setCaption(samplePrompt);
        prompt.setVisible(!drill_.countsRows);
    }
    TextBox& box = addTextBox(txtWord, boxPlace(block, n), boxRole(drill_));
    const int index = txtWord.size() - 1;
    box.setFocusPolicy(Qt::ClickFocus);
    // Room for the sign at the right edge, which is as high as the box.
    const bool narrow = block.box.width() < narrowBox;
    box.setTextMargins(narrow ? 1 : 8, 0, narrow ? 12 : 14, 0);
    box.setBackColor(boxColour(drill_, index));
    box.setAccessibleName(QStringLiteral("Box %1").arg(index + 1));
    box.setVisible(index < drill_.boxes);
    box.setEnabled(!drill_.countsRows);
    if (!drill_.countsRows)
        box.setText(sampleAnswer);
    // A sign stands for the answer it was given for; a box that stays locked goes on telling that it is.
    box.onChange = [this, &box] {
        box.setMark(box.locked() ? platform::BoxMark::Given : platform::BoxMark::None);
        fitText(box);
    };
    box.onKeyDown = [this, index](int code) { keyDown(index, code); };
}

void DrillForm::fitText(TextBox& box) const {
    QFont font = platform::roleFont(boxRole(drill_), scale());
    while (font.pixelSize() > leastPixels &&
           QFontMetrics(font).horizontalAdvance(box.text()) > box.textRoom())
        font.setPixelSize(font.pixelSize() - 1);
    if (box.font().pixelSize() != font.pixelSize())
        box.setFont(font);
}

int DrillForm::recordNo() const {
    return drill_.contentRecord != 0 ? Int16(drill_.contentRecord) : session().recordNo;
}

QString DrillForm::stepQuery(const char* table, const QString& order) const {
    return QStringLiteral("Select * from %1 where topicno=%2 and recordno=%3%4")
        .arg(QLatin1String(table))
        .arg(session().topicNo)
        .arg(recordNo())
        .arg(order);
}

bool DrillForm::isToBeRead(const Recordset& rows, SetUse use, const char* table) const {
    if (use == SetUse::Absent || use == SetUse::Opened)
        return false;
    if (!rows.isEmpty())
        return true;
    if (use == SetUse::Guarded)
        return false;
    throw platform::RuntimeError(
        platform::ErrorCode::NoCurrentRecord,
        QStringLiteral("No current record: step %1 of topic %2 has 0 rows in table '%3', and "
                       "%4 needs at least 1 (%5).")
            .arg(recordNo())
            .arg(session().topicNo)
            .arg(QLatin1String(table), objectName(), rows.description()));
}

void DrillForm::requireRoom(Recordset& rows, int room, const char* table, const QString& control) const {
    rows.moveLast();
    const int count = rows.recordCount();
    if (count > room)
        throw platform::RuntimeError(
            platform::ErrorCode::SubscriptOutOfRange,
            QStringLiteral("Subscript out of range: step %1 of topic %2 has %3 rows in table "
                           "'%4', and %5 has room for %6 (%7).")
                .arg(recordNo())
                .arg(session().topicNo)
                .arg(count)
                .arg(QLatin1String(table), objectName())
                .arg(room)
                .arg(control));
    rows.moveFirst();
}

void DrillForm::firstTick() {
    session().scoreSlot = drill_.scoreSlot;
    showPreByWords();
    contentDb = core::openCourse(context());
    readTip();
    readRules();
    readSecondList();
    readRows();
    picNext().show();
    if (drill_.hidesNextInReview && session().isReview())
        picNext().hide();
    // Space then starts the drill, or scrolls a page that is only read.
    if (drill_.hasBegin)
        picBegin().setFocus();
    else
        txtStory_->setFocus();
}

void DrillForm::readTip() {
    if (drill_.tip == SetUse::Absent)
        return;
    tipRs = contentDb.openRecordset(stepQuery("gram_tip"));
    if (isToBeRead(tipRs, drill_.tip, "gram_tip"))
        txtStory_->setText(tipRs.text(QStringLiteral("tips")));
    else if (*drill_.missingTip != '\0')
        context().boxes.plain(QString::fromUtf8(drill_.missingTip));
}

void DrillForm::readRules() {
    if (drill_.rules == SetUse::Absent)
        return;
    tip2Rs = contentDb.openRecordset(stepQuery("gram_tip2", QStringLiteral(" order by orderno")));
    if (!isToBeRead(tip2Rs, drill_.rules, "gram_tip2"))
        return;
    requireRoom(tip2Rs, lblTopic3_.size(), "gram_tip2", lblTopic3_.name());
    for (int i = 0; !tip2Rs.eof(); ++i, tip2Rs.moveNext())
        lblTopic3_(i).setCaption(tip2Rs.text(QStringLiteral("tip2")));
}

void DrillForm::readSecondList() {
    if (drill_.promptSource != Prompts::SecondList)
        return;
    // Whole, without regard to the step.
    basicRs = contentDb.openRecordset(QStringLiteral("Select * from basic_data2 order by orderno2"));
    if (isToBeRead(basicRs, SetUse::Guarded, "basic_data2")) {
        requireRoom(basicRs, lblWord.size(), "basic_data2", lblWord.name());
        for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext())
            lblWord(i).setCaption(basicRs.text(QStringLiteral("word")));
    }
    basicRs.close();
}

void DrillForm::readRows() {
    if (drill_.rows == SetUse::Absent)
        return;
    openRows();
    if (isToBeRead(basicRs, drill_.rows, "basic_data")) {
        requireRoom(basicRs, txtWord.size(), "basic_data", txtWord.name());
        if (drill_.countsRows)
            boxCount_ = basicRs.recordCount();
        writeRows();
        basicRs.moveFirst();
        for (int i = 0; !basicRs.eof(); ++i, basicRs.moveNext())
            fillRow(i);
    }
    openBlanks();
}

bool DrillForm::isPlainRow() const {
    return drill_.plainFromOrder != never &&
           (drill_.plainFromOrder == always ||
            basicRs.integer(QStringLiteral("orderno")) >= drill_.plainFromOrder);
}

void DrillForm::writeRows() {
    platform::Transaction transaction(contentDb);
    for (; !basicRs.eof(); basicRs.moveNext()) {
        if (drill_.clearsWord3)
            setField(basicRs, QStringLiteral("word3"), QString(QLatin1String("")));
        if (isPlainRow())
            setField(basicRs, QStringLiteral("word2"), basicRs.value(QStringLiteral("word1")));
    }
    transaction.commit();
}

void DrillForm::fillRow(int row) {
    const bool plain = isPlainRow();
    TextBox& box = txtWord(row);
    if (drill_.promptSource == Prompts::Rows && !plain) {
        if (row >= lblWord.size())
            requireRoom(basicRs, lblWord.size(), "basic_data", lblWord.name());
        lblWord(row).setCaption(basicRs.text(QStringLiteral("word1")));
        lblWord(row).show();
    }
    const bool first = plain || drill_.shown == Field::Word1;
    box.setText(basicRs.text(first ? QStringLiteral("word1") : QStringLiteral("word2")));
    box.setEnabled(true);
    if (row < lblWord.size())
        box.setAccessibleName(QStringLiteral("Box %1, %2").arg(row + 1).arg(lblWord(row).caption()));
}

void DrillForm::openRows() {
    basicRs = contentDb.openRecordset(stepQuery("basic_data", QStringLiteral(" order by orderno")));
}

void DrillForm::toFirstRow() {
    if (isToBeRead(basicRs, SetUse::Needed, "basic_data"))
        basicRs.moveFirst();
}

void DrillForm::openBlanks(const QString& rest) {
    blankRs = contentDb.openRecordset(QStringLiteral("Select * from blankno") + rest);
}

void DrillForm::deleteBlanks() {
    openBlanks();
    platform::deleteAll(blankRs);
}

void DrillForm::showTyping() {
    showBegin(false);
    showQuizButton(true);
}

void DrillForm::showReview() {
    showQuizButton(false);
    showBegin(true);
}

void DrillForm::setBox(int box, const QString& text, QRgb foreColor, platform::BoxMark mark) {
    TextBox& target = txtWord(box);
    target.setText(text);
    target.setForeColor(foreColor);
    target.setMark(mark);
}

void DrillForm::blankAllBoxes() {
    for (int i = 0; i < boxCount(); ++i)
        txtWord(i).setText(QString());
}

void DrillForm::saveFullMarks() {
    session().scoreValue = 100;
    course::SaveScore(context());
}

void DrillForm::showCompletion() {
    if (drill_.completionSound)
        core::PlaySound(context(), QStringLiteral("Contestbegin.wav"), core::Effect);
    if (drill_.completionTestsReview && session().isReview())
        return;
    const QString text = QString::fromUtf8(drill_.completion);
    if (drill_.completionIcon == CompletionIcon::Information)
        context().boxes.notice(text);
    else
        context().boxes.plain(text);
}

void DrillForm::goTo(int box) {
    txtWord(box).selectAndFocus();
}

void DrillForm::goToNextListed(int box) {
    blankRs.findFirst(QStringLiteral("blankno=%1").arg(box));
    const int orderNo = blankRs.noMatch() ? 0 : static_cast<int>(blankRs.integer(QStringLiteral("orderno")));
    blankRs.findFirst(QStringLiteral("orderno=%1").arg(orderNo + 1));
    if (!blankRs.noMatch())
        goTo(blankRs.integer(QStringLiteral("blankno")));
}

void DrillForm::keyDown(int box, int code) {
    if (code == platform::key::enter) {
        if (box < boxCount() - 1)
            enterPressed(box);
    } else if (const auto target = boxByKey(txtWord(box), box, boxCount(), code)) {
        goTo(*target);
    }
}

void DrillForm::close(const ClosedSets& sets) {
    if (sets.tip)
        tipRs.close();
    if (sets.rules)
        tip2Rs.close();
    if (sets.rows)
        basicRs.close();
    if (sets.blanks)
        blankRs.close();
}

void DrillForm::nextClicked() {
    if (*drill_.nextScreen != '\0') {
        leaveTo(QString::fromUtf8(drill_.nextScreen));
        return;
    }
    if (!drill_.nextAsksInReview && session().isReview()) {
        leave();
        course::NextStep(context());
        return;
    }
    ExerciseScreen::nextClicked();
}

void DrillForm::preClicked() {
    closeRecordsetsForPre();
    contentDb.close();
    unload();
    context().navigator.open(QString::fromUtf8(drill_.preScreen));
}

}  // namespace lessons
