#pragma once

#include "catalogue/sheets.h"
#include "platform/storage/database.h"

#include <QString>

namespace worksheets {

/// Whether the tables of a sheet could be filled. A final needs rows that say which steps it is made of.
enum class BuildResult { Built, NoFinalRows };

/// Fills the report tables for a step from its prepared content. `tempword` is empty beforehand.
BuildResult buildSheet(const platform::Database& course, int topicNo, int recordNo);

/// The text with a "□" for each character that is no space.
QString maskOf(const QString& text);

/// The choices of a question in brackets, the third left out where it is "Blank".
QString bracketedChoices(const QString& q2, const QString& q3, const QString& q4);

}  // namespace worksheets
