#include "vocabulary/spelling_coach.h"

#include "core/play_sound.h"
#include "core/stores.h"
#include "course/score.h"
#include "platform/desktop/input_gate.h"
#include "vocabulary/fitted_caption.h"
#include "vocabulary/word_list.h"

namespace vocabulary {

void SpellingCoach::firstTick() {
    bookDb_ = core::openWordBook(context());
    session().dictionaryDb =
        core::openStore(context(), context().applicationFolder + QStringLiteral("\\dicword_K.mdb"));
    session().allwordRs = session().dictionaryDb.openRecordset(QStringLiteral("Select * from allword"));
    wordDb_ = core::openTestWords(context());
    if (!fillWorkingList()) {
        keepTimerRunning();
        context().boxes.notice(QStringLiteral("Data Not Found"));
        return;
    }
    wordRs_ = wordDb_.openRecordset(QStringLiteral("Select * from testword"));
    if (wordRs_.isEmpty()) {
        context().boxes.notice(
            QStringLiteral("철자를 학습할 수 있는 단어(3~16글자)가 없으므로 학습표로 돌아갑니다."));
        leaveTo(QStringLiteral("frmTable"));
        return;
    }
    wordTotal_ = countRows(wordRs_);
    firstWord();
}

bool SpellingCoach::fillWorkingList() {
    emptyTable(wordDb_, QStringLiteral("testword"));
    platform::Recordset book = bookDb_.openRecordset(QStringLiteral("Select * from word_book"));
    if (book.isEmpty())
        return false;
    copyWords(book, wordDb_, QStringLiteral("testword"), isCoached);
    return true;
}

void SpellingCoach::firstWord() {
    wrongCount_ = 0;
    currentWord_ = wordRs_.text(QStringLiteral("word"));
    setFittedCaption(*this, *lblDef2_, wordRs_.text(QStringLiteral("definition")),
                     platform::TextRole::Meaning);
    lblHint_->setCaption(spellingHint(currentWord_));
    wordIndex_ = 0;
    lblNow_->setCaption(QString::number(wordIndex_));
    lblTotal_->setCaption(QString::number(wordTotal_));
    showStepBack(Stage::Closed);
    stage_ = Stage::Closed;
    speak();
}

void SpellingCoach::closeRecordsets() {
    wordRs_.close();
    wordDb_.close();
}

void SpellingCoach::nextClicked() {
    unload();
    context().navigator.open(QStringLiteral("frmVoca3"));
}

void SpellingCoach::speak() {
    core::PlaySound(context(), currentWord_, core::WordAndWait);
}

void SpellingCoach::answerClicked() {
    if (txtWord_->text().isEmpty()) {
        context().boxes.notice(QStringLiteral("단어를 입력하세요"));
        txtWord_->setFocus();
        return;
    }
    // The list comes a second after the screen; until then there is nothing to judge.
    if (currentWord_.isEmpty())
        return;
    if (sameWord(txtWord_->text(), currentWord_)) {
        cmdNextQuiz2_->onClick();
    } else if (wrongCount_ >= 1) {
        core::PlaySound(context(), QStringLiteral("wrongit.wav"), core::Effect);
        practiceClicked();
    } else {
        context().boxes.notice(QStringLiteral(
            "틀린 답을 입력하였습니다.  다시 입력하십시오\n\n다시 틀리면 브린들 단어음절법으로 진행됩니다"));
        txtWord_->clear();
        txtWord_->setFocus();
        wrongCount_ = 1;
    }
}

void SpellingCoach::practiceClicked() {
    if (currentWord_.isEmpty())
        return;
    picBack_->show();
    cmdMakeQuiz_->onClick();
}

void SpellingCoach::nextQuiz() {
    if (!sameWord(row(Stage::Whole).word(), currentWord_)) {
        go(*turnFrom(Stage::Whole, Event::RowWrong));
        return;
    }
    clearRows();
    countWord();
}

void SpellingCoach::nextQuiz2() {
    cmdAnswer_->show();
    countWord();
}

void SpellingCoach::countWord() {
    // A word from the look-up may be practised beside the list, before it has come or after it is done.
    if (!wordRs_.isOpen() || !wordEntryOpen_)
        return;
    ++wordIndex_;
    lblNow_->setCaption(QString::number(wordIndex_));
    if (wordIndex_ == wordTotal_)
        finish();
    else
        loadWord();
}

void SpellingCoach::loadWord() {
    wordRs_.moveFirst();
    wordRs_.move(wordIndex_);
    wrongCount_ = 0;
    currentWord_ = wordRs_.text(QStringLiteral("word"));
    speak();
    setFittedCaption(*this, *lblDef2_, wordRs_.text(QStringLiteral("definition")),
                     platform::TextRole::Meaning);
    lblHint_->show();
    lblHint_->setCaption(spellingHint(currentWord_));
    txtWord_->clear();
    txtWord_->setFocus();
    picBack_->hide();
    showStepBack(Stage::Closed);
    stage_ = Stage::Closed;
    cmdAnswer_->show();
    platform::noteChange(*cmdAnswer_);
}

void SpellingCoach::finish() {
    wordEntryOpen_ = false;
    stage_ = Stage::Closed;
    session().partDone[0] = QStringLiteral("YES");
    showStepBack(Stage::Closed);
    picBack_->hide();
    txtdef_->clear();
    txtWord_->clear();
    lblHint_->setCaption(QString());
    txtWord_->setLocked(true);
    context().boxes.notice(QStringLiteral("단어 학습하기가 완료되었습니다.\n\nNext 버튼을 클릭하십시오."));
    course::SaveScore(context());
    cmdAnswer_->hide();
    cmdPractice_->hide();
    picNext().show();
}

void SpellingCoach::listClicked(const QListWidgetItem& item) {
    if (!lookupOpen_) {
        context().boxes.show({QStringLiteral("단어 철자를 입력하여야 합니다"), platform::BoxIcon::Information,
                              QStringLiteral("Brindle English")});
        row(Stage::Copy).focus(0);
        return;
    }
    currentWord_ = item.text();
    clearRows();
    // A look-up that fails is no reason to end the course: the word is practised without its dictionary
    // entry.
    try {
        lookUp(currentWord_);
    } catch (const platform::RuntimeError&) {
    }
    prepareRows();
    lblDef_->hide();
    row(Stage::Copy).focus(0);
}

void SpellingCoach::lookUp(const QString& word) {
    core::Session& s = session();
    s.dictionaryDb = core::openStore(context(), core::mainFolder + QStringLiteral("dicword.mdb"));
    s.dicwordRs = s.dictionaryDb.openRecordset(QStringLiteral("Select * from dicword"));
    s.dicwordRs.findFirst(QStringLiteral("word='%1'").arg(word.trimmed().toLower()));
    if (s.dicwordRs.noMatch())
        return;
    soundCode_ = s.dicwordRs.textOrEmpty(QStringLiteral("scode"));
    txtdef_->setText(s.dicwordRs.textOrEmpty(QStringLiteral("defsen")));
    lblDef_->setCaption(s.dicwordRs.textOrEmpty(QStringLiteral("word")).toLower());
    web1_->setUrl(s.mediaSoundDir + soundCode_ + QStringLiteral(".wav"));
}

}  // namespace vocabulary
