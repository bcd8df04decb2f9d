#include "video/tips.h"

#include "core/stores.h"

namespace video {

Tips readTips(const core::Context& context, const QString& criterion) {
    auto master = core::openMaster(context);
    auto rows = master.openRecordset(QStringLiteral("Select * from tovalin1_gram_tip where ") + criterion);
    Tips tips;
    if (!rows.isEmpty())
        tips.videoNumber = rows.value(QStringLiteral("autono"));
    for (; !rows.eof(); rows.moveNext())
        tips.story += rows.textOrEmpty(QStringLiteral("tips")) + QStringLiteral("\n\n");
    rows.close();
    master.close();
    return tips;
}

}  // namespace video
