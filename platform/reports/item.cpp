#include "platform/reports/answers.h"
#include "platform/reports/block.h"

#include <algorithm>

namespace platform {

namespace {

constexpr double numberGap = millimetres(2.5);
constexpr double leastNumber = millimetres(7.5);
// Handwriting takes more room than print.
constexpr double handwriting = 1.4;
constexpr double answerPadding = millimetres(6);
constexpr double lineGap = millimetres(4);
constexpr double choiceGap = millimetres(5);
constexpr double questionGap = millimetres(12);
constexpr double leastLine = millimetres(32);
constexpr double mostLine = millimetres(95);
constexpr double underLinePitch = millimetres(10);
constexpr double ruleDrop = millimetres(1.1);
constexpr double letterDrop = millimetres(1.2);
constexpr double maskSpace = 0.6;  // of a box's side
constexpr double maskGap = millimetres(9);
constexpr double maskPitch = millimetres(3);

const QString maskBox = QStringLiteral("□");

std::vector<QString> filledTexts(const std::vector<ReportText>& texts, const ReportData& data,
                                 const ReportRow& row) {
    std::vector<QString> filled;
    filled.reserve(texts.size());
    for (const ReportText& text : texts)
        filled.push_back(filledText(text, data, row));
    return filled;
}

int presentCount(const std::vector<QString>& texts) {
    return static_cast<int>(
        std::count_if(texts.begin(), texts.end(), [](const QString& t) { return !t.isEmpty(); }));
}

int blanksIn(const std::vector<QString>& prompts) {
    int blanks = 0;
    for (const QString& prompt : prompts)
        for (const ReportStretch& stretch : cutAtBlanks(prompt))
            blanks += stretch.blank ? 1 : 0;
    return blanks;
}

TextSizes textSizes(const ReportTemplate& report, bool bold = false) {
    return {report.sizes.english, report.sizes.korean, bold};
}

/// The style of an answer, which is one language.
ReportStyle answerStyle(const ReportTemplate& report, const QString& answer) {
    return textSizes(report, true).styleOf(answer);
}

QString bracketed(const std::vector<QString>& choices) {
    QStringList present;
    for (const QString& choice : choices)
        if (!choice.isEmpty())
            present.append(choice);
    return QStringLiteral("( %1 )").arg(present.join(QStringLiteral(" / ")));
}

/// Lays one item out from the top down.
class ItemWriter {
   public:
    ItemWriter(const ReportTemplate& report, const ItemContent& content, const ItemMeasures& measures)
        : report_(report), content_(content), m_(measures) {}

    ReportBlock written() {
        left_ = m_.numberWidth;
        const int blanks = blanksIn(content_.prompts);
        linesBeside_ = blanks == 0 && m_.lines > 0 && m_.beside;
        blankAnswers_ = answersForBlanks(content_.answers, blanks);
        writeHead();
        writePrompts();
        if (blanks == 0 && !content_.prompts.empty())
            writeLines();
        writeMasks();
        addText(block_, PieceRole::Number, 0, firstBaseLine_, content_.number, {report_.sizes.number, true});
        for (ReportPiece& piece : block_.pieces) {
            piece.row = content_.row;
            piece.item = content_.item;
        }
        return std::move(block_);
    }

   private:
    double room() const { return (linesBeside_ ? m_.lineLeft - lineGap : m_.width) - left_; }
    void noteBaseLine(double baseLine) {
        if (firstBaseLine_ == 0)
            firstBaseLine_ = baseLine;
    }

    void writeHead() {
        if (content_.head.isEmpty())
            return;
        const double pitch = pointsOnPage(report_.sizes.korean) * 1.6;
        for (const FlowLine& line :
             flowLines(flowWords(content_.head, textSizes(report_, true)), m_.width - left_)) {
            const double baseLine = block_.height + pitch * 0.72;
            for (const FlowBit& bit : line.bits)
                addText(block_, PieceRole::ItemHead, left_ + bit.left, baseLine, bit.text, bit.style);
            noteBaseLine(baseLine);
            block_.height += pitch;
        }
        block_.height += millimetres(0.8);
    }

