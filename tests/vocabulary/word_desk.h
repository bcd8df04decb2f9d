#pragma once

#include "tests/support/desk.h"

#include "platform/desktop/controls.h"

#include <string>
#include <utility>
#include <vector>

/// A desk with a step of words in hand.
struct WordDesk : support::Desk {
    using Words = std::vector<std::pair<std::string, std::string>>;

    explicit WordDesk(const Words& words, const QString& stepType = QStringLiteral("Lesson")) {
        session.recordNo = 7;
        session.topicNo = 2;
        session.pageNo = 3;
        session.wordNo = static_cast<int>(words.size());
        session.hasWords = QStringLiteral("YES");
        session.stepType = stepType;
        session.stepTitle = QStringLiteral("명사 3");
        session.useForm = QStringLiteral("frmNone");
        std::string rows;
        for (const auto& [word, korean] : words)
            rows +=
                "insert into word_book (word,korean,recordno) values ('" + word + "','" + korean + "',7);";
        exec(support::wordBookStore, rows);
        // The course table opens on unit 1 for a learner without scores.
        exec(support::courseStore,
             "insert into topic (topicno,Title) values (1,'문장'),(2,'명사');"
             "insert into tablework (recordno,topicno,pageno,Type,Title,Data,wordno,useform)"
             " values (1,1,1,'Lesson','문장','어순',0,'frmNone'),"
             "(7,2,3,'Lesson','명사','복수형',4,'frmNone')");
    }

    /// The score columns of the step.
    QString results() const {
        return row(support::scoreStore, "select s1,s2,s3,s4 from score where recordno=7");
    }
};

/// Different words of six letters with the meanings "뜻1", "뜻2" and so on.
inline WordDesk::Words manyWords(int count) {
    WordDesk::Words words;
    for (int i = 1; i <= count; ++i) {
        std::string tail(1, static_cast<char>('a' + i % 26));
        tail += static_cast<char>('a' + i / 26);
        words.emplace_back("word" + tail, "뜻" + std::to_string(i));
    }
    return words;
}

inline WordDesk::Words oneWord(const std::string& word, const std::string& korean) {
    return WordDesk::Words(1, {word, korean});
}

inline platform::Label& label(const QWidget* form, const char* name) {
    return support::find<platform::Label>(form, QLatin1String(name));
}

inline platform::TextBox& box(const QWidget* form, const char* row, int index) {
    return support::find<platform::TextBox>(form,
                                            QStringLiteral("%1(%2)").arg(QLatin1String(row)).arg(index));
}

/// Types a word letter by letter into whatever box has the focus.
inline void spell(const QWidget* form, const char* letters) {
    for (const char* letter = letters; *letter != '\0'; ++letter)
        QTest::keyClick(form->focusWidget(), *letter);
}

/// Where a control stands on the form as designed.
inline QPoint standsAt(const QWidget* form, const char* name) {
    return support::find<QWidget>(form, QLatin1String(name)).property("designRect").toRect().topLeft();
}

inline bool shown(const QWidget* form, const char* name) {
    return !support::find<QWidget>(form, QLatin1String(name)).isHidden();
}
