#include "platform/reports/template.h"

#include "platform/error.h"

#include <QFile>

#include <functional>
#include <map>
#include <string>

#define TOML_HEADER_ONLY 1
#define TOML_ENABLE_FORMATTERS 0
#include <toml++/toml.h>

namespace platform {

namespace {

constexpr int includesAllowed = 8;

QString fromToml(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A place in a template file: reads the value there, or tells what is wrong with it and where.
class Setting {
   public:
    Setting(const toml::node& node, QString name, QString file)
        : node_(node), name_(std::move(name)), file_(std::move(file)) {}

    [[noreturn]] void fail(const QString& reason) const {
        throwBrokenReport(file_, static_cast<int>(node_.source().begin.line), reason);
    }
    QString string() const {
        if (!node_.is_string())
            fail(QStringLiteral("'%1' must be a text in quotes.").arg(name_));
        return fromToml(node_.as_string()->get());
    }
    ReportText text() const { return {string(), file_, static_cast<int>(node_.source().begin.line)}; }
    bool flag() const {
        if (!node_.is_boolean())
            fail(QStringLiteral("'%1' must be true or false.").arg(name_));
        return node_.as_boolean()->get();
    }
    double number() const {
        if (!node_.is_number())
            fail(QStringLiteral("'%1' must be a number.").arg(name_));
        const double number = *node_.value<double>();
        if (!(number >= 0 && number <= 1000))
            fail(QStringLiteral("'%1' must lie between 0 and 1000.").arg(name_));
        return number;
    }
    double size() const {
        const double points = number();
        if (points < 4 || points > 100)
            fail(QStringLiteral("'%1' must be a size from 4 to 100 points.").arg(name_));
        return points;
    }
    std::vector<Setting> list() const {
        if (!node_.is_array())
            fail(QStringLiteral("'%1' must be a list in square brackets.").arg(name_));
        std::vector<Setting> members;
        for (const toml::node& member : *node_.as_array())
            members.emplace_back(member, name_, file_);
        return members;
    }
    std::vector<ReportText> texts() const {
        std::vector<ReportText> all;
        for (const Setting& member : list())
            all.push_back(member.text());
        return all;
    }

    using Reader = std::function<void(const Setting&)>;
    /// Hands every setting of a table to its reader. A setting that nobody reads is a slip of the pen.
    void table(const std::map<QString, Reader>& readers) const {
        if (!node_.is_table())
            fail(QStringLiteral("'%1' must be a section.").arg(name_));
        for (const auto& [key, value] : *node_.as_table()) {
            const QString name = fromToml(key.str());
            const auto reader = readers.find(name);
            if (reader == readers.end())
                throwBrokenReport(file_, static_cast<int>(key.source().begin.line),
                                  QStringLiteral("There is no setting '%1' here.").arg(name));
            reader->second(Setting(value, name, file_));
        }
    }

   private:
    const toml::node& node_;
    QString name_;
    QString file_;
};

Setting::Reader into(ReportText& target) {
    return [&target](const Setting& s) { target = s.text(); };
}
Setting::Reader into(QString& target) {
    return [&target](const Setting& s) { target = s.string(); };
}
Setting::Reader into(bool& target) {
    return [&target](const Setting& s) { target = s.flag(); };
}
Setting::Reader into(double& target) {
    return [&target](const Setting& s) { target = s.number(); };
}
Setting::Reader into(std::vector<ReportText>& target) {
    return [&target](const Setting& s) { target = s.texts(); };
}

QPageSize pageSize(const Setting& setting) {
    const QString wanted = setting.string();
    for (const QPageSize::PageSizeId id : {QPageSize::A4, QPageSize::A5, QPageSize::B5, QPageSize::Letter})
        if (QPageSize::key(id).compare(wanted, Qt::CaseInsensitive) == 0)
            return QPageSize(id);
    setting.fail(QStringLiteral("The page size must be A4, A5, B5 or Letter, not '%1'.").arg(wanted));
}

QMarginsF margins(const Setting& setting) {
    const auto sides = setting.list();
    if (sides.size() != 4)
        setting.fail(QStringLiteral("Margins are four numbers: left, top, right, bottom, in millimetres."));
    const QMarginsF read(sides[0].number(), sides[1].number(), sides[2].number(), sides[3].number());
    if (read.left() + read.right() > 100 || read.top() + read.bottom() > 100)
        setting.fail(QStringLiteral("Margins leave too little of the page."));
    return read;
}

void readPage(const Setting& setting, ReportTemplate& report) {
    setting.table({{QStringLiteral("size"), [&](const Setting& s) { report.page = pageSize(s); }},
                   {QStringLiteral("margins"), [&](const Setting& s) { report.margins = margins(s); }},
                   {QStringLiteral("gap_least"), into(report.gapLeast)},
                   {QStringLiteral("gap_most"), into(report.gapMost)},
                   {QStringLiteral("box_side"), into(report.boxSide)},
                   {QStringLiteral("blank_least"), into(report.blankLeast)},
                   {QStringLiteral("blank_most"), into(report.blankMost)}});
}

void readSizes(const Setting& setting, ReportSizes& sizes) {
    const auto size = [](double& target) {
        return Setting::Reader([&target](const Setting& s) { target = s.size(); });
    };
    setting.table({{QStringLiteral("title"), size(sizes.title)},
                   {QStringLiteral("heading"), size(sizes.heading)},
                   {QStringLiteral("line"), size(sizes.line)},
                   {QStringLiteral("guide"), size(sizes.guide)},
                   {QStringLiteral("group"), size(sizes.group)},
                   {QStringLiteral("english"), size(sizes.english)},
                   {QStringLiteral("korean"), size(sizes.korean)},
                   {QStringLiteral("number"), size(sizes.number)},
                   {QStringLiteral("bank"), size(sizes.bank)},
                   {QStringLiteral("page"), size(sizes.page)}});
}

std::vector<ReportLine> readLines(const Setting& setting) {
    std::vector<ReportLine> lines;
    for (const Setting& member : setting.list()) {
        ReportLine line;
        member.table({{QStringLiteral("label"), into(line.label)},
                      {QStringLiteral("text"), into(line.text)},
                      {QStringLiteral("share"), into(line.share)}});
        lines.push_back(line);
    }
    return lines;
}

void readHead(const Setting& setting, ReportTemplate& report) {
    setting.table({{QStringLiteral("title"), into(report.title)},
                   {QStringLiteral("heading"), into(report.heading)},
                   {QStringLiteral("badge"), into(report.badge)},
                   {QStringLiteral("guide"), into(report.guide)},
                   {QStringLiteral("lines"), [&](const Setting& s) { report.lines = readLines(s); }}});
}

void readBank(const Setting& setting, ReportBank& bank) {
    setting.table({{QStringLiteral("title"), into(bank.title)},
                   {QStringLiteral("words"), into(bank.words)},
                   {QStringLiteral("sorted"), into(bank.sorted)}});
}

void readGroup(const Setting& setting, ReportGroup& group) {
    group = {};
    setting.table({{QStringLiteral("table"), into(group.table)},
                   {QStringLiteral("from"), into(group.from)},
                   {QStringLiteral("to"), into(group.to)},
                   {QStringLiteral("of"), into(group.of)},
                   {QStringLiteral("restart"), into(group.restart)},
                   {QStringLiteral("text"), into(group.text)},
                   {QStringLiteral("even_alone"), into(group.evenAlone)}});
    const bool byRange = !group.table.isEmpty();
    if (byRange && (group.from.isEmpty() || group.to.isEmpty() || group.of.isEmpty()))
        setting.fail(QStringLiteral("A group by a table needs 'from', 'to' and 'of'."));
    if (!byRange && group.restart.isEmpty())
        setting.fail(QStringLiteral("A group needs a 'table' or a 'restart'."));
}

std::vector<ReportItem> readItems(const Setting& setting) {
    std::vector<ReportItem> items;
    for (const Setting& member : setting.list()) {
        ReportItem item;
        member.table({{QStringLiteral("number"), into(item.number)},
                      {QStringLiteral("head"), into(item.head)},
                      {QStringLiteral("prompts"), into(item.prompts)},
                      {QStringLiteral("choices"), into(item.choices)},
                      {QStringLiteral("answers"), into(item.answers)},
                      {QStringLiteral("words"), into(item.words)},
                      {QStringLiteral("masks"), into(item.masks)},
                      {QStringLiteral("letters"), into(item.lettersShown)}});
        if (item.words.size() != item.masks.size())
            member.fail(QStringLiteral("An item needs as many 'words' as 'masks'."));
        items.push_back(item);
    }
    if (items.empty() || items.size() > 2)
        setting.fail(QStringLiteral("A row prints one item or two, not %1.").arg(items.size()));
    return items;
}

void apply(const Setting& root, ReportTemplate& report) {
    root.table({{QStringLiteral("include"), [](const Setting&) {}},
                {QStringLiteral("store"), into(report.store)},
                {QStringLiteral("rows"), into(report.rows)},
                {QStringLiteral("order"), into(report.order)},
                {QStringLiteral("key"), into(report.key)},
                {QStringLiteral("name"), into(report.name)},
                {QStringLiteral("foot"), into(report.foot)},
                {QStringLiteral("nothing"), into(report.nothingWord)},
                {QStringLiteral("nothing_mark"), into(report.nothingMark)},
                {QStringLiteral("page"), [&](const Setting& s) { readPage(s, report); }},
                {QStringLiteral("size"), [&](const Setting& s) { readSizes(s, report.sizes); }},
                {QStringLiteral("head"), [&](const Setting& s) { readHead(s, report); }},
                {QStringLiteral("bank"), [&](const Setting& s) { readBank(s, report.bank); }},
                {QStringLiteral("group"), [&](const Setting& s) { readGroup(s, report.group); }},
                {QStringLiteral("item"), [&](const Setting& s) { report.items = readItems(s); }}});
}

toml::table parse(const QByteArray& content, const QString& path) {
    try {
        return toml::parse(std::string_view(content.constData(), static_cast<std::size_t>(content.size())));
    } catch (const toml::parse_error& failure) {
        throwBrokenReport(path, static_cast<int>(failure.source().begin.line),
                          fromToml(failure.description()));
    }
}

void readInto(const Drives& drives, const QString& path, ReportTemplate& report, int includesLeft) {
    const QString file = drives.resolve(path);
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("Report file not found: '%1' (%2).").arg(path, file));
    const toml::table table = parse(opened.readAll(), path);
    if (const toml::node* include = table.get("include")) {
        const Setting setting(*include, QStringLiteral("include"), path);
        if (includesLeft == 0)
            setting.fail(QStringLiteral("Templates include one another in a ring."));
        const QString folder = path.left(path.lastIndexOf(u'\\') + 1);
        const QString included = folder + setting.string();
        if (!QFile::exists(drives.resolve(included)))
            setting.fail(QStringLiteral("There is no file '%1' to include.").arg(included));
        readInto(drives, included, report, includesLeft - 1);
    }
    apply(Setting(table, path, path), report);
}

}  // namespace

void throwBrokenReport(const QString& file, int line, const QString& reason) {
    throw RuntimeError(
        ErrorCode::SyntaxError,
        QStringLiteral("The report '%1' is broken in line %2: %3").arg(file).arg(line).arg(reason));
}

ReportTemplate readReportTemplate(const Drives& drives, const QString& path) {
    ReportTemplate report;
    report.file = path;
    readInto(drives, path, report, includesAllowed);
    if (report.store.isEmpty() || report.rows.isEmpty() || report.items.empty())
        throwBrokenReport(path, 1, QStringLiteral("It needs 'store', 'rows' and an [[item]]."));
    if (report.gapMost < report.gapLeast || report.blankMost < report.blankLeast)
        throwBrokenReport(path, 1, QStringLiteral("A 'least' measure is larger than its 'most'."));
    return report;
}

}  // namespace platform