    void writePrompts() {
        int blank = 0;
        bool first = true;
        for (const QString& prompt : content_.prompts) {
            auto words =
                keepBrackets(flowWords(prompt, textSizes(report_), m_.blankWidth, blank), room() / 2);
            if (first && presentCount(content_.choices) > 1)
                appendChoices(words);
            writeFlow(flowLines(words, room()), first);
            first = false;
        }
        if (presentCount(content_.choices) == 1)
            for (const QString& only : content_.choices)
                writeFlow(flowLines(flowWords(only, textSizes(report_)), room()), false);
    }

    void appendChoices(std::vector<FlowWord>& words) const {
        if (!words.empty())
            words.back().spaceAfter = choiceGap;
        for (const FlowWord& word : flowWhole(bracketed(content_.choices), textSizes(report_), room()))
            words.push_back(word);
    }

    /// Lines with something to write on stand wider than lines to read.
    void writeFlow(const std::vector<FlowLine>& lines, bool first) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i].bits.empty())
                continue;
            const bool toWrite = lines[i].hasBlank() || (first && i == 0 && linesBeside_);
            const double pitch = pointsOnPage(report_.sizes.english) * (toWrite ? 1.95 : 1.5);
            const double baseLine = block_.height + pitch * 0.74;
            for (const FlowBit& bit : lines[i].bits)
                writeBit(bit, baseLine);
            noteBaseLine(baseLine);
            block_.height += pitch;
        }
    }

    void writeBit(const FlowBit& bit, double baseLine) {
        if (bit.blank < 0) {
            addText(block_, PieceRole::Prompt, left_ + bit.left, baseLine, bit.text, bit.style);
            return;
        }
        const double inset = millimetres(0.3);
        addShape(block_, PieceRole::Blank,
                 QRectF(left_ + bit.left + inset, baseLine + ruleDrop, bit.width - 2 * inset, 0));
        if (static_cast<std::size_t>(bit.blank) < blankAnswers_.size())
            writeAnswer(blankAnswers_[bit.blank], left_ + bit.left, bit.width, baseLine, true);
    }

    void writeLines() {
        const auto answers = answersForLines(content_.answers, m_.lines);
        double baseLine = firstBaseLine_;
        double width = m_.lineWidth;
        double left = m_.lineLeft;
        if (!m_.beside) {
            block_.height += underLinePitch;
            baseLine = block_.height - ruleDrop - millimetres(0.6);
            left = left_;
            width = (m_.width - left_ - (m_.lines - 1) * lineGap) / m_.lines;
        }
        for (const QString& answer : answers) {
            addShape(block_, PieceRole::Blank, QRectF(left, baseLine + ruleDrop, width, 0));
            writeAnswer(answer, left, width, baseLine, m_.beside);
            left += width + lineGap;
        }
    }

    /// What the key writes; too wide an answer is set smaller rather than over its neighbour.
    void writeAnswer(const QString& answer, double left, double width, double baseLine, bool centred) {
        if (!report_.key || answer.isEmpty())
            return;
        ReportStyle style = answerStyle(report_, answer);
        const double natural = textWidth(answer, style);
        if (natural > width)
            style.points *= std::max(0.5, width / natural);
        const double used = textWidth(answer, style);
        addText(block_, PieceRole::Answer, centred ? left + (width - used) / 2 : left + millimetres(2),
                baseLine, answer, style);
    }

    void writeMasks() {
        maskLeft_ = left_;
        for (std::size_t i = 0; i < content_.masks.size(); ++i)
            if (!content_.masks[i].isEmpty())
                writeMask(content_.words[i], content_.masks[i]);
        closeMaskLine();
    }

    double side() const { return millimetres(report_.boxSide); }
    /// The room that the letters over a line of boxes take.
    double letterRow() const {
        return content_.lettersShown ? pointsOnPage(report_.sizes.english) * 1.15 : 0;
    }
    double maskWidth(const QString& mask) const {
        double width = 0;
        for (const QChar sign : mask)
            width += sign == u' ' ? side() * maskSpace : side();
        return width;
    }
    void closeMaskLine() {
        if (maskLineOpen_)
            block_.height += letterRow() + side() + maskPitch;
        maskLineOpen_ = false;
    }
    void newMaskLine() {
        closeMaskLine();
        maskLeft_ = left_;
        maskLineOpen_ = true;
    }

    /// A box under each letter, which the key writes into the box. One text stays on a line where it fits,
    /// else it breaks between words.
    void writeMask(const QString& word, const QString& mask) {
        const double end = m_.width;
        if (!maskLineOpen_ || (maskLeft_ > left_ && maskLeft_ + maskWidth(mask) > end))
            newMaskLine();
        for (qsizetype i = 0; i < mask.size();) {
            qsizetype next = mask.indexOf(u' ', i);
            next = next < 0 ? mask.size() : next;
            const double width = maskWidth(mask.mid(i, next - i));
            if (maskLeft_ > left_ && maskLeft_ + width > end)
                newMaskLine();
            for (; i < next; ++i)
                writeBox(word.mid(i, 1), mask.mid(i, 1));
            if (i < mask.size()) {
                maskLeft_ += side() * maskSpace;
                ++i;
            }
        }
        maskLeft_ += maskGap;
    }

    void writeBox(const QString& letter, const QString& sign) {
        // A text wider than the page goes on in the next line rather than over the edge.
        if (maskLeft_ > left_ && maskLeft_ + side() > m_.width + 1)
            newMaskLine();
        const QRectF box(maskLeft_, block_.height + letterRow(), side(), side());
        const double baseLine = box.bottom() - side() * 0.28;
        noteBaseLine(content_.lettersShown ? box.top() - letterDrop : baseLine);
        if (sign == maskBox)
            addShape(block_, PieceRole::MaskBox, box);
        if (content_.lettersShown)
            writeLetter(PieceRole::MaskLetter, letter, box.center().x(), box.top() - letterDrop, false);
        if (report_.key)
            writeLetter(PieceRole::MaskAnswer, letter, box.center().x(), baseLine, true);
        maskLeft_ += side();
    }

    void writeLetter(PieceRole role, const QString& letter, double middle, double baseLine, bool bold) {
        if (letter.trimmed().isEmpty())
            return;
        const ReportStyle style{report_.sizes.english, bold};
        addText(block_, role, middle - textWidth(letter, style) / 2, baseLine, letter, style);
    }

    const ReportTemplate& report_;
    const ItemContent& content_;
    const ItemMeasures& m_;
    ReportBlock block_;
    std::vector<QString> blankAnswers_;
    double left_ = 0;
    double firstBaseLine_ = 0;
    bool linesBeside_ = false;
    double maskLeft_ = 0;
    bool maskLineOpen_ = false;
};

