#pragma once

#include "platform/drives.h"

#include <QMarginsF>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

/// A text of a template with its fields in braces: "{student.Name}" is a field of a one-row table, "{word1}"
/// one of the row in hand. It knows where it stands, for messages.
struct ReportText {
    QString text;
    QString file;
    int line = 0;

    bool isEmpty() const { return text.isEmpty(); }
};

/// A label with a line behind it, to write on or already filled in.
struct ReportLine {
    ReportText label;
    ReportText text;
    double share = 1;  // of the page's width, against the other lines
};

/// One numbered question of a row. A sheet with two of them prints each row's questions side by side.
struct ReportItem {
    ReportText number;                // the running number where it is empty
    ReportText head;                  // a line above
    std::vector<ReportText> prompts;  // a line each; runs of "_" are blanks to write on
    std::vector<ReportText>
        choices;  // behind the first prompt in brackets; a single one is a line of its own
    std::vector<ReportText> answers;  // what the key writes into the blanks
    std::vector<ReportText> words;    // what the key writes into the boxes
    std::vector<ReportText> masks;    // a box for each "□"
    bool lettersShown = false;        // whether the words stand over their boxes on the sheet itself
};

/// What rows stand together under one heading: the range of a table that the row's number lies in, or the
/// rows up to the next restart of a count, or both. `{group}` in the text counts the groups, `{part}` the
/// restarts.
struct ReportGroup {
    QString table;
    QString from;
    QString to;
    QString of;
    QString restart;
    ReportText text;
    bool evenAlone = true;  // whether the heading shows where there is only one group
};

/// The words to choose from, in a frame above the questions.
struct ReportBank {
    ReportText title;
    std::vector<ReportText> words;
    bool sorted = false;
};

/// Sizes of the texts in points.
struct ReportSizes {
    double title = 17;
    double heading = 12;
    double line = 10.5;
    double guide = 11;
    double group = 11.5;
    double english = 12.5;
    double korean = 11.5;
    double number = 11;
    double bank = 12.5;
    double page = 9;
};

/// How a report is laid out: what a template file says.
struct ReportTemplate {
    QString file;  // as messages name it
    QString store;
    QString rows;
    QString order;
    bool key = false;
    ReportText name;  // of the print job and the saved file

    QPageSize page{QPageSize::A4};
    QMarginsF margins{17, 14, 17, 12};  // millimetres
    double gapLeast = 2.5;
    double gapMost = 8;
    double boxSide = 6;
    double blankLeast = 24;
    double blankMost = 58;

    ReportText title;
    ReportText heading;
    ReportText badge;  // shown on a key
    std::vector<ReportLine> lines;
    ReportText guide;
    ReportText foot;
    QString nothingWord;  // the answer that stands for "write nothing"
    QString nothingMark;  // what the key shows there
    ReportSizes sizes;
    ReportBank bank;
    ReportGroup group;
    std::vector<ReportItem> items;
};

/// Reads a template by its drive path. What it includes is read first and then changed by its own settings.
/// Throws FileNotFound for a missing file and SyntaxError, with file and line, for one that is broken.
ReportTemplate readReportTemplate(const Drives& drives, const QString& path);

/// The error of a template, with the file and line that it stands in.
[[noreturn]] void throwBrokenReport(const QString& file, int line, const QString& reason);

}  // namespace platform
