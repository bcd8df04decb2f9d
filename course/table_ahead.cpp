#include "course/table_ahead.h"

#include "core/stores.h"
#include "platform/desktop/look.h"
#include "platform/desktop/picture.h"

#include <QWidget>

namespace course {

using platform::TextRole;

namespace {

void read(const core::Context& context) {
    const auto picture = core::applicationFile(context, QStringLiteral("interface\\table.jpg"));
    const auto store = core::applicationFile(context, QStringLiteral("tovalin.mdb"));
    if (context.drives.fileLength(picture.shownName) == 0 || context.drives.fileLength(store.shownName) == 0)
        return;
    const qreal ratio = context.frame == nullptr ? 1.0 : context.frame->devicePixelRatioF();
    platform::loadPictureAhead(picture.file, picture.shownName, ratio);
    const platform::Database course = core::openCourse(context);
    auto units = course.openRecordset(QStringLiteral("Select * From topic order by topicno"));
    QString titles = QStringLiteral("0123456789- LessonQuizFinal ");
    for (; !units.eof(); units.moveNext())
        titles += units.textOrEmpty(QStringLiteral("Title"));
    platform::drawAhead(TextRole::Body, titles);
    platform::drawAhead(TextRole::Heading, titles.right(1));
    platform::drawAhead(TextRole::Caption, QStringLiteral("<My Checkpoints> Unit No Lesson Date Score"));
    platform::drawAhead(TextRole::Title, QStringLiteral("Feskugru"));
}

}  // namespace

void readTableAhead(const core::Context& context) {
    // What goes wrong here goes wrong again when the table reads for itself, and is told there.
    try {
        read(context);
    } catch (const std::exception&) {
    }
}

}  // namespace course
