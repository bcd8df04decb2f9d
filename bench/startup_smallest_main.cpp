// The yardstick: the smallest program that shows as many labels over one such picture and opens one store.

#include "bench/ready_probe.h"

#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QTimer>

#include <sqlite3.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QString root = qEnvironmentVariable("MENDORI_ROOT");
    QLabel window;
    window.setPixmap(QPixmap(root + QStringLiteral("/D/interface/table.jpg")));
    window.resize(950, 700);
    constexpr int labels = 24 + 20 * 6 + 8;
    for (int i = 0; i < labels; ++i) {
        auto* label = new QLabel(QStringLiteral("명사 %1").arg(i), &window);
        label->setGeometry(20 + i / 28 * 150, 20 + i % 28 * 24, 140, 20);
    }
    sqlite3* store = nullptr;
    sqlite3_open((root + QStringLiteral("/D/tovalin.mdb")).toUtf8().constData(), &store);
    sqlite3_exec(store, "select * from tablework where topicno=1", nullptr, nullptr, nullptr);
    window.show();
    QTimer::singleShot(0, &window, [] { QTimer::singleShot(0, qApp, [] { reportReady(); }); });
    return QApplication::exec();
}
