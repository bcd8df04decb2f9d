#include "tools/coursefiles/course.h"

#include "catalogue/steps.h"

#include <algorithm>

namespace tools::check {

namespace {

/// Reads fields of one table by columns that were looked up once.
class Reader {
   public:
    explicit Reader(const BuiltTable& table) : table_(table) {}

    void row(const BuiltRow& row) { row_ = &row, next_ = 0; }

    Number number(const char* field) {
        const platform::Value* value = find(field);
        if (value == nullptr || value->isNull())
            return {};
        try {
            return static_cast<int>(value->toInt16());
        } catch (const std::exception&) {
            return {};
        }
    }

    QString text(const char* field) {
        const platform::Value* value = find(field);
        if (value == nullptr || value->isNull())
            return {};
        const QString text = value->toText();
        return text.isNull() ? QStringLiteral("") : text;
    }

   private:
    // Every row is asked for the same fields in the same order.
    const platform::Value* find(const char* field) {
        if (next_ == columns_.size())
            columns_.push_back(table_.column(QLatin1String(field)));
        const int column = columns_[next_++];
        return column < 0 ? nullptr : &row_->values[static_cast<std::size_t>(column)];
    }

    const BuiltTable& table_;
    const BuiltRow* row_ = nullptr;
    std::vector<int> columns_;
    std::size_t next_ = 0;
};

template <std::size_t size>
void readTexts(Reader& reader, std::array<QString, size>& texts,
               const std::array<const char*, size - 1>& fields) {
    for (std::size_t i = 1; i < size; ++i)
        texts[i] = reader.text(fields[i - 1]);
}

void fill(Reader& reader, Topic& row) {
    row.title = reader.text("Title");
}

void fill(Reader& reader, Step& row) {
    row.page = reader.number("pageno");
    row.words = reader.number("wordno");
    row.quizzes = reader.number("quizno");
    row.type = reader.text("Type");
    row.title = reader.text("Title");
    row.data = reader.text("Data");
    row.guide = reader.text("guide");
    row.guide2 = reader.text("guide2");
    row.use = reader.text("usedata");
    row.form = reader.text("useform");
}

void fill(Reader& reader, Question& row) {
    row.order = reader.number("orderno");
    readTexts(reader, row.q, {"q1", "q2", "q3", "q4", "q5", "q6", "q7"});
    row.a1 = reader.text("a1");
    row.a2 = reader.text("a2");
}

void fill(Reader& reader, DrillRow& row) {
    row.order = reader.number("orderno");
    readTexts(reader, row.word, {"word1", "word2", "word3"});
}

void fill(Reader& reader, Word& row) {
    row.word = reader.text("word");
    row.korean = reader.text("korean");
}

void fill(Reader& reader, Tip& row) {
    row.video = reader.number("autono");
    row.tips = reader.text("tips");
}

void fill(Reader& reader, RuleLine& row) {
    row.order = reader.number("orderno");
    row.text = reader.text("tip2");
}

void fill(Reader& reader, SheetRow& row) {
    readTexts(reader, row.word, {"word1", "word2", "word3", "word4"});
    row.heading = reader.text("vtitle");
}

void fill(Reader& reader, FinalRange& row) {
    row.last = reader.number("recordno2");
}

void fill(Reader& reader, Prompt& row) {
    row.word = reader.text("word");
}

template <typename Kind>
void readAll(const BuiltTable& table, std::vector<Kind>& rows) {
    Reader reader(table);
    rows.reserve(table.rows.size());
    for (const BuiltRow& built : table.rows) {
        Kind row;
        row.built = &built;
        reader.row(built);
        row.record = reader.number("recordno");
        row.topic = reader.number("topicno");
        fill(reader, row);
        rows.push_back(std::move(row));
    }
}

}  // namespace

SourcePlace Row::at(const char* field) const {
    SourcePlace place = built->place;
    place.field = QLatin1String(field);
    return place;
}

QString Step::called() const {
    return record ? QStringLiteral("step %1").arg(*record) : QStringLiteral("a step without a number");
}

Course::Course(const std::vector<BuiltTable>& tables, std::optional<Media> foundMedia)
    : media(std::move(foundMedia)) {
    for (const BuiltTable& table : tables)
        read(table);
    for (const Step& step : steps) {
        if (step.record && byRecord_[*step.record].step == nullptr)
            byRecord_[*step.record].step = &step;
        if (step.topic)
            byTopic_[*step.topic].push_back(&step);
    }
    const auto group = [&](const auto& rows, auto list) {
        for (const auto& row : rows)
            if (row.record)
                (byRecord_[*row.record].*list).push_back(&row);
    };
    group(questions, &Content::questions);
    group(drill, &Content::drill);
    group(words, &Content::words);
    group(tips, &Content::tips);
    group(lines, &Content::lines);
    group(sheet, &Content::sheet);
    for (auto& [topic, unitSteps] : byTopic_)
        std::stable_sort(unitSteps.begin(), unitSteps.end(),
                         [](const Step* a, const Step* b) { return a->record < b->record; });
}

void Course::read(const BuiltTable& table) {
    const auto is = [&](const char* name) {
        return table.table.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
    };
    if (is("topic"))
        readAll(table, topics);
    else if (is("tablework"))
        readAll(table, steps);
    else if (is("tovalin1_quiz_data"))
        readAll(table, questions);
    else if (is("tovalin1_basic_data"))
        readAll(table, drill);
    else if (is("newword"))
        readAll(table, words);
    else if (is("tovalin1_gram_tip"))
        readAll(table, tips);
    else if (is("gram_tip2"))
        readAll(table, lines);
    else if (is("basic_data3"))
        readAll(table, sheet);
    else if (is("tablework_final_data"))
        readAll(table, finals);
    else if (is("tovalin1_basicdata_115"))
        readAll(table, prompts);
    else
        return;
    rowCount += static_cast<int>(table.rows.size());
}

const Content& Course::of(Number record) const {
    static const Content nothing;
    const auto found = record ? byRecord_.find(*record) : byRecord_.end();
    return found == byRecord_.end() ? nothing : found->second;
}

const std::vector<const Step*>& Course::unit(Number topic) const {
    static const std::vector<const Step*> none;
    const auto found = topic ? byTopic_.find(*topic) : byTopic_.end();
    return found == byTopic_.end() ? none : found->second;
}

std::vector<const Step*> Course::drawnBy(const Step& final) const {
    std::vector<const Step*> drawn;
    const auto takeRange = [&](int first, int last) {
        for (int record = first; record <= last; ++record)
            if (const Step* drawnStep = step(record))
                drawn.push_back(drawnStep);
    };
    if (const auto range = catalogue::drawnRange(final.record.value_or(0)))
        takeRange(range->first, range->last);
    else
        for (const Step* other : unit(final.topic))
            if (other->type.compare(QStringLiteral("Quiz"), Qt::CaseInsensitive) == 0)
                drawn.push_back(other);
    return drawn;
}

int columnsOf(const QString& text) {
    int columns = 0;
    for (const QChar c : text)
        columns += c.unicode() >= 0x1100 ? 2 : 1;
    return columns;
}

bool isTypable(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

QString folded(const QString& text) {
    return text.trimmed().toLower();
}

QStringList wordsOf(const QString& text) {
    return text.split(u' ', Qt::SkipEmptyParts);
}

}  // namespace tools::check
