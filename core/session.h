#pragma once

#include "platform/int16.h"
#include "platform/storage/database.h"
#include "platform/storage/recordset.h"

#include <QDate>
#include <QString>

#include <array>

namespace core {

using platform::Int16;

/// The steps that one Final Quiz can keep scores of.
inline constexpr int finalStepLimit = 20;

/// The state that every screen shares: who learns, where the course lies, which step is in hand and how far
/// it got. Nothing of it survives the process; texts start empty and numbers 0. Fields that no code assigns
/// stand for modes of the course that nothing starts; the branches on them are kept with them.
struct Session {
    // Places, each folder ending in a backslash.
    QString mediaDrive;
    QString mediaPictureDir;
    QString mediaSoundDirFirst;
    QString mediaSoundDir;
    QString videoRoot;
    QString appDir;
    QString appSoundDir;
    QString recordDir;
    QString appPictureDir;

    // Identity and clock.
    QString userId;
    QString userName;
    QString teacherMode;
    QString userRole;
    QString programCode;
    QDate today;

    // Handles. The dictionary's live for the whole run, the score slots for one operation.
    platform::Database dictionaryDb;
    platform::Recordset allwordRs;
    platform::Recordset dicwordRs;
    platform::Database scoreDb;
    platform::Recordset scoreRs;

    // The current step.
    Int16 recordNo;
    Int16 topicNo;
    Int16 pageNo;
    Int16 wordNo;
    QString useData;
    QString useForm;
    QString stepType;
    QString stepTitle;
    QString guideText;
    QString hasWords;

    // Progress of the exercise.
    Int16 scoreValue;
    Int16 scoreSlot;
    std::array<QString, 4> partDone;
    QString quizzesComplete;
    QString quizFinishedFlag;
    QString vocaFirst;
    QString reviewMode;
    Int16 reviewRecordNo;
    QString finalMarker;
    QString finalQuizEnded;
    Int16 finalBaseRecordNo;
    Int16 finalStepNo;
    Int16 finalStepCount;
    Int16 finalItemTotal;
    Int16 finalItemNo;
    std::array<Int16, finalStepLimit> finalStepScores;

    // Other.
    QString videoFile;
    Int16 elapsedSeconds;
    QString blankTitle;
    Int16 reviewCount;
    Int16 frameLeft;
    Int16 frameTop;
    Int16 screenWidthPx;
    Int16 screenHeightPx;

    bool isTeacher() const { return teacherMode == QStringLiteral("Teacher"); }
    /// Teachers, and the role that no code assigns, pass unfinished steps.
    bool passesUnfinished() const { return isTeacher() || userRole == QStringLiteral("Branch"); }
    bool isFinal() const { return stepType == QStringLiteral("Final"); }
    bool isReview() const { return reviewMode == QStringLiteral("YES"); }
    bool stepHasWords() const { return hasWords == QStringLiteral("YES"); }

    void closeDictionary();
};

}  // namespace core
