#include "platform/ini_file.h"

#include "platform/whole_file.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>

namespace platform {

namespace {

const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");

/// The lines as they stand, so that what another program wrote in another encoding is kept byte by byte.
QByteArrayList readBytes(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        return {};
    QByteArray text = opened.readAll();
    if (text.startsWith(byteOrderMark))
        text.remove(0, byteOrderMark.size());
    text.replace("\r\n", "\n");
    if (text.endsWith('\n'))
        text.chop(1);
    return text.isEmpty() ? QByteArrayList() : text.split('\n');
}

QStringList decodedLines(const QByteArrayList& lines) {
    QStringList texts;
    for (const QByteArray& line : lines)
        texts.append(QString::fromUtf8(line));
    return texts;
}

bool sameName(const QString& written, const QString& wanted) {
    const QString name = written.trimmed();
    // Some writers put a blank in a name as "%20".
    return name.compare(wanted, Qt::CaseInsensitive) == 0 ||
           QUrl::fromPercentEncoding(name.toUtf8()).compare(wanted, Qt::CaseInsensitive) == 0;
}

bool isSection(const QString& line) {
    const QString trimmed = line.trimmed();
    return trimmed.startsWith(u'[') && trimmed.endsWith(u']');
}

QString sectionName(const QString& line) {
    return line.trimmed().chopped(1).mid(1);
}

bool holdsKey(const QString& line, const QString& key) {
    const qsizetype sign = line.indexOf(u'=');
    return sign > 0 && !line.trimmed().startsWith(u';') && sameName(line.left(sign), key);
}

/// Where a key stands, or where it belongs.
struct KeyPlace {
    qsizetype line = -1;        // of the key, -1 for none
    qsizetype sectionEnd = -1;  // behind the section's last line that says something, -1 without the section
};

KeyPlace findKey(const QStringList& lines, const QString& section, const QString& key) {
    KeyPlace place;
    bool inside = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (isSection(lines[i]))
            inside = sameName(sectionName(lines[i]), section);
        else if (inside && place.line < 0 && holdsKey(lines[i], key))
            place.line = i;
        if (inside && !lines[i].trimmed().isEmpty())
            place.sectionEnd = i + 1;
    }
    return place;
}

QString decoded(const QString& written) {
    QString text = written.trimmed();
    const bool quoted = text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
    if (quoted)
        text = text.chopped(1).mid(1);
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool escapes =
            text[i] == u'\\' && i + 1 < text.size() && (text[i + 1] == u'\\' || text[i + 1] == u'"');
        plain += text[escapes ? ++i : i];
    }
    return plain;
}

QString encoded(const QString& value) {
    QString text = value;
    text.replace(u'\\', QStringLiteral("\\\\"));
    text.replace(u'"', QStringLiteral("\\\""));
    text.replace(u'\n', u' ');
    const bool plain =
        text == value.trimmed() && !text.contains(u',') && !text.contains(u';') && !text.contains(u'=');
    return plain ? text : u'"' + text + u'"';
}

}  // namespace

std::optional<QString> readIni(const QString& file, const QString& section, const QString& key) {
    const QStringList lines = decodedLines(readBytes(file));
    const KeyPlace place = findKey(lines, section, key);
    if (place.line < 0)
        return std::nullopt;
    const QString& line = lines[place.line];
    return decoded(line.mid(line.indexOf(u'=') + 1));
}

bool writeIni(const QString& file, const QString& section, const QString& key, const QString& value) {
    QByteArrayList lines = readBytes(file);
    const KeyPlace place = findKey(decodedLines(lines), section, key);
    const QByteArray entry = (key + u'=' + encoded(value)).toUtf8();
    if (place.line >= 0)
        lines[place.line] = entry;
    else if (place.sectionEnd >= 0)
        lines.insert(place.sectionEnd, entry);
    else
        lines += {(u'[' + section + u']').toUtf8(), entry};
    QDir().mkpath(QFileInfo(file).path());
    // Who learns here is nobody else's business.
    return writeWhole(file, lines.join('\n') + '\n', Readers::OwnerAlone).isEmpty();
}

}  // namespace platform
