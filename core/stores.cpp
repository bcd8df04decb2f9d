#include "core/stores.h"

namespace core {

using platform::Database;

Database openStore(const Context& context, const QString& path) {
    return Database::open(context.drives.resolve(path), path);
}

QString coursePath(const Context& context) {
    return context.applicationFolder + QStringLiteral("\\tovalin.mdb");
}

QString worksheetCoursePath() {
    return worksheetFolder + QStringLiteral("tovalin.mdb");
}

QString scorePath(const Session& session) {
    return mainFolder + QStringLiteral("DbScore_") + session.userId + QStringLiteral(".mdb");
}

Database openCourse(const Context& context) {
    return openStore(context, coursePath(context));
}

Database openMaster(const Context& context) {
    return openStore(context, context.applicationFolder + QStringLiteral("\\Tovalin_Data.mdb"));
}

Database openWordBook(const Context& context) {
    return openStore(context, context.applicationFolder + QStringLiteral("\\testword_im.mdb"));
}

Database openTestWords(const Context& context) {
    return openStore(context, context.applicationFolder + QStringLiteral("\\testword_2013.mdb"));
}

Database openScores(const Context& context) {
    Database scores = openStore(context, scorePath(context.session));
    scores.flushFully();
    return scores;
}

QString learnerCriterion(const Session& session) {
    return QStringLiteral("studentno='%1' and program='%2'").arg(session.userId, session.programCode);
}

QString learnerStepCriterion(const Session& session) {
    return learnerCriterion(session) + QStringLiteral(" and recordno=%1").arg(session.recordNo);
}

PictureFile applicationFile(const Context& context, const QString& relativePath) {
    const QString path = context.applicationFolder + u'\\' + relativePath;
    return {context.drives.resolve(path), path};
}

}  // namespace core
