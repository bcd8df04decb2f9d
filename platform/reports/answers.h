#pragma once

#include <QString>

#include <vector>

namespace platform {

/// A stretch of a question: words, or a blank to write on.
struct ReportStretch {
    QString text;
    bool blank = false;
};

/// Cuts a question at its blanks: runs of two or more "_".
std::vector<ReportStretch> cutAtBlanks(const QString& question);

/// What the key writes into each of a question's blanks. As many answers as blanks go one to one; a single
/// answer of several words is spread word by word; a second answer where there is one blank is another way
/// to say it. Answers that count nothing are left out.
std::vector<QString> answersForBlanks(const std::vector<QString>& answers, int blanks);

/// The same for writing lines beside or under a question without blanks.
std::vector<QString> answersForLines(const std::vector<QString>& answers, int lines);

}  // namespace platform
