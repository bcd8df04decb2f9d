#pragma once

#include "platform/drives.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tools {

/// A learner's state on one step, as the score store has it.
struct StepScore {
    int step = 0;
    int unit = 0;
    int place = 0;  // within the unit
    QString kind;   // "Lesson", "Quiz", "Final"
    QString title;
    QString spelling;
    QString matching;
    QString words;
    QString main;
    QString set;
    QString date;

    /// The main exercise's score; nothing where the column holds no number.
    std::optional<double> mainScore() const;
    /// True for a step that was begun and not finished.
    bool unfinished() const { return mainScore().value_or(0) == 0; }
};

/// One unit of the course and what a learner has done of it.
struct UnitScore {
    int unit = 0;
    QString title;
    int steps = 0;  // of the course
    int finished = 0;
    double average = 0;  // over the finished steps
};

struct LearnerScores {
    QString studentNo;
    QString name;
    QString program;
    QString lastDate;
    std::vector<StepScore> steps;  // in step order
    std::vector<UnitScore> units;  // every unit of the course, and every other that has a score

    int finished() const;
    int courseSteps() const;
    /// Over all finished steps; 0 without one.
    double average() const;
};

/// Where the stores of an install lie.
struct InstallPlaces {
    const platform::Drives& drives;
    QString applicationFolder;
};

/// The scores of all learners, or of those with the student number given. What cannot be read is told in
/// `problems`, a sentence each.
std::vector<LearnerScores> readScores(const InstallPlaces& places, const QString& studentNo,
                                      QStringList& problems);

/// One line a step, ready for a spreadsheet: UTF-8 with a mark in front, quoted where needed.
QByteArray scoresAsCsv(const std::vector<LearnerScores>& learners);

}  // namespace tools
