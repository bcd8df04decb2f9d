// Words with accented letters: a capital is a capital in any alphabet, on every drill.

#include "catalogue/drills.h"
#include "tests/lessons/drill_desk.h"

#include <gtest/gtest.h>

using namespace lessons_test;

namespace {

std::vector<Row> accentedRows(int count) {
    std::vector<Row> rows;
    for (int i = 0; i < count; ++i) {
        const QString word = QStringLiteral("Élan%1").arg(i + 1);
        rows.push_back({word, word + QStringLiteral("É")});
    }
    return rows;
}

std::vector<std::string> typedDrills() {
    std::vector<std::string> names;
    for (const catalogue::Drill& drill : catalogue::drillCatalogue())
        if (drill.boxes > 0)
            names.emplace_back(drill.name);
    return names;
}

class AccentedWords : public ::testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(AccentedWords, AreRightInSmallLettersAndInCapitals) {
    const catalogue::Drill& drill = *catalogue::findDrill(GetParam());
    for (const bool capitals : {false, true}) {
        DrillDesk desk(QString::fromStdString(GetParam()), accentedRows(drill.boxes));
        ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
        desk.begin();
        const QStringList words = desk.rightWords();
        for (int i = 0; i < drill.boxes; ++i)
            desk.box(i).setText(capitals ? words[i].toUpper() : words[i].toLower());
        desk.check();
        EXPECT_TRUE(desk.boxes.lastText().startsWith(QStringLiteral("Good Job!")))
            << desk.boxes.lastText().toStdString() << desk.failure().toStdString();
    }
}

TEST_P(AccentedWords, AreWrongWithoutTheirAccents) {
    const catalogue::Drill& drill = *catalogue::findDrill(GetParam());
    DrillDesk desk(QString::fromStdString(GetParam()), accentedRows(drill.boxes));
    ASSERT_NE(desk.open(), nullptr) << desk.failure().toStdString();
    desk.begin();
    for (int i = 0; i < drill.boxes; ++i)
        desk.box(i).setText(desk.rightWords()[i].replace(u'É', u'e'));
    desk.check();
    EXPECT_EQ(desk.boxes.lastText(), QString::fromUtf8(drill.missed));
}

INSTANTIATE_TEST_SUITE_P(Drills, AccentedWords, ::testing::ValuesIn(typedDrills()),
                         [](const auto& name) { return name.param; });
