// What the house promises of its rooms, held against its own sources: which room knows which, where a thing
// is found, and how long it is.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <map>

namespace {

const QString root = QStringLiteral(MENDORI_SOURCE);

QString textOf(const QString& path) {
    QFile file(root + u'/' + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// Every room and what it links, as its CMakeLists.txt says: "platform/storage", {"platform"}.
std::map<QString, QStringList> rooms() {
    static const QRegularExpression call(
        QStringLiteral("mendori_room\\(\\s*(\\S+)\\s+SOURCES([^)]*?)(?:LINKS([^)]*))?\\)"));
    std::map<QString, QStringList> found;
    QDirIterator files(root, {QStringLiteral("CMakeLists.txt")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = QDir(root).relativeFilePath(files.next());
        if (path.startsWith(QStringLiteral("build/")))
            continue;
        const auto match = call.match(textOf(path));
        if (match.hasMatch())
            found[match.captured(1)] =
                match.captured(3).split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    }
    return found;
}

QString targetOf(QString room) {
    return QStringLiteral("room_") + room.replace(u'/', u'_');
}

/// The rooms that a room may include: itself, what it links, and what those link.
QSet<QString> below(const QString& room, const std::map<QString, QStringList>& all) {
    QSet<QString> reached{room};
    QStringList open{room};
    while (!open.isEmpty()) {
        const QStringList links = all.at(open.takeFirst());
        for (const auto& [other, unused] : all)
            if (links.contains(targetOf(other)) && !reached.contains(other)) {
                reached.insert(other);
                open.append(other);
            }
    }
    return reached;
}

/// The sources and headers of a room's folder, by their path from the root.
QStringList filesOf(const QString& room) {
    QStringList files;
    const QDir folder(root + u'/' + room);
    for (const QString& name :
         folder.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files))
        files.append(room + u'/' + name);
    return files;
}

QString folderOf(const QString& path) {
    return path.section(u'/', 0, -2);
}

/// Lines of each function that starts at the margin, by its first line.
std::map<QString, int> functionLines(const QString& text) {
    std::map<QString, int> lengths;
    QString name;
    int start = 0;
    const QStringList lines = text.split(u'\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QString& line = lines[i];
        const bool opens = line.endsWith(u'{') && !line.startsWith(u' ') && !line.startsWith(u'}');
        static const QRegularExpression other(
            QStringLiteral("^(namespace|struct|class|enum|union|extern|constexpr std::array|const std::)"));
        if (opens && !other.match(line).hasMatch() && (line.contains(u'(') || line.contains(u')'))) {
            name = line;
            start = i;
        } else if (line == QStringLiteral("}") && !name.isEmpty()) {
            lengths[name] = i - start - 1;
            name.clear();
        }
    }
    return lengths;
}

}  // namespace

TEST(Rooms, IncludeOnlyWhatTheyLink) {
    const auto all = rooms();
    ASSERT_GE(all.size(), 20U);
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    for (const auto& [room, links] : all) {
        const QSet<QString> allowed = below(room, all);
        for (const QString& file : filesOf(room))
            for (auto each = include.globalMatch(textOf(file)); each.hasNext();) {
                const QString header = each.next().captured(1);
                if (!file.endsWith(QStringLiteral("main.cpp"))) {
                    EXPECT_TRUE(allowed.contains(folderOf(header)))
                        << file.toStdString() << " includes " << header.toStdString();
                }
            }
    }
}

TEST(Rooms, ExerciseRoomsDoNotKnowOneAnother) {
    const auto all = rooms();
    const QStringList exercises{QStringLiteral("lessons"), QStringLiteral("quizzes"),
                                QStringLiteral("vocabulary"), QStringLiteral("worksheets"),
                                QStringLiteral("video")};
    for (const QString& one : exercises)
        for (const QString& other : exercises)
            if (one != other) {
                EXPECT_FALSE(below(one, all).contains(other))
                    << one.toStdString() << ' ' << other.toStdString();
            }
}

TEST(Rooms, AHeaderHasASourceOfItsNameOrIsAllThereIs) {
    // A declaration of a function that the header does not define stands somewhere else.
    static const QRegularExpression declaration(
        QStringLiteral("^ {0,3}(?!using |typedef |friend |return |virtual |template)[A-Za-z][\\w:<>&*, ]*[ "
                       "*&]\\w+\\([^;{}]*\\)"
                       "( const)?( noexcept)?;"),
        QRegularExpression::MultilineOption);
    for (const auto& [room, links] : rooms())
        for (const QString& file : filesOf(room)) {
            if (!file.endsWith(QStringLiteral(".h")))
                continue;
            const QString source = file.chopped(2) + QStringLiteral(".cpp");
            const bool alone = !QFile::exists(root + u'/' + source);
            if (alone) {
                const auto match = declaration.match(textOf(file));
                EXPECT_FALSE(match.hasMatch() && !match.captured().contains(QStringLiteral("= 0")))
                    << file.toStdString()
                    << " declares and has no source: " << match.captured().toStdString();
            }
        }
}

TEST(Rooms, NoFileIsLongerThan400Lines) {
    for (const auto& [room, links] : rooms())
        for (const QString& file : filesOf(room))
            EXPECT_LE(textOf(file).count(u'\n'), 400) << file.toStdString();
}

TEST(Rooms, NoRoomIsLargerThan4000Lines) {
    for (const auto& [room, links] : rooms()) {
        qsizetype lines = 0;
        for (const QString& file : filesOf(room))
            lines += textOf(file).count(u'\n');
        EXPECT_LE(lines, 4000) << room.toStdString();
    }
}

TEST(Rooms, NoFunctionIsLongerThan40Lines) {
    for (const auto& [room, links] : rooms())
        for (const QString& file : filesOf(room))
            for (const auto& [name, lines] : functionLines(textOf(file)))
                EXPECT_LE(lines, 40) << file.toStdString() << ": " << name.toStdString();
}
