#pragma once

#include "tools/export/scores.h"

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace tools {

/// Rows of a learner's table on each page: the first page has less room, since the picture stands on it.
std::vector<int> rowsOnPages(int rows, int firstPage, int otherPages);

/// The picture of a learner's state: a bar of the average for each unit, a dot for each step, and under the
/// axis how many of the unit's steps are finished.
void paintUnits(QPainter& painter, const QRectF& place, const LearnerScores& learner);

/// Prints the learners one after the other, each beginning on a page of its own. Gives the number of pages.
int printScores(QPagedPaintDevice& device, const std::vector<LearnerScores>& learners);

}  // namespace tools
