// Tips explain a unit, and the number of a tip is the number of the video that its step opens with.

#include "catalogue/dispatch.h"
#include "tools/coursefiles/screens.h"
#include "tools/rules/check.h"

#include <QHash>

#include <algorithm>

namespace tools::check {

namespace {

bool runsVideo(const Step& step) {
    const catalogue::DispatchRow* row = catalogue::findDispatch(step.form.toStdString());
    return row != nullptr && catalogue::runsVideoFirst(*row, step.record.value_or(0));
}

void tipMissing(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const DrillShape* shape = drillOfStep(step.form, step.record.value_or(0));
        const bool read = shape != nullptr && shape->tip == Need::Demanded;
        if (!course.of(step.record).tips.empty() || (!read && !runsVideo(step)))
            continue;
        findings.add(
            step.at("recordno"),
            read ? QStringLiteral("%1 has no tip, and %2 ends the program without one")
                       .arg(step.called(), step.form)
                 : QStringLiteral("%1 opens with a video, and no tip tells its number").arg(step.called()),
            QStringLiteral("a row in tovalin1_gram_tip"));
    }
}

void tipSeveral(const Course& course, Findings& findings) {
    for (const Step& step : course.steps)
        if (const auto& tips = course.of(step.record).tips; tips.size() > 1)
            findings.add(tips[1]->at("recordno"),
                         QStringLiteral("the drill of %1 shows its first tip alone").arg(step.called()),
                         QStringLiteral("one row a step"));
}

bool isKorean(QChar c) {
    return c.unicode() >= 0xAC00 && c.unicode() <= 0xD7A3;
}

bool isLatin(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

void tipLength(const Course& course, Findings& findings) {
    for (const Tip& tip : course.tips) {
        const QStringList words = tip.tips.split(QChar(u' '), Qt::SkipEmptyParts);
        int korean = 0;
        for (const QString& part : words)
            for (const QString& word : part.split(u'\n', Qt::SkipEmptyParts))
                korean += std::any_of(word.begin(), word.end(), isKorean) ? 1 : 0;
        if (korean < 80 || korean > 200)
            findings.add(tip.at("tips"), QStringLiteral("the tip has %1 Korean words").arg(korean),
                         QStringLiteral("80 to 200 words: shorter explains little, longer is not read"));
    }
}

void tipExample(const Course& course, Findings& findings) {
    for (const Tip& tip : course.tips) {
        const QStringList lines = tip.tips.split(u'\n');
        const bool example = std::any_of(lines.begin(), lines.end(), [](const QString& line) {
            return std::any_of(line.begin(), line.end(), isLatin) &&
                   std::none_of(line.begin(), line.end(), isKorean);
        });
        if (!example)
            findings.add(tip.at("tips"),
                         QStringLiteral("the tip shows no English example on a line of its own"),
                         QStringLiteral("one or more English lines"));
    }
}

/// The number that the video menu plays for a unit: its second entry belongs to the first unit, too.
int menuVideo(int topic) {
    return topic == 1 ? 1 : topic + 1;
}

void videoNumber(const Course& course, Findings& findings) {
    QHash<int, int> opened;
    for (const Step& step : course.steps) {
        const auto& tips = course.of(step.record).tips;
        if (!runsVideo(step) || tips.empty() || !step.topic || tips.front()->video.value_or(0) < 1)
            continue;
        const int place = opened[*step.topic]++;
        const int menu = menuVideo(*step.topic) + (*step.topic == 1 ? place : 0);
        const bool listed = place == 0 || (*step.topic == 1 && place == 1);
        if (listed && tips.front()->video != menu)
            findings.add(tips.front()->at("autono"),
                         QStringLiteral("%1 opens with video %2, and the video menu plays %3 for its unit")
                             .arg(step.called())
                             .arg(*tips.front()->video)
                             .arg(menu),
                         QString::number(menu));
    }
}

void videoTwice(const Course& course, Findings& findings) {
    QHash<int, const Tip*> first;
    for (const Step& step : course.steps) {
        const auto& tips = course.of(step.record).tips;
        if (!runsVideo(step) || tips.empty() || !tips.front()->video)
            continue;
        const Tip*& known = first[*tips.front()->video];
        if (known != nullptr && known != tips.front())
            findings.add(tips.front()->at("autono"),
                         QStringLiteral("video %1 belongs to the step of %2")
                             .arg(*tips.front()->video)
                             .arg(known->at("autono").text()),
                         QStringLiteral("a number of its own"));
        else
            known = tips.front();
    }
}

void videoMissing(const Course& course, Findings& findings) {
    if (!course.media)
        return;
    for (const Step& step : course.steps) {
        const auto& tips = course.of(step.record).tips;
        if (!runsVideo(step) || tips.empty() ||
            course.media->videos.contains(tips.front()->video.value_or(0)))
            continue;
        const int number = tips.front()->video.value_or(0);
        findings.add(tips.front()->at("autono"),
                     QStringLiteral("video %1 of %2 is not there").arg(number).arg(step.called()),
                     QStringLiteral("a file Lesson_%1.wmv among the videos").arg(number));
    }
}

void videoValue(const Course& course, Findings& findings) {
    for (const Step& step : course.steps) {
        const auto& tips = course.of(step.record).tips;
        if (runsVideo(step) && !tips.empty() && tips.front()->video.value_or(0) < 1)
            findings.add(tips.front()->at("autono"),
                         QStringLiteral("%1 opens with a video, and its tip gives no number for one")
                             .arg(step.called()),
                         QStringLiteral("a number of 1 to 32767"));
    }
}

void picturesMissing(const Course& course, Findings& findings) {
    if (!course.media)
        return;
    for (const MissingPictures& missing : course.media->missing)
        findings.add({missing.folder, 0, {}},
                     QStringLiteral("%1 of the %2 pictures are missing, and a screen that shows one ends the "
                                    "program; the first is %3")
                         .arg(missing.names.size())
                         .arg(missing.wanted)
                         .arg(missing.names.first()),
                     QStringLiteral("the pictures of an install, which setup brings along"));
}

constexpr std::array rules{
    Rule{"tip-missing", Severity::Error, "a step with a video, or a drill that shows a tip, has one",
         tipMissing},
    Rule{"tip-several", Severity::Warning, "a step has one tip", tipSeveral},
    Rule{"tip-length", Severity::Warning, "a tip has 80 to 200 Korean words", tipLength},
    Rule{"tip-example", Severity::Warning, "a tip shows English examples", tipExample},
    Rule{"video-value", Severity::Error, "the number of an opener's video is 1 or more", videoValue},
    Rule{"video-number", Severity::Warning, "a step's video is the one of the video menu", videoNumber},
    Rule{"video-twice", Severity::Warning, "no two steps open with the same video", videoTwice},
    Rule{"video-missing", Severity::Warning, "the video of an installed step is there", videoMissing},
    Rule{"picture-missing", Severity::Warning, "the pictures of an install are there", picturesMissing},
};

}  // namespace

std::span<const Rule> tipRules() {
    return rules;
}

}  // namespace tools::check
