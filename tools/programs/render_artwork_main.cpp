// Turns the drawings into the pictures that an install shows: a JPEG file of each, a second one of twice the
// size for dense screens, and the hand as a cursor.

#include "platform/desktop/cursor.h"
#include "platform/error.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr int jpegQuality = 93;
constexpr QPoint handHotSpot(13, 2);

QImage draw(QSvgRenderer& drawing, int factor, const QColor& ground) {
    QImage image(drawing.defaultSize() * factor, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return image;
}

bool renderFolder(const QDir& from, const QString& to) {
    QDir().mkpath(to);
    for (const QFileInfo& file : from.entryInfoList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name)) {
        QSvgRenderer drawing(file.filePath());
        if (!drawing.isValid()) {
            std::fprintf(stderr, "%s cannot be drawn.\n", qPrintable(file.filePath()));
            return false;
        }
        const QString target = to + u'/' + file.completeBaseName();
        if (file.completeBaseName() == QStringLiteral("hand")) {
            platform::writeCursor(target + QStringLiteral(".cur"), draw(drawing, 1, Qt::transparent),
                                  handHotSpot);
            continue;
        }
        if (!draw(drawing, 1, Qt::white).save(target + QStringLiteral(".jpg"), "JPG", jpegQuality) ||
            !draw(drawing, 2, Qt::white).save(target + QStringLiteral("@2x.jpg"), "JPG", jpegQuality)) {
            std::fprintf(stderr, "%s cannot be written.\n", qPrintable(target));
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Renders the drawings of a folder into pictures."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("from"),
                                 QStringLiteral("Folder with interface/ and button/ drawings."));
    parser.addPositionalArgument(QStringLiteral("to"), QStringLiteral("Folder for the pictures."));
    parser.process(application);
    if (parser.positionalArguments().size() != 2)
        parser.showHelp(2);
    const QDir from(parser.positionalArguments()[0]);
    const QString to = parser.positionalArguments()[1];
    try {
        for (const char* folder : {"interface", "button"})
            if (!renderFolder(QDir(from.filePath(QLatin1String(folder))), to + u'/' + QLatin1String(folder)))
                return 1;
    } catch (const platform::RuntimeError& error) {
        std::fprintf(stderr, "%s\n", qPrintable(error.sentence()));
        return 1;
    }
    return 0;
}
