#include "course/shuffle.h"

namespace course {

int drawNumber(const core::Context& context, int count) {
    context.random.reseed(context.clock.ticks());
    const int drawn = static_cast<int>(context.random.next() * static_cast<float>(count) + 1.0F);
    return drawn == 0 ? 1 : drawn;
}

void shuffleRows(const core::Context& context, platform::Recordset& rows, const QString& field, int count,
                 const QString& scope) {
    rows.moveFirst();
    for (int i = 0; !rows.eof(); ++i) {
        int number = 0;
        do {
            number = drawNumber(context, count);
            rows.findFirst(QStringLiteral("%1%2=%3").arg(scope, field).arg(number));
        } while (!rows.noMatch());
        rows.moveFirst();
        rows.move(i);
        rows.edit();
        rows.set(field, number);
        rows.update();
        rows.moveNext();
    }
}

}  // namespace course
