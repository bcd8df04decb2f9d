#include "vocabulary/word_quiz.h"

#include "catalogue/score_slots.h"
#include "core/play_sound.h"
#include "core/stores.h"
#include "course/score.h"
#include "course/shuffle.h"
#include "course/walk.h"
#include "platform/desktop/cursor.h"
#include "vocabulary/fitted_caption.h"
#include "vocabulary/word_list.h"

namespace vocabulary {

using platform::Recordset;
using platform::TextRole;

namespace {

constexpr int quizStepWords = 20;
constexpr int shownFromMiss = 3;
constexpr int ticksToNextWord = 2;
constexpr int left = 66;

const QString word = QStringLiteral("word");
const QString definition = QStringLiteral("definition");
const QString orderNo = QStringLiteral("orderno");

const course::ChromeLayout chrome{
    .picture = "diary.jpg",
    .hasQuiz = false,
    .nextLabelName = "Label1",
    .preLabelName = "Label4",
    .preCaption = "Pre Quiz",
    .topicName = "lblTitle2",
};

}  // namespace

WordQuiz::WordQuiz(core::Context& context) : ExerciseScreen(context, QStringLiteral("frmVoca4"), chrome) {
    setAccessibleName(QStringLiteral("Vocabulary quiz"));
    session().scoreSlot = catalogue::WordQuiz;
    picPre().show();
    buildTexts();
    buildQuiz();
    picBegin().setFocus();
}

void WordQuiz::buildTexts() {
    // Of the three word screens this one alone keeps its own title.
    findChild<Label*>(QStringLiteral("lblTitle2"))->setCaption(QStringLiteral("Vocabulary - Part 1"));
    addLabel(lblMemo_, QRect(44, 106, 790, 22), TextRole::Body)
        .setCaption(QStringLiteral("<Begin>을 클릭한 후 한국어 뜻에 해당하는 철자를 입력하십시오"));
    addLabel(lblMemo_, QRect(44, 130, 790, 22), TextRole::Body)
        .setCaption(QStringLiteral("단어를 입력한 후 자판의 <Enter>를 누르거나 전체 단어를 입력한 후에는 "
                                   "자동으로 다음 단어가 출제됩니다"));
    const auto counter = [this](const char* captionName, const char* caption, const char* name, int top) {
        addLabel(QLatin1String(captionName), QRect(course::sideLeft, top, 104, 20), TextRole::Caption,
                 QLatin1String(caption))
            .setAlignment(Qt::AlignCenter);
        Label& number =
            addLabel(QLatin1String(name), QRect(course::sideLeft, top + 22, 104, 26), TextRole::Letter);
        number.setAlignment(Qt::AlignCenter);
        return &number;
    };
    lblNow_ = counter("Label2", "Current No.", "lblNow", 100);
    lblTotal_ = counter("Label3", "Total No.", "lblTotal", 164);
    lblMiss_ = counter("Label6", "Missed No", "lblMiss", 228);
}

void WordQuiz::buildQuiz() {
    picRight_ =
        &addPictureButton(QStringLiteral("picRight"), placeOf(picBegin()), QStringLiteral("Check the word"));
    picRight_->setCursor(Qt::PointingHandCursor);
    picRight_->onClick = [this] {
        if (answerOpen_)
            JudgeWord();
    };
    picRight_->onMouseMove = [this] {
        if (!spendHover())
            return;
        core::PlaySound(context(), QStringLiteral("touchit.wav"), core::Effect);
        loadPicture(*picRight_, QStringLiteral("button\\right2.jpg"));
    };
    restoreHover();
    picRight_->hide();
    lblWord_ = &addLabel(QStringLiteral("lblWord"), QRect(left, 232, 740, 52), TextRole::Meaning);
    lblLetter_ = &addLabel(QStringLiteral("lblLetter"), QRect(left, 300, 120, 44), TextRole::Meaning);
    lblLetter_->setForeColor(platform::colour::accent);
    letters_ = new LetterRow(*this, QStringLiteral("txtType1"), QPoint(left, 364), QStringLiteral("Word"));
    letters_->onLetter = [this](int index) { letterTyped(index); };
    letters_->onKeyDown = [this](int index, int keyCode) { keyPressed(index, keyCode); };
    web1_ = new WordPlayer(context(), QStringLiteral("Web1"), this);
    timer1_ = new platform::Timer(QStringLiteral("Timer1"), 1, this);
    timer1_->onTick = [this] { nextWordTick(); };
}

std::vector<QWidget*> WordQuiz::afterAnswers() const {
    return {picRight_, &picBegin()};
}

void WordQuiz::restoreHover() {
    loadPicture(*picRight_, QStringLiteral("button\\right1.jpg"));
}

void WordQuiz::firstTick() {
    quizDb_ = core::openTestWords(context());
    testwordRs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword"));
    testword2Rs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword2"));
    testword3Rs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword3"));
    testword4Rs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword4"));
}

void WordQuiz::beginClicked() {
    // The stores open with the first tick, a moment after the screen.
    if (!quizDb_.isOpen())
        return;
    letters_->setLocked(false);
    firstTryCount_ = 0;
    firstTryOpen_ = true;
    missCount_ = 0;
    lblMiss_->setCaption(QString::number(missCount_));
    if (!fillWorkingList()) {
        context().boxes.show(
            {QStringLiteral("Data Error입니다.  단어 퀴즈 1 데이타가 없습니다.\n\n"
                            "프로그램을 재설치하십시오.  계속 문제가 발생시 브린들본사로 연락하십시오"),
             platform::BoxIcon::Information, QStringLiteral("Brindle English")});
        return;
    }
    if (const QString tooLong = wordWithoutRoom(); !tooLong.isEmpty()) {
        context().boxes.notice(
            QStringLiteral("'%1'은(는) %2글자를 넘어 입력할 칸이 모자라므로 학습표로 돌아갑니다.")
                .arg(tooLong)
                .arg(boxCount));
        leaveTo(QStringLiteral("frmTable"));
        return;
    }
    firstTryCount_ = 0;
    missCount_ = 0;
    picBegin().hide();
    picRight_->show();
    quizNo_ = 1;
    lblNow_->setCaption(QString::number(quizNo_));
    PrepareQuizList();
}

bool WordQuiz::fillWorkingList() {
    platform::Database bookDb = core::openWordBook(context());
    emptyTable(quizDb_, QStringLiteral("testword"));
    Recordset book = bookDb.openRecordset(QStringLiteral("Select * from word_book"));
    if (book.isEmpty())
        return false;
    platform::Transaction transaction(quizDb_);
    copyWords(book, quizDb_, QStringLiteral("testword"), {}, [](Recordset& row) { row.set(orderNo, 0); });
    testwordRs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword"));
    const int count = countRows(testwordRs_);
    course::shuffleRows(context(), testwordRs_, orderNo, count);
    testwordRs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword order by orderno"));
    if (session().stepType != QStringLiteral("Lesson"))
        deleteAbove(testwordRs_, quizStepWords);
    transaction.commit();
    return true;
}

QString WordQuiz::wordWithoutRoom() {
    for (testwordRs_.moveFirst(); !testwordRs_.eof(); testwordRs_.moveNext())
        if (testwordRs_.textOrEmpty(word).size() > boxCount)
            return testwordRs_.text(word);
    return {};
}

void WordQuiz::PrepareQuizList() {
    const platform::Hourglass hourglass;
    platform::Transaction transaction(quizDb_);
    emptyTable(quizDb_, QStringLiteral("testword2"));
    testword2Rs_ = quizDb_.openRecordset(QStringLiteral("Select * from testword2"));
    for (testwordRs_.moveFirst(); !testwordRs_.eof(); testwordRs_.moveNext()) {
        testword2Rs_.addNew();
        testword2Rs_.set(word, testwordRs_.value(word));
        testword2Rs_.set(definition, testwordRs_.value(definition));
        testword2Rs_.set(orderNo, 0);
        for (const char* field : {"scode", "korean", "answer1", "answer2", "answer3", "answer4", "word1",
                                  "word2", "word3", "word4"})
            testword2Rs_.set(QLatin1String(field), QStringLiteral("Blank"));
        testword2Rs_.set(QStringLiteral("missed"), QStringLiteral("NO"));
        testword2Rs_.set(QStringLiteral("answerno"), 0);
        testword2Rs_.update();
    }
    const QString ordered = QStringLiteral("Select * from testword2 order by orderno");
    testword2Rs_ = quizDb_.openRecordset(ordered);
    quizTotal_ = countRows(testword2Rs_);
    course::shuffleRows(context(), testword2Rs_, orderNo, quizTotal_);
    transaction.commit();
    testword2Rs_ = quizDb_.openRecordset(ordered);
    testword2Rs_.moveFirst();
    lblTotal_->setCaption(QString::number(quizTotal_));
    lblNow_->setCaption(QString::number(1));
    showWord();
    answerOpen_ = true;
}

void WordQuiz::showWord() {
    wordCounted_ = false;
    const QString spelled = testword2Rs_.text(word);
    setFittedCaption(*this, *lblWord_, testword2Rs_.text(definition), TextRole::Meaning);
    lblLetter_->setCaption(spelled.left(1));
    letters_->empty();
    letters_->showFirst(static_cast<int>(spelled.size()));
    letters_->focus(0);
}

void WordQuiz::letterTyped(int index) {
    if (!answerOpen_)
        return;
    if (const auto next = shownBoxAfter(letters_->read(), index))
        letters_->focus(*next);
    else
        JudgeWord();
}

void WordQuiz::keyPressed(int index, int keyCode) {
    if (!answerOpen_)
        return;
    letters_->stepBack(index, keyCode);
    if (keyCode == platform::key::enter)
        JudgeWord();
}

void WordQuiz::JudgeWord() {
    const QString spelled = testword2Rs_.text(word);
    if (!sameWord(letters_->word(), spelled))
        wordWrong(spelled);
    else if (quizNo_ < quizTotal_)
        wordRight();
    else
        finish();
}

void WordQuiz::wordRight() {
    core::PlaySound(context(), QStringLiteral("correct.wav"), core::Effect);
    countWord();
    web1_->setUrl(session().mediaSoundDir + testword2Rs_.text(word) + QStringLiteral(".wav"));
    timer1_->setEnabled(true);
}

void WordQuiz::wordWrong(const QString& spelled) {
    firstTryOpen_ = false;
    ++missCount_;
    lblMiss_->setCaption(QString::number(missCount_));
    core::PlaySound(context(), QStringLiteral("wrongit.wav"), core::Effect);
    if (missCount_ >= shownFromMiss)
        context().boxes.plain(QStringLiteral("Correct Answer Word: ") + spelled);
    letters_->empty();
    letters_->focus(0);
}

// The boxes stay live until the next word comes, and Enter judges the same word once more.
void WordQuiz::countWord() {
    if (firstTryOpen_ && !wordCounted_)
        ++firstTryCount_;
    wordCounted_ = true;
}

void WordQuiz::finish() {
    answerOpen_ = false;
    countWord();
    core::PlaySound(context(), QStringLiteral("correct.wav"), core::Effect);
    lblWord_->setCaption(QString());
    letters_->empty();
    showBegin(true);
    session().scoreValue = course::percentScore(firstTryCount_, quizTotal_);
    core::PlaySound(context(), QStringLiteral("finishsong.wav"), core::Effect);
    session().partDone[2] = QStringLiteral("YES");
    context().boxes.notice(QStringLiteral("Vocabulary Quiz 2가 완료되었습니다.\n\n퀴즈 점수는 %1 입니다.")
                               .arg(session().scoreValue));
    course::SaveScore(context());
    leave();
    course::ShowFormByName(context());
}

void WordQuiz::nextWordTick() {
    if (isUnloaded())
        return;
    ++nextWordTicks_;
    if (nextWordTicks_ < ticksToNextWord)
        return;
    ++quizNo_;
    testword2Rs_.moveFirst();
    testword2Rs_.move(quizNo_ - 1);
    firstTryOpen_ = true;
    missCount_ = 0;
    lblNow_->setCaption(QString::number(quizNo_));
    showWord();
    timer1_->setEnabled(false);
    nextWordTicks_ = 0;
}

void WordQuiz::nextClicked() {
    leave();
    course::ShowFormByName(context());
}

void WordQuiz::closeRecordsets() {
    testword4Rs_.close();
    testword3Rs_.close();
    testwordRs_.close();
    testword2Rs_.close();
    quizDb_.close();
}

}  // namespace vocabulary
