// The fixed texts of each screen and the places of its side.

#include "tests/quizzes/quiz_desk.h"

namespace {

const QuizDesk::Question question{{"q1", "Two words"}, {"q2", "a"}, {"q3", "1"}, {"q4", "a"}, {"q5", "d"},
                                  {"q6", "e"},         {"q7", "f"}, {"a1", "a"}, {"a2", "e"}};

struct Texts {
    const char* form;
    QStringList headings;
    const char* check;
    const char* hint;
};

void PrintTo(const Texts& texts, std::ostream* out) {
    *out << texts.form;
}

QString textOf(core::Screen* screen, const char* name) {
    const auto* label = screen->findChild<platform::Label*>(QLatin1String(name));
    return label == nullptr ? QString() : label->caption();
}

class QuizTexts : public ::testing::TestWithParam<Texts> {};

}  // namespace

TEST_P(QuizTexts, HeadingsCaptionsAndHintStandToTheCharacter) {
    const Texts texts = GetParam();
    QuizDesk desk;
    desk.layStep(2, {question});
    core::Screen* screen = desk.run(texts.form);
    ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    QStringList headings;
    while (auto* heading =
               screen->findChild<platform::Label*>(QStringLiteral("lblHeading(%1)").arg(headings.size())))
        headings.append(heading->caption());
    EXPECT_EQ(headings, texts.headings);
    EXPECT_EQ(textOf(screen, "lblQuiz"), QLatin1String(texts.check));
    EXPECT_EQ(textOf(screen, "lblHint"), QString::fromUtf8(texts.hint));
    EXPECT_EQ(textOf(screen, "lblCurrent2"), QStringLiteral("Current No"));
    EXPECT_EQ(textOf(screen, "lblTotal2"), QStringLiteral("Total No"));
}

TEST_P(QuizTexts, TheSideStandsInItsPlaces) {
    QuizDesk desk;
    desk.layStep(2, {question});
    core::Screen* screen = desk.run(GetParam().form);
    ASSERT_NE(screen, nullptr) << desk.failure().toStdString();
    EXPECT_EQ(screen->designSize(), QSize(993, 718));
    std::map<const char*, QPoint> places{
        {"picPre", {872, 560}},     {"picNext", {872, 456}},   {"picExit", {832, 16}},
        {"picTable", {688, 16}},    {"picBegin", {872, 344}},  {"lblCurrent2", {872, 88}},
        {"lblCurrent", {872, 104}}, {"lblTotal2", {872, 144}}, {"lblTotal", {872, 160}}};
    if (*GetParam().check != '\0')
        places["picQuiz"] = {872, 344};
    for (const auto& [name, place] : places)
        EXPECT_EQ(screen->placeOf(part(screen, name)).topLeft(), place) << name;
}

INSTANTIATE_TEST_SUITE_P(
    EveryQuiz, QuizTexts,
    ::testing::Values(
        Texts{"frmQuiz", {"Question Word", "Select Word", "Select Word", "Answered Word"}, "Answer", ""},
        Texts{"frmQuiz2", {"Question Word", "Answered Word"}, "Answer", ""},
        Texts{"frmQuiz3",
              {"Answered Word (1)", "Answered Word (2)"},
              "Next Quiz",
              "답을 선택한 후에는 <Next Quiz>를 클릭하십시오"},
        Texts{"frmQuiz4",
              {"Selected Word ", "Answered Word "},
              "Next Quiz",
              "답을 입력한 후에는 글자판의 <Enter>키를 누르거나 <Next Quiz>를 클릭하십시오"},
        Texts{"frmQuiz5", {}, "", ""},
        Texts{"frmQuiz6",
              {"Type Correct Answer Here"},
              "Next Quiz",
              "문장을 입력한 후 글자판의 <Enter>키를 누르거나 <Next Quiz>를 클릭하십시오"},
        Texts{"frmQuiz7", {}, "", ""}, Texts{"frmQuiz8", {}, "", ""},
        Texts{"frmQuiz9", {"Question Word", "Answered Word (1)", "Answered Word (2)"}, "Answer", ""},
        Texts{"frmQuiz10",
              {},
              "Answer",
              "문장을 입력한 후 글자판의 <Enter>키를 누르거나 <Answer>를 클릭하십시오"},
        Texts{"frmQuiz11",
              {"Question Word", "Answered Word", "Select Word"},
              "Answer",
              "<Re-Set>을 클릭하면 처음부터 다시 답을 선택할 수 있습니다."},
        Texts{"frmQuiz12", {"Question Word", "Answered Word", "Select Word"}, "Answer", ""}),
    [](const auto& one) { return std::string(one.param.form); });

TEST(QuizTextsTogether, TheWholeSentenceTellsItsRule) {
    QuizDesk desk;
    desk.layStep(2, {question});
    EXPECT_EQ(caption(desk.run("frmQuiz6"), "lblRule"),
              QStringLiteral("대문자, 띄어쓰기 모두 일치하여야 합니다"));
}

TEST(QuizTextsTogether, BothPoolsHaveTheirResetButton) {
    for (const char* form : {"frmQuiz11", "frmQuiz12"}) {
        QuizDesk desk;
        desk.layStep(2, {question});
        EXPECT_EQ(support::find<QPushButton>(desk.run(form), QStringLiteral("cmdReset")).text(),
                  QStringLiteral("Re-Set"));
    }
}
