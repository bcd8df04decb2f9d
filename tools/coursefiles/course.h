#pragma once

#include "tools/coursefiles/course_source.h"

#include <QString>

#include <array>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// A course as the rules of the check read it: typed rows, and what belongs to one step side by side. A text
/// that is missing, which only a store can hold, is a null QString.
namespace tools::check {

using Number = std::optional<int>;

struct Row {
    const BuiltRow* built = nullptr;
    Number record;  // `recordno`
    Number topic;   // `topicno`

    SourcePlace at(const char* field) const;
    /// What the row trains or teaches, as its author says.
    const QStringList& points() const { return built->points; }
};

struct Topic : Row {
    QString title;
};

struct Step : Row {
    Number page, words, quizzes;
    QString type, title, data, guide, guide2, use, form;

    bool isQuiz() const { return type == QStringLiteral("Quiz"); }
    bool isFinal() const { return type == QStringLiteral("Final"); }
    bool isLesson() const { return type == QStringLiteral("Lesson"); }
    /// "step 12".
    QString called() const;
};

struct Question : Row {
    Number order;
    std::array<QString, 8> q;  // q[1] to q[7]
    QString a1, a2;
};

struct DrillRow : Row {
    Number order;
    std::array<QString, 4> word;  // word[1] to word[3]
};

struct Word : Row {
    QString word, korean;
};

struct Tip : Row {
    Number video;  // `autono`
    QString tips;
};

struct RuleLine : Row {
    Number order;
    QString text;
};

struct SheetRow : Row {
    std::array<QString, 5> word;  // word[1] to word[4]
    QString heading;
};

/// One range of the list that a printed Final takes its questions from.
struct FinalRange : Row {
    Number last;  // `recordno2`
};

struct Prompt : Row {
    QString word;
};

/// What belongs to one step number, in stored order.
struct Content {
    const Step* step = nullptr;
    std::vector<const Question*> questions;
    std::vector<const DrillRow*> drill;
    std::vector<const Word*> words;
    std::vector<const Tip*> tips;
    std::vector<const RuleLine*> lines;
    std::vector<const SheetRow*> sheet;
};

/// Pictures of one folder that are not there.
struct MissingPictures {
    QString folder;  // "D:\\button"
    QStringList names;
    int wanted = 0;
};

/// What lies beside the stores of a finished install.
struct Media {
    std::unordered_set<QString> sounds;  // names without their ending, in lower case
    std::unordered_set<int> videos;
    std::vector<MissingPictures> missing;
};

class Course {
   public:
    /// The tables must outlive the course.
    explicit Course(const std::vector<BuiltTable>& tables, std::optional<Media> media = {});
    Course(const Course&) = delete;
    Course& operator=(const Course&) = delete;

    std::vector<Topic> topics;
    std::vector<Step> steps;
    std::vector<Question> questions;
    std::vector<DrillRow> drill;
    std::vector<Word> words;
    std::vector<Tip> tips;
    std::vector<RuleLine> lines;
    std::vector<SheetRow> sheet;
    std::vector<FinalRange> finals;
    std::vector<Prompt> prompts;
    /// Absent for text tables, where no sound or video is expected yet.
    std::optional<Media> media;
    int rowCount = 0;

    /// What carries this step number; an empty content where nothing does.
    const Content& of(Number record) const;
    const Step* step(Number record) const { return of(record).step; }
    /// The steps of a unit in the order of their numbers.
    const std::vector<const Step*>& unit(Number topic) const;
    /// The steps that a Final draws its questions from.
    std::vector<const Step*> drawnBy(const Step& final) const;

   private:
    void read(const BuiltTable& table);

    std::unordered_map<int, Content> byRecord_;
    std::unordered_map<int, std::vector<const Step*>> byTopic_;
};

/// How wide a text stands, a Korean character counting 2.
int columnsOf(const QString& text);
/// Whether nothing but printable Latin characters stand in a text: what the answer boxes take.
bool isTypable(const QString& text);
/// The text without blanks at its ends, in lower case.
QString folded(const QString& text);
/// The words of a text as they stand between blanks.
QStringList wordsOf(const QString& text);

}  // namespace tools::check
