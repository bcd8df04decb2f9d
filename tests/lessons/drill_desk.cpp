#include "tests/lessons/drill_desk.h"

#include "lessons/drill_judge.h"

namespace lessons_test {

using support::courseStore;

namespace {

/// A step number for a screen; the two second pages read records of their own whatever the step.
int stepOf(const catalogue::Drill& drill) {
    return drill.contentRecord != 0 ? drill.contentRecord : 500;
}

std::string quoted(const QString& text) {
    return text.isNull() ? "NULL"
                         : "'" + QString(text).replace(u'\'', QStringLiteral("''")).toStdString() + "'";
}

}  // namespace

DrillDesk::DrillDesk(const QString& screen)
    : DrillDesk(screen, plainRows(catalogue::findDrill(screen.toStdString())->boxes)) {}

DrillDesk::DrillDesk(const QString& screen, const std::vector<Row>& rows)
    : drill_(*catalogue::findDrill(screen.toStdString())), rows_(rows) {
    session.topicNo = topic;
    session.recordNo = stepOf(drill_);
    session.useForm = screen;
    session.stepType = QStringLiteral("Lesson");
    session.stepTitle = QStringLiteral("명사 1");
    session.hasWords = QStringLiteral("NO");
    session.partDone.fill(QStringLiteral("NO"));
    setRows(rows, session.recordNo);
    setTip(QStringLiteral("명사의 복수형"));
    setRules(drill_.ruleLines > 0 ? drill_.ruleLines : 1, session.recordNo);
    if (drill_.promptSource == catalogue::Prompts::SecondList)
        setSecondList(drill_.prompts);
}

std::vector<Row> DrillDesk::plainRows(int count) {
    std::vector<Row> rows;
    for (int i = 0; i < count; ++i) {
        const QChar first(u'a' + i % 26);
        const QString word = QString(first) + QStringLiteral("word%1").arg(i + 1);
        rows.push_back({word, word + u's'});
    }
    return rows;
}

void DrillDesk::setRows(const std::vector<Row>& rows, int record) {
    std::string sql = "BEGIN; DELETE FROM basic_Data WHERE recordno=" + std::to_string(record) + ";";
    for (std::size_t i = 0; i < rows.size(); ++i)
        sql += "INSERT INTO basic_Data (topicno, recordno, orderno, word1, word2, word3) VALUES (" +
               std::to_string(topic) + "," + std::to_string(record) + "," + std::to_string(i + 1) + "," +
               quoted(rows[i].word1) + "," + quoted(rows[i].word2) + "," + quoted(rows[i].word3) + ");";
    exec(courseStore, sql + "COMMIT");
}

void DrillDesk::setSecondList(int count) {
    std::string sql = "BEGIN; DELETE FROM basic_Data2;";
    for (int i = 1; i <= count; ++i)
        sql += "INSERT INTO basic_Data2 (orderno2, word) VALUES (" + std::to_string(i) + ", 'prompt" +
               std::to_string(i) + "');";
    exec(courseStore, sql + "COMMIT");
}

void DrillDesk::setTip(const QString& text) {
    exec(courseStore, "DELETE FROM gram_tip; INSERT INTO gram_tip (recordno, topicno, tips) VALUES (" +
                          std::to_string(session.recordNo) + "," + std::to_string(topic) + "," +
                          quoted(text) + ")");
}

void DrillDesk::setRules(int count, int record) {
    std::string sql = "BEGIN; DELETE FROM gram_tip2;";
    for (int i = 1; i <= count; ++i)
        sql += "INSERT INTO gram_tip2 (topicno, recordno, orderno, tip2) VALUES (" + std::to_string(topic) +
               "," + std::to_string(record) + "," + std::to_string(i) + ",'rule " + std::to_string(i) + "');";
    exec(courseStore, sql + "COMMIT");
}

core::Screen* DrillDesk::open() {
    return Desk::open(QString::fromUtf8(drill_.name));
}

core::Screen& DrillDesk::form() {
    if (top() == nullptr)
        throw std::runtime_error("no screen stands");
    return *top();
}

TextBox& DrillDesk::box(int index) {
    return support::find<TextBox>(&form(), QStringLiteral("txtWord(%1)").arg(index));
}

Label& DrillDesk::label(const char* name) {
    return support::find<Label>(&form(), QString::fromUtf8(name));
}

bool DrillDesk::isShown(const char* name) {
    return support::find<QWidget>(&form(), QString::fromUtf8(name)).isVisible();
}

QStringList DrillDesk::boxTexts(int first, int count) {
    QStringList texts;
    for (int i = first; i < first + count; ++i)
        texts.append(boxText(i));
    return texts;
}

void DrillDesk::press(const char* button) {
    auto& picture = support::find<PictureButton>(&form(), QString::fromUtf8(button));
    if (!picture.isVisible())
        throw std::runtime_error(std::string(button) + " is hidden");
    support::click(picture);
}

void DrillDesk::answer(const QStringList& words) {
    for (int i = 0; i < words.size(); ++i)
        answer(i, words[i]);
}

void DrillDesk::answer(int index, const QString& word) {
    if (box(index).locked())
        return;
    box(index).selectAndFocus();
    QTest::keyClick(&box(index), Qt::Key_Delete);
    support::type(box(index), word);
}

QStringList DrillDesk::rightWords() const {
    QStringList words;
    for (const Row& row : rows_) {
        const bool plain = static_cast<int>(words.size()) + 1 >= drill_.plainFromOrder;
        words.append(plain || drill_.rightWord == catalogue::Field::Word1 ? row.word1 : row.word2);
    }
    return words;
}

void DrillDesk::answerAndCheck(const std::vector<int>& wrong) {
    QStringList words = rightWords();
    for (const int index : wrong)
        words[index] = QStringLiteral("zzz");
    answer(words);
    check();
}

void DrillDesk::fail(const std::vector<int>& wrong) {
    begin();
    answerAndCheck(wrong);
}

void DrillDesk::key(int index, Qt::Key key) {
    QTest::keyClick(&box(index), key);
}

int DrillDesk::focusedBox() {
    const QString name = support::focusName(&form());
    return name.startsWith(QStringLiteral("txtWord(")) ? name.mid(8, name.size() - 9).toInt() : -1;
}

QStringList DrillDesk::content(const char* field) {
    return rows(courseStore, std::string("SELECT ") + field + " FROM basic_Data WHERE recordno=" +
                                 std::to_string(stepOf(drill_)) + " ORDER BY orderno");
}

QStringList DrillDesk::wrongBoxes() {
    return rows(courseStore, "SELECT blankno FROM blankno WHERE showword='NO' ORDER BY blankno");
}

}  // namespace lessons_test
