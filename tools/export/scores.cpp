#include "tools/export/scores.h"

#include "core/stores.h"
#include "platform/storage/database.h"
#include "platform/storage/store_errors.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>

namespace tools {

namespace {

struct CourseStep {
    int unit = 0;
    QString title;
};

/// What the course's own store says of units and steps.
struct CourseTitles {
    QMap<int, QString> units;
    QMap<int, CourseStep> steps;
};

QString textOf(SQLite::Statement& rows, const char* column) {
    const SQLite::Column value = rows.getColumn(column);
    if (value.isNull())
        return {};
    if (value.isFloat())
        return QString::number(value.getDouble(), 'g', 15);
    return QString::fromUtf8(value.getText());
}

int numberOf(SQLite::Statement& rows, const char* column) {
    return rows.getColumn(column).getInt();
}

/// Runs `read` on a store; what stands in the way becomes a sentence.
template <typename Read>
void readStore(const QString& file, QStringList& problems, Read read) {
    if (platform::storeFormat(file) == platform::StoreFormat::AccessFile) {
        problems.append(
            QStringLiteral("%1 is a genuine Access file; bring it over with \"course import\" first.")
                .arg(file));
        return;
    }
    try {
        SQLite::Database store(file.toStdString(), SQLite::OPEN_READONLY);
        read(store);
    } catch (const SQLite::Exception& error) {
        problems.append(QStringLiteral("%1 cannot be read: %2.").arg(file, QString::fromUtf8(error.what())));
    }
}

CourseTitles readTitles(const InstallPlaces& places, QStringList& problems) {
    CourseTitles titles;
    const QString file = places.drives.resolve(places.applicationFolder + QStringLiteral("\\tovalin.mdb"));
    readStore(file, problems, [&](SQLite::Database& store) {
        SQLite::Statement units(store, "SELECT topicno, Title FROM topic WHERE topicno IS NOT NULL");
        while (units.executeStep())
            titles.units.insert(numberOf(units, "topicno"), textOf(units, "Title"));
        SQLite::Statement steps(
            store, "SELECT recordno, topicno, Title, Data FROM tablework WHERE recordno IS NOT NULL");
        while (steps.executeStep()) {
            const QString line = textOf(steps, "Data");
            titles.steps.insert(numberOf(steps, "recordno"),
                                {numberOf(steps, "topicno"), line.isEmpty() ? textOf(steps, "Title") : line});
        }
    });
    return titles;
}

StepScore stepOf(SQLite::Statement& rows, const CourseTitles& titles) {
    StepScore step;
    step.step = numberOf(rows, "recordno");
    step.unit = numberOf(rows, "datapage");
    step.place = numberOf(rows, "dayno");
    step.kind = textOf(rows, "lessontype");
    const QString stored = textOf(rows, "vtitle");
    step.title = stored.isEmpty() ? titles.steps.value(step.step).title : stored;
    step.spelling = textOf(rows, "s1");
    step.matching = textOf(rows, "s2");
    step.words = textOf(rows, "s3");
    step.main = textOf(rows, "s4");
    step.set = textOf(rows, "s5");
    step.date = textOf(rows, "vDate");
    return step;
}

/// Every unit of the course with its count of steps, and any other that the learner has a score in.
std::vector<UnitScore> unitsOf(const std::vector<StepScore>& steps, const CourseTitles& titles) {
    QMap<int, UnitScore> units;
    for (auto unit = titles.units.begin(); unit != titles.units.end(); ++unit)
        units[unit.key()] = {unit.key(), unit.value()};
    for (const CourseStep& step : titles.steps)
        units[step.unit].steps += 1;
    for (const StepScore& step : steps) {
        UnitScore& unit = units[step.unit];
        unit.average += step.mainScore().value_or(0);
        unit.finished += step.unfinished() ? 0 : 1;
    }
    std::vector<UnitScore> list;
    for (auto unit = units.begin(); unit != units.end(); ++unit) {
        unit->unit = unit.key();
        unit->average = unit->finished > 0 ? unit->average / unit->finished : 0;
        list.push_back(*unit);
    }
    return list;
}

void readLearners(SQLite::Database& store, const QString& studentNo, const CourseTitles& titles,
                  std::vector<LearnerScores>& learners) {
    SQLite::Statement rows(store, "SELECT * FROM score ORDER BY studentno, program, recordno, rowid");
    const std::size_t first = learners.size();
    while (rows.executeStep()) {
        const QString number = textOf(rows, "studentno");
        const QString program = textOf(rows, "program");
        if (!studentNo.isEmpty() && number.compare(studentNo, Qt::CaseInsensitive) != 0)
            continue;
        if (learners.size() == first || learners.back().studentNo != number ||
            learners.back().program != program)
            learners.push_back({number, {}, program, {}, {}, {}});
        LearnerScores& learner = learners.back();
        learner.steps.push_back(stepOf(rows, titles));
        // The name of the latest row is the one that the learner goes by now.
        if (const StepScore& step = learner.steps.back(); step.date >= learner.lastDate) {
            learner.lastDate = step.date;
            if (const QString name = textOf(rows, "studentname"); !name.isEmpty())
                learner.name = name;
        }
    }
    for (std::size_t i = first; i < learners.size(); ++i)
        learners[i].units = unitsOf(learners[i].steps, titles);
}

/// A spreadsheet takes a cell that begins so for a formula and runs it; the apostrophe keeps it a text. The
/// wide forms count in spreadsheets of East Asia.
bool readsAsFormula(const QString& text) {
    static const QString signs = QStringLiteral("=+-@\t\r\uFF1D\uFF0B\uFF0D\uFF20");
    return !text.isEmpty() && signs.contains(text.front());
}

QString csvField(QString text) {
    if (readsAsFormula(text))
        text.prepend(u'\'');
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n') && !text.contains(u'\r'))
        return text;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

}  // namespace

std::optional<double> StepScore::mainScore() const {
    bool number = false;
    const double score = main.toDouble(&number);
    return number ? std::optional(score) : std::nullopt;
}

int LearnerScores::finished() const {
    return static_cast<int>(
        std::count_if(steps.begin(), steps.end(), [](const StepScore& s) { return !s.unfinished(); }));
}

int LearnerScores::courseSteps() const {
    int count = 0;
    for (const UnitScore& unit : units)
        count += unit.steps;
    return count;
}

double LearnerScores::average() const {
    double sum = 0;
    for (const StepScore& step : steps)
        sum += step.mainScore().value_or(0);
    return finished() > 0 ? sum / finished() : 0;
}

std::vector<LearnerScores> readScores(const InstallPlaces& places, const QString& studentNo,
                                      QStringList& problems) {
    const CourseTitles titles = readTitles(places, problems);
    const QDir folder(places.drives.resolve(core::mainFolder));
    std::vector<LearnerScores> learners;
    QStringList files = folder.entryList({QStringLiteral("DbScore_*.mdb")}, QDir::Files, QDir::Name);
    for (const QString& name : files)
        readStore(folder.filePath(name), problems,
                  [&](SQLite::Database& store) { readLearners(store, studentNo, titles, learners); });
    if (learners.empty() && problems.isEmpty())
        problems.append(
            studentNo.isEmpty()
                ? QStringLiteral("There is no score in %1.").arg(folder.path())
                : QStringLiteral("There is no score of student %1 in %2.").arg(studentNo, folder.path()));
    return learners;
}

QByteArray scoresAsCsv(const std::vector<LearnerScores>& learners) {
    // Spreadsheets take the text for one of the local code page without the mark.
    QString csv = QStringLiteral(
        "\uFEFFstudentno,studentname,program,unit,unittitle,unitno,step,type,title,spelling,matching,"
        "words,score,set,state,date\r\n");
    for (const LearnerScores& learner : learners)
        for (const StepScore& step : learner.steps) {
            const auto unit = std::find_if(learner.units.begin(), learner.units.end(),
                                           [&](const UnitScore& u) { return u.unit == step.unit; });
            const QStringList fields{learner.studentNo,
                                     learner.name,
                                     learner.program,
                                     QString::number(step.unit),
                                     unit->title,
                                     QString::number(step.place),
                                     QString::number(step.step),
                                     step.kind,
                                     step.title,
                                     step.spelling,
                                     step.matching,
                                     step.words,
                                     step.main,
                                     step.set,
                                     step.unfinished() ? QStringLiteral("begun") : QStringLiteral("finished"),
                                     step.date};
            QStringList quoted;
            for (const QString& field : fields)
                quoted.append(csvField(field));
            csv += quoted.join(u',') + QStringLiteral("\r\n");
        }
    return csv.toUtf8();
}

}  // namespace tools
