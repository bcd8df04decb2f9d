#include "vocabulary/word_matching.h"

#include "catalogue/score_slots.h"
#include "core/play_sound.h"
#include "core/stores.h"
#include "course/score.h"
#include "course/shuffle.h"
#include "vocabulary/fade.h"
#include "vocabulary/fitted_caption.h"
#include "vocabulary/word_list.h"

namespace vocabulary {

using platform::Recordset;
using platform::TextRole;

namespace {

constexpr int pairsPerPage = 10;
// From this many words on, a list is played on two pages.
constexpr int twoPageWords = 14;

const QString table = QStringLiteral("testword6");
const QString allRows = QStringLiteral("Select * from testword6");
const QString firstPage = QStringLiteral("Select * from testword6 where orderno <=10");
const QString secondPage = QStringLiteral("Select * from testword6 where orderno >10");
const QString orderNo = QStringLiteral("orderno");
const QString orderNo2 = QStringLiteral("orderno2");
const QString correct = QStringLiteral("correct");

const course::ChromeLayout chrome{
    .hasBegin = false,
    .hasQuiz = false,
    .nextLabelName = "Label1",
    .nextCaption = "Next Quiz",
    .preLabelName = "Label2",
    .preCaption = "Pre Quiz",
    .topicName = "lblTitle2",
};

}  // namespace

WordMatching::WordMatching(core::Context& context)
    : ExerciseScreen(context, QStringLiteral("frmVoca3"), chrome) {
    setAccessibleName(QStringLiteral("Word matching"));
    session().scoreSlot = catalogue::Matching;
    picNext().hide();
    picPre().show();
    buildTexts();
    buildColumns();
    // The keyboard starts on the form: on the first control in the chain, Space would end the program.
    setFocus();
}

void WordMatching::buildTexts() {
    addLabel(QStringLiteral("lblMemo"), QRect(44, 104, 640, 24), TextRole::Body,
             QStringLiteral("단어를 클릭하고 해당 단어의 뜻을 클릭하십시오. "));
    addLabel(QStringLiteral("Label3"), QRect(58, 142, 280, 24), TextRole::Heading, QStringLiteral("Word "));
    addLabel(QStringLiteral("Label4"), QRect(378, 142, 440, 24), TextRole::Heading,
             QStringLiteral("Definition in Korean"));
    addLabel(QStringLiteral("Label8"), QRect(course::sideLeft, 100, 104, 20), TextRole::Caption,
             QStringLiteral("Current No."));
    lblCurrent_ =
        &addLabel(QStringLiteral("lblCurrent"), QRect(course::sideLeft, 122, 104, 26), TextRole::Letter);
    lblTotal_ =
        &addLabel(QStringLiteral("lblTotal"), QRect(course::sideLeft, 160, 104, 26), TextRole::Letter);
    for (const char* counter : {"Label8", "lblCurrent", "lblTotal"})
        findChild<Label*>(QLatin1String(counter))->setAlignment(Qt::AlignCenter);
    lblAnswer_ = &addLabel(QStringLiteral("lblAnswer"), QRect(378, 680, 440, 22), TextRole::Body);
    lblAnswer_->hide();
    const auto mark = [this](const char* name, const char* spoken, const QString& picture) {
        PictureButton& button =
            addPictureButton(QLatin1String(name), QRect(752, 104, 72, 28), QLatin1String(spoken));
        button.setFocusPolicy(Qt::NoFocus);
        loadPicture(button, picture);
        button.hide();
        return &button;
    };
    picNo_ = mark("picNo", "Page 1 of 2", QStringLiteral("button\\page1.jpg"));
    picNo2_ = mark("picNo2", "Page 2 of 2", QStringLiteral("button\\page2.jpg"));
}

void WordMatching::buildColumns() {
    const auto applyLook = [this](Label& label, int leftMargin) {
        label.setPanel(platform::colour::choice, platform::colour::choiceLine);
        label.setContentsMargins(qRound(leftMargin * scale()), 0, qRound(8 * scale()), 0);
        label.setFocusPolicy(Qt::TabFocus);
        label.hide();
    };
    for (int i = 0; i < pairsPerPage; ++i) {
        const int top = 172 + i * 51;
        Label& word = addLabel(lblWord_, QRect(44, top, 286, 43), TextRole::Letter);
        word.onClick = [this, i] { wordClicked(i); };
        applyLook(word, 14);
        Label& definition = addLabel(lblDefinition_, QRect(364, top, 460, 43), TextRole::Letter);
        definition.onClick = [this, i] { definitionClicked(i); };
        definition.onMouseMove = [this, i] { definitionHovered(i); };
        applyLook(definition, 14);
    }
    setHandCursor(lblWord_(0), QStringLiteral("harrow.cur"));
    for (int i = 0; i < pairsPerPage; ++i) {
        lblWord_(i).setCursor(lblWord_(0).cursor());
        lblDefinition_(i).setCursor(lblWord_(0).cursor());
    }
}

void WordMatching::firstTick() {
    fillWorkingList();
    matchRs_ = matchDb_.openRecordset(allRows);
    if (matchRs_.isEmpty()) {
        context().boxes.notice(QStringLiteral("짝을 맞출 단어가 없으므로 학습표로 돌아갑니다."));
        leaveTo(QStringLiteral("frmTable"));
        return;
    }
    matchTotal_ = countRows(matchRs_);
    picNo_->setVisible(matchTotal_ >= twoPageWords);
    matchNo_ = 1;
    lblCurrent_->setCaption(QString::number(matchNo_));
    lblTotal_->setCaption(QString::number(matchTotal_));
    matchPage_ = 1;
    cleanMatch_ = true;
    MakeFirstPage();
    picNext().show();
}

void WordMatching::fillWorkingList() {
    platform::Database bookDb = core::openWordBook(context());
    Recordset book = bookDb.openRecordset(QStringLiteral("select * from word_book"));
    matchDb_ = core::openTestWords(context());
    emptyTable(matchDb_, table);
    copyWords(book, matchDb_, table);
}

void WordMatching::MakeFirstPage() {
    platform::Transaction transaction(matchDb_);
    matchRs_ = matchDb_.openRecordset(allRows);
    matchTotal_ = countRows(matchRs_);
    for (; !matchRs_.eof(); matchRs_.moveNext()) {
        matchRs_.edit();
        matchRs_.set(correct, QStringLiteral("NO"));
        matchRs_.set(orderNo, 0);
        matchRs_.set(orderNo2, 0);
        matchRs_.update();
    }
    course::shuffleRows(context(), matchRs_, orderNo, matchTotal_);
    deleteAbove(matchRs_, matchTotal_ < twoPageWords ? pairsPerPage : 2 * pairsPerPage);
    matchRs_ = matchDb_.openRecordset(allRows);
    matchTotal_ = countRows(matchRs_);
    lblTotal_->setCaption(QString::number(matchTotal_));
    drawPageOrder(firstPage);
    transaction.commit();
    showPage(firstPage);
    chosenWord_ = 0;
    matchNo_ = 1;
    lblCurrent_->setCaption(QString::number(matchNo_));
}

void WordMatching::MakeSecondPage() {
    matchPage_ = 2;
    clearColumns();
    platform::Transaction transaction(matchDb_);
    Recordset rows = matchDb_.openRecordset(allRows);
    for (; !rows.eof(); rows.moveNext()) {
        rows.edit();
        rows.set(orderNo2, 0);
        rows.update();
    }
    drawPageOrder(secondPage);
    transaction.commit();
    showPage(secondPage);
}

void WordMatching::drawPageOrder(const QString& filter) {
    Recordset rows = matchDb_.openRecordset(filter);
    const int count = countRows(rows);
    course::shuffleRows(context(), rows, orderNo2, count);
}

void WordMatching::showPage(const QString& filter) {
    matchRs_ = matchDb_.openRecordset(filter + QStringLiteral(" order by orderno"));
    for (int i = 0; i < pairsPerPage && !matchRs_.eof(); ++i, matchRs_.moveNext()) {
        setFittedCaption(*this, lblWord_(i), matchRs_.text(QStringLiteral("word")), TextRole::Letter);
        lblWord_(i).show();
        lblWord_(i).setForeColor(platform::colour::black);
    }
    matchRs_ = matchDb_.openRecordset(filter + QStringLiteral(" order by orderno2"));
    for (int i = 0; i < pairsPerPage && !matchRs_.eof(); ++i, matchRs_.moveNext()) {
        setFittedCaption(*this, lblDefinition_(i), matchRs_.text(QStringLiteral("definition")),
                         TextRole::Letter);
        lblDefinition_(i).show();
    }
}

void WordMatching::clearColumns() {
    for (const auto* column : {&lblWord_, &lblDefinition_})
        for (Label* label : *column) {
            label->setCaption(QString());
            label->hide();
        }
    endFades(*this);
}

void WordMatching::findWord(int number) {
    matchRs_.findFirst(QStringLiteral("orderno=%1").arg(matchPage_ == 1 ? number : number + pairsPerPage));
}

void WordMatching::wordClicked(int index) {
    findWord(index + 1);
    lblAnswer_->setCaption(matchRs_.text(QStringLiteral("definition")));
    for (Label* word : lblWord_)
        word->setForeColor(platform::colour::black);
    lblWord_(index).setForeColor(platform::colour::red);
    chosenWord_ = index + 1;
}

void WordMatching::definitionClicked(int index) {
    if (chosenWord_ == 0) {
        context().boxes.notice(QStringLiteral("단어를 먼저 선택하십시오."));
        return;
    }
    findWord(chosenWord_);
    if (matchRs_.integer(orderNo2) == index + 1) {
        pairMatched(index);
        return;
    }
    core::PlaySound(context(), QStringLiteral("wrongit.wav"), core::Effect);
    cleanMatch_ = false;
}

void WordMatching::pairMatched(int definitionIndex) {
    if (cleanMatch_) {
        matchRs_.edit();
        matchRs_.set(correct, QStringLiteral("YES"));
        matchRs_.update();
    }
    core::PlaySound(context(), QStringLiteral("correct.wav"), core::Effect);
    fadeAway(lblWord_(chosenWord_ - 1));
    chosenWord_ = 0;
    fadeAway(lblDefinition_(definitionIndex));
    ++matchNo_;
    if (matchNo_ > matchTotal_) {
        finish();
        return;
    }
    if (matchTotal_ > pairsPerPage && matchNo_ == pairsPerPage + 1) {
        MakeSecondPage();
        picNo_->hide();
        picNo2_->show();
    }
    lblCurrent_->setCaption(QString::number(matchNo_));
    cleanMatch_ = true;
}

void WordMatching::finish() {
    int clean = 0;
    for (Recordset rows = matchDb_.openRecordset(allRows); !rows.eof(); rows.moveNext())
        clean += rows.text(correct) == QStringLiteral("YES") ? 1 : 0;
    session().scoreValue = course::percentScore(clean, matchTotal_);
    core::PlaySound(context(), QStringLiteral("finishsong.wav"), core::Effect);
    session().partDone[1] = QStringLiteral("YES");
    context().boxes.notice(
        QStringLiteral("수고하였습니다.  점수는 %1 입니다.\n\n<Next>를 클릭하여 다음으로 진행하십시오")
            .arg(session().scoreValue));
    course::SaveScore(context());
}

void WordMatching::definitionHovered(int index) {
    if (!hoverOpen())
        return;
    for (Label* definition : lblDefinition_)
        definition->setForeColor(platform::colour::black);
    lblDefinition_(index).setForeColor(platform::colour::red);
}

void WordMatching::closeRecordsets() {
    matchRs_.close();
    matchDb_.close();
}

}  // namespace vocabulary
