#pragma once

#include "core/context.h"

namespace core {

/// The folder of the dictionary, the scores and the version row.
inline const QString mainFolder = QStringLiteral("C:\\A_Mendori\\Main\\");
/// The folder that worksheets work in, whatever the application folder is.
inline const QString worksheetFolder = QStringLiteral("C:\\Larkfield\\Larkfield2013\\Tovalin1\\");

/// Opens a store by its drive path. Throws as Database::open tells.
platform::Database openStore(const Context& context, const QString& path);

/// Path of `tovalin.mdb` in the application folder.
QString coursePath(const Context& context);
/// Path of the copy of `tovalin.mdb` that worksheets work in.
QString worksheetCoursePath();
/// Path of the learner's own score store.
QString scorePath(const Session& session);

platform::Database openCourse(const Context& context);
platform::Database openMaster(const Context& context);
platform::Database openWordBook(const Context& context);
platform::Database openTestWords(const Context& context);
platform::Database openScores(const Context& context);

/// The row of the learner on a step: "studentno='…' and program='…' and recordno=N".
QString learnerCriterion(const Session& session);
QString learnerStepCriterion(const Session& session);

/// The file and shown name of a picture under a folder of the application folder ("button", "interface").
struct PictureFile {
    QString file;
    QString shownName;
};
PictureFile applicationFile(const Context& context, const QString& relativePath);

}  // namespace core
