#pragma once

#include "tests/vocabulary/word_desk.h"

#include <gtest/gtest.h>

inline const WordDesk::Words three{{"leaf", "나뭇잎"}, {"mystery", "수수께끼"}, {"Apple", "사과"}};
inline const QString brindle = QStringLiteral("Brindle English");

inline core::Screen* openCoach(WordDesk& desk) {
    core::Screen* form = desk.open(QStringLiteral("frmVoca2"));
    if (form == nullptr)
        throw std::runtime_error("the spelling coach did not come up: " + desk.failure().toStdString());
    return form;
}

/// Types a whole word and presses Enter.
inline void answer(QWidget* form, const char* word) {
    auto& entry = support::find<platform::TextBox>(form, QStringLiteral("txtWord"));
    entry.setFocus();
    entry.clear();
    support::type(entry, QLatin1String(word));
    QTest::keyClick(&entry, Qt::Key_Return);
}

inline void practise(QWidget* form) {
    support::click(support::find(form, QStringLiteral("cmdPractice")));
}

/// What stands in a row: '_' for an empty box, '?' for a locked one that is empty.
inline QString rowText(const QWidget* form, const char* row) {
    QString text;
    for (int i = 0; i < 18; ++i) {
        const auto& letter = box(form, row, i);
        if (letter.isHidden())
            continue;
        text += letter.text().isEmpty() ? (letter.locked() ? QStringLiteral("?") : QStringLiteral("_"))
                                        : letter.text();
    }
    return text;
}

inline void expectMessage(const WordDesk& desk, const char* text, platform::BoxIcon icon,
                          const QString& title) {
    ASSERT_FALSE(desk.boxes.shown.empty());
    EXPECT_EQ(desk.boxes.lastText(), QString::fromUtf8(text));
    EXPECT_EQ(desk.boxes.shown.back().icon, icon);
    EXPECT_EQ(desk.boxes.shown.back().title, title);
}
