// What people are told to call must be there once `./run` has ended.

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

const QString source = QStringLiteral(MENDORI_SOURCE);

QString textOf(const QString& file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? QString::fromUtf8(opened.readAll()) : QString();
}

TEST(RunScript, BuildsEveryProgramThatTheReadmeAndTheDocsCall) {
    static const QRegularExpression buildLine(QStringLiteral("^build release (.*)$"),
                                              QRegularExpression::MultilineOption);
    const QStringList built =
        buildLine.match(textOf(source + QStringLiteral("/run"))).captured(1).split(u' ');
    ASSERT_TRUE(built.contains(QStringLiteral("mendori")));
    QStringList pages{source + QStringLiteral("/README.md")};
    const QDir docs(source + QStringLiteral("/docs"));
    for (const QString& name : docs.entryList({QStringLiteral("*.md")}))
        pages.append(docs.filePath(name));
    static const QRegularExpression program(QStringLiteral("build/release/bin/([a-z_]+)"));
    QSet<QString> called;
    for (const QString& page : pages)
        for (auto match = program.globalMatch(textOf(page)); match.hasNext();)
            called.insert(match.next().captured(1));
    EXPECT_TRUE(called.contains(QStringLiteral("course")));
    for (const QString& name : called)
        EXPECT_TRUE(built.contains(name)) << name.toStdString();
}

}  // namespace
