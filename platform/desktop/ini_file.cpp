#include "platform/desktop/ini_file.h"

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
constexpr qint64 largestFile = 1024LL * 1024;

/// A file's lines as they stand, each with its end, so that what another program wrote in another encoding is
/// kept byte by byte.
struct IniText {
    QByteArray mark;  // the byte order mark, where there is one
    QByteArrayList lines;

    QByteArray lineEnd() const {
        return !lines.isEmpty() && lines.first().endsWith("\r\n") ? QByteArrayLiteral("\r\n")
                                                                  : QByteArrayLiteral("\n");
    }
    QByteArray whole() const { return mark + lines.join(); }
};

/// Why a file cannot be taken for settings, empty where it can. A file that is not there is none.
QString troubleOf(const QString& file, QByteArray* text = nullptr) {
    const QFileInfo info(file);
    if (info.isDir())
        return QStringLiteral("it is a folder");
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        return info.exists() || info.isSymLink() ? opened.errorString() : QString();
    if (opened.size() > largestFile)
        return QStringLiteral("it is far too large");
    const QByteArray read = opened.readAll();
    if (read.startsWith("\xFF\xFE") || read.startsWith("\xFE\xFF") || read.contains('\0'))
        return QStringLiteral("it is written in UTF-16, or is no text at all; save it as UTF-8");
    if (text != nullptr)
        *text = read;
    return {};
}

IniText readText(const QString& file) {
    QByteArray text;
    IniText ini;
    if (!troubleOf(file, &text).isEmpty())
        return ini;
    if (text.startsWith(byteOrderMark)) {
        ini.mark = byteOrderMark;
        text.remove(0, byteOrderMark.size());
    }
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = text.indexOf('\n', start);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        ini.lines.append(text.mid(start, next - start));
        start = next;
    }
    return ini;
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
    const QStringList lines = decodedLines(readText(file).lines);
    const KeyPlace place = findKey(lines, section, key);
    if (place.line < 0)
        return std::nullopt;
    const QString& line = lines[place.line];
    return decoded(line.mid(line.indexOf(u'=') + 1));
}

QString iniTrouble(const QString& file) {
    return troubleOf(file);
}

bool writeIni(const QString& file, const QString& section, const QString& key, const QString& value) {
    // What cannot be read would be lost if it were written.
    if (!troubleOf(file).isEmpty())
        return false;
    IniText ini = readText(file);
    const KeyPlace place = findKey(decodedLines(ini.lines), section, key);
    const QByteArray lineEnd = ini.lineEnd();
    const QByteArray entry = (key + u'=' + encoded(value)).toUtf8() + lineEnd;
    const qsizetype end = place.sectionEnd >= 0 ? place.sectionEnd : ini.lines.size();
    if (end > 0 && place.line < 0 && !ini.lines[end - 1].endsWith('\n'))
        ini.lines[end - 1] += lineEnd;
    if (place.line >= 0)
        ini.lines[place.line] = entry;
    else if (place.sectionEnd >= 0)
        ini.lines.insert(place.sectionEnd, entry);
    else
        ini.lines += {(u'[' + section + u']').toUtf8() + lineEnd, entry};
    QDir().mkpath(QFileInfo(file).path());
    // Who learns here is nobody else's business.
    return writeWhole(file, ini.whole(), Readers::OwnerAlone).isEmpty();
}

}  // namespace platform