double widestAnswer(const ReportTemplate& report, const std::vector<QString>& answers) {
    double widest = 0;
    for (const QString& answer : answers)
        widest = std::max(widest, textWidth(answer, answerStyle(report, answer)));
    return widest;
}

/// Puts the writing lines beside the questions, right behind the widest of them, where that leaves most
/// questions on one line.
void placeLines(const ReportTemplate& report, const std::vector<const ItemContent*>& items, ItemMeasures& m) {
    const double most = m.width - m.lines * m.lineWidth - (m.lines - 1) * lineGap;
    const double room = most - m.numberWidth - lineGap;
    double widest = 0;
    int fitting = 0;
    for (const ItemContent* item : items) {
        double width = 0;
        for (const QString& prompt : item->prompts)
            width = std::max(width, flowWidth(flowWords(prompt, textSizes(report))));
        fitting += width <= room ? 1 : 0;
        widest = std::max(widest, std::min(width, room));
    }
    m.beside = m.lineWidth <= mostLine && 4 * fitting >= 3 * static_cast<int>(items.size());
    m.lineLeft = std::min(most, m.numberWidth + widest + questionGap);
}

/// The word for "nothing" is no text to read: it drops out as a line, and is a mark among choices and
/// answers.
void tellNothing(const ReportTemplate& report, ItemContent& content) {
    if (content.prompts.size() > 1)
        std::erase(content.prompts, report.nothingWord);
    const QString choice = presentCount(content.choices) > 1 ? report.nothingMark : QString();
    std::replace(content.choices.begin(), content.choices.end(), report.nothingWord, choice);
    std::replace(content.answers.begin(), content.answers.end(), report.nothingWord, report.nothingMark);
}

}  // namespace

