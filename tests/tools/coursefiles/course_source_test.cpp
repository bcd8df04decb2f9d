// A course as a folder of tables: which folders and tables count, and what is filled in.

#include "tools/coursefiles/course_source.h"
#include "tests/tools/rules/cases.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using namespace tools;

class CourseFolder : public testing::Test {
   protected:
    CourseFolder() {
        write("topic.csv", "topicno,Title\n1,명사\n");
        write("unit01/tablework.csv", "recordno,Type,Title,Data,useform\n1,Quiz,명사,복수형,frmQuiz\n");
    }

    void write(const char* file, const char* text) const {
        const QFileInfo place(folder_.filePath(QLatin1String(file)));
        QDir().mkpath(place.path());
        QFile opened(place.filePath());
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        opened.write(text);
    }

    /// The places of what is wrong with the folder.
    QStringList wrong() const {
        ReadErrors damages;
        const BuiltCourse built(readCourse(folder_.path(), &damages), &damages);
        return check_cases::places(check::unreadable(damages));
    }

    QTemporaryDir folder_;
};

TEST_F(CourseFolder, WithUnitsAndTablesIsACourse) {
    EXPECT_EQ(wrong(), QStringList());
}

TEST_F(CourseFolder, WithoutATableOfUnitsIsToldOnce) {
    QFile::remove(folder_.filePath(QStringLiteral("topic.csv")));
    EXPECT_EQ(wrong(), QStringList{QStringLiteral("topic.csv")});
}

TEST_F(CourseFolder, TellsAUnitWithoutSteps) {
    write("unit02/newword.csv", "recordno,word,korean\n1,cat,고양이\n");
    QDir(folder_.path()).mkdir(QStringLiteral("unit03"));
    EXPECT_EQ(wrong(),
              (QStringList{QStringLiteral("unit02/tablework.csv"), QStringLiteral("unit03/tablework.csv")}));
}

TEST_F(CourseFolder, TellsAFolderOfTablesWhoseNameIsNoUnits) {
    write("unti02/newword.csv", "recordno,word,korean\n");
    write("Unit02/newword.csv", "recordno,word,korean\n");
    write("unit00/newword.csv", "recordno,word,korean\n");
    write("notes/letter.txt", "no table");
    EXPECT_EQ(wrong(),
              (QStringList{QStringLiteral("Unit02"), QStringLiteral("unit00"), QStringLiteral("unti02")}));
}

TEST_F(CourseFolder, TellsTwoFoldersOfOneUnit) {
    write("unit1/tablework.csv", "recordno,Type,Title,Data,useform\n2,Quiz,명사,복수형,frmQuiz\n");
    EXPECT_EQ(wrong(), QStringList{QStringLiteral("unit1")});
}

TEST_F(CourseFolder, TellsATableOfAnUnknownName) {
    write("unit01/newwords.csv", "recordno,word,korean\n");
    EXPECT_EQ(wrong(), QStringList{QStringLiteral("unit01/newwords.csv")});
}

TEST_F(CourseFolder, LeavesOutATableThatLacksAFieldAndTellsEachOnce) {
    write("unit01/newword.csv", "recordno,wrod\n1,cat\n1,dog\n");
    EXPECT_EQ(wrong(), (QStringList{QStringLiteral("unit01/newword.csv:1, field 'word'"),
                                    QStringLiteral("unit01/newword.csv:1, field 'korean'")}));
}

TEST_F(CourseFolder, TellsATextInAColumnWithoutAName) {
    write("unit01/newword.csv", "recordno,word,korean,,\n1,cat,고양이,,\n1,dog,개,,x\n");
    EXPECT_EQ(wrong(), QStringList{QStringLiteral("unit01/newword.csv:3")});
}

TEST_F(CourseFolder, TellsNumbersThatAreNone) {
    write("unit01/newword.csv",
          "recordno,word,korean\n4x,cat,고양이\n1.0,dog,개\n99999,cow,소\n 1,pig,돼지\n");
    EXPECT_EQ(wrong(), (QStringList{QStringLiteral("unit01/newword.csv:2, field 'recordno'"),
                                    QStringLiteral("unit01/newword.csv:3, field 'recordno'"),
                                    QStringLiteral("unit01/newword.csv:4, field 'recordno'")}));
}

TEST_F(CourseFolder, WithoutAnyTableIsNone) {
    const QTemporaryDir empty;
    ReadErrors damages;
    EXPECT_THROW(readCourse(empty.path(), &damages), SourceError);
}

TEST_F(CourseFolder, KeepsThePointsOfItsRowsBesideTheFieldsOfTheStore) {
    write("unit01/tovalin1_quiz_data.csv", "recordno,q1,a1,point\n1,x,a,plural-es\n1,y,b,\n");
    write("unit01/tovalin1_gram_tip.csv", "recordno,autono,tips,point\n1,1,복수형,plural-s  plural-es\n");
    EXPECT_EQ(wrong(), QStringList());
    const BuiltCourse built(readCourse(folder_.path()));
    const BuiltTable& questions = built.table(QStringLiteral("tovalin1_quiz_data"));
    EXPECT_LT(questions.column(QStringLiteral("point")), 0);
    EXPECT_EQ(questions.rows[0].points, QStringList{QStringLiteral("plural-es")});
    EXPECT_EQ(questions.rows[0].values.size(), static_cast<std::size_t>(questions.fields.size()));
    EXPECT_TRUE(questions.rows[1].points.isEmpty());
    const BuiltTable& tips = built.table(QStringLiteral("tovalin1_gram_tip"));
    EXPECT_EQ(tips.rows[0].points, (QStringList{QStringLiteral("plural-s"), QStringLiteral("plural-es")}));
}

TEST_F(CourseFolder, TellsAPointWhereATableHasNone) {
    write("unit01/newword.csv", "recordno,word,korean,point\n1,cat,고양이,plural-s\n");
    EXPECT_EQ(wrong(), QStringList{QStringLiteral("unit01/newword.csv:1, field 'point'")});
}

TEST_F(CourseFolder, FillsInPlacesOrdersAndCounts) {
    write("unit01/newword.csv", "recordno,word,korean\n1,cat,고양이\n1,dog,개\n");
    write("unit01/tovalin1_quiz_data.csv", "recordno,q1,a1\n1,x,a\n1,y,b\n1,z,c\n");
    const BuiltCourse built(readCourse(folder_.path()));
    const BuiltTable& steps = built.table(QStringLiteral("tablework"));
    const auto number = [](const BuiltTable& table, std::size_t row, const char* field) {
        return static_cast<int>(table.value(table.rows[row], QLatin1String(field)).toInt16());
    };
    EXPECT_EQ(number(steps, 0, "topicno"), 1);
    EXPECT_EQ(number(steps, 0, "pageno"), 1);
    EXPECT_EQ(number(steps, 0, "wordno"), 2);
    EXPECT_EQ(number(steps, 0, "quizno"), 3);
    const BuiltTable& questions = built.table(QStringLiteral("tovalin1_quiz_data"));
    EXPECT_EQ(number(questions, 2, "orderno"), 3);
    EXPECT_EQ(number(questions, 2, "autono"), 3);
}

}  // namespace
