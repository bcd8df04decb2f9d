#include "course/shuffle.h"

namespace course {

int drawNumber(const core::Context& context, int count) {
    context.random.reseed(context.clock.ticks());
    // In double precision, since the largest draws would round up to a number beyond the count.
    const int drawn = static_cast<int>(static_cast<double>(context.random.next()) * count + 1.0);
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
