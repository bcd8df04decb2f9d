#include "platform/reports/pdf_blanks.h"

namespace platform {

namespace {

constexpr qsizetype codeLength = 6;  // "<0041>"

/// True for a code below the blank, which no text on a page has.
bool isControl(QByteArrayView code) {
    bool number = false;
    const int value = code.sliced(1, codeLength - 2).toByteArray().toInt(&number, 16);
    return number && value > 0 && value < 0x20;
}

/// Mends the characters of one line, "<0001> <0003> [<0054> <0001> <0065> ]", behind the glyphs that they are
/// for. No byte moves, so that the file's directory stays right.
void mendLine(QByteArray& pdf, qsizetype start, qsizetype end) {
    qsizetype place = start;
    for (int glyph = 0; glyph < 2; ++glyph) {
        place = pdf.indexOf('>', place) + 1;
        if (place == 0 || place >= end)
            return;
    }
    for (place = pdf.indexOf('<', place); place >= 0 && place + codeLength <= end;
         place = pdf.indexOf('<', place + codeLength))
        if (pdf[place + codeLength - 1] == '>' && isControl(QByteArrayView(pdf).sliced(place, codeLength)))
            pdf.replace(place, codeLength, "<0020>");
}

}  // namespace

QByteArray withBlanks(QByteArray pdf) {
    const QByteArray head = " beginbfrange\n";
    for (qsizetype section = pdf.indexOf(head); section >= 0; section = pdf.indexOf(head, section)) {
        section += head.size();
        const qsizetype end = pdf.indexOf("endbfrange", section);
        while (section < end) {
            const qsizetype line = pdf.indexOf('\n', section) + 1;
            if (line <= 0)
                return pdf;
            mendLine(pdf, section, line);
            section = line;
        }
    }
    return pdf;
}

}  // namespace platform