bool ItemContent::isEmpty() const {
    return prompts.empty() && presentCount(masks) == 0;
}

bool ItemContent::hasBlanks() const {
    return blanksIn(prompts) > 0;
}

ItemContent itemContent(const ReportTemplate& report, const ReportData& data, int row, int itemIndex,
                        int runningNumber) {
    const ReportItem& item = report.items[static_cast<std::size_t>(itemIndex)];
    const ReportRow& fields = data.rows[static_cast<std::size_t>(row)];
    ItemContent content;
    content.row = row;
    content.item = itemIndex;
    content.number = filledText(item.number, data, fields);
    if (content.number.isEmpty())
        content.number = QString::number(runningNumber);
    content.number += u'.';
    content.head = filledText(item.head, data, fields);
    for (const QString& prompt : filledTexts(item.prompts, data, fields))
        if (!prompt.trimmed().isEmpty())
            content.prompts.push_back(prompt.trimmed());
    content.choices = filledTexts(item.choices, data, fields);
    content.answers = filledTexts(item.answers, data, fields);
    if (!report.nothingWord.isEmpty())
        tellNothing(report, content);
    content.words = filledTexts(item.words, data, fields);
    content.masks = filledTexts(item.masks, data, fields);
    content.lettersShown = item.lettersShown;
    return content;
}

ItemMeasures measureItems(const ReportTemplate& report, const std::vector<const ItemContent*>& items,
                          double width) {
    ItemMeasures m;
    m.width = width;
    m.numberWidth = leastNumber;
    std::vector<const ItemContent*> onLines;
    double inBlank = 0;
    for (const ItemContent* item : items) {
        m.numberWidth =
            std::max(m.numberWidth, textWidth(item->number, {report.sizes.number, true}) + numberGap);
        const int blanks = blanksIn(item->prompts);
        if (blanks > 0)
            inBlank = std::max(inBlank, widestAnswer(report, answersForBlanks(item->answers, blanks)));
        else if (!item->prompts.empty())
            onLines.push_back(item);
    }
    const double room = width - m.numberWidth;
    const double least = millimetres(report.blankLeast);
    m.blankWidth = std::clamp(inBlank * handwriting + answerPadding, least,
                              std::max(least, std::min(millimetres(report.blankMost), room * 0.6)));
    // A second answer that only some questions have is another way to say the first.
    const bool twoEach =
        !onLines.empty() && std::all_of(onLines.begin(), onLines.end(), [](const ItemContent* item) {
            return presentCount(item->answers) == 2;
        });
    m.lines = twoEach ? 2 : 1;
    double onLine = 0;
    for (const ItemContent* item : onLines)
        onLine = std::max(onLine, widestAnswer(report, answersForLines(item->answers, m.lines)));
    m.lineWidth = std::max(onLine * handwriting + answerPadding, std::min(leastLine, room * 0.5));
    placeLines(report, onLines, m);
    return m;
}

ReportBlock itemBlock(const ReportTemplate& report, const ItemContent& content,
                      const ItemMeasures& measures) {
    return ItemWriter(report, content, measures).written();
}

}  // namespace platform
