#include "video/tips.h"

#include "core/stores.h"

namespace video {

Tips readTips(const core::Context& context, const QString& criterion, VideoNumber number) {
    auto master = core::openMaster(context);
    auto rows = master.openRecordset(QStringLiteral("Select * from tovalin1_gram_tip where ") + criterion);
    Tips tips;
    const QString field = QStringLiteral("autono");
    if (!rows.isEmpty())
        tips.videoNumber =
            number == VideoNumber::Needed ? platform::Value(rows.integer(field)) : rows.value(field);
    for (; !rows.eof(); rows.moveNext())
        tips.story += rows.textOrEmpty(QStringLiteral("tips")) + QStringLiteral("\n\n");
    rows.close();
    master.close();
    return tips;
}

}  // namespace video
