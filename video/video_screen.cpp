#include "video/video_screen.h"

#include "core/play_sound.h"

namespace video {

using platform::TextRole;

VideoScreen::VideoScreen(core::Context& context, const QString& name, const QString& background)
    : Screen(context, name, videoScreenSize) {
    loadBackground(QStringLiteral("interface\\") + background);
    onMouseMove = [this] { formHovered(); };
}

PictureButton& VideoScreen::addHoverButton(const QString& name, const QRect& place, const QString& picture,
                                           const QString& spoken) {
    PictureButton& button = addPictureButton(name, place, spoken);
    button.setCursor(Qt::PointingHandCursor);
    const HoverButton hover{&button, picture};
    showPicture(hover, 1);
    button.onMouseMove = [this, hover] { buttonHovered(hover); };
    buttons_.push_back(hover);
    return button;
}

StoryBox& VideoScreen::addStory(const QRect& place) {
    StoryBox& story = addStoryBox(QStringLiteral("txtStory"), place);
    QFont font = platform::roleFont(TextRole::Heading, scale());
    font.setBold(false);
    story.setFont(font);
    story.setAccessibleName(QStringLiteral("Grammar tips"));
    QPalette palette = story.palette();
    palette.setColor(QPalette::Base, QColor::fromRgb(platform::colour::paper));
    story.setPalette(palette);
    return story;
}

Label& VideoScreen::addBookTitle(const QRect& place, TextRole role) {
    return addLabel(QStringLiteral("lblBookTitle"), place, role, QStringLiteral("Video Grammar Lesson"));
}

void VideoScreen::showPicture(const HoverButton& hover, int state) {
    loadPicture(*hover.button, QStringLiteral("button\\%1%2.jpg").arg(hover.picture).arg(state));
}

void VideoScreen::buttonHovered(const HoverButton& hover) {
    if (!hoverOpen())
        return;
    // Exit buttons light up before they sound, unlike all others.
    showPicture(hover, 2);
    core::PlaySound(context(), QStringLiteral("touchit.wav"), core::Effect);
    hoverLit_ = 1;
    hoverArmed_ = 2;
}

void VideoScreen::formHovered() {
    if (hoverLit_ != 1)
        return;
    hoverArmed_ = 1;
    for (const HoverButton& hover : buttons_)
        showPicture(hover, 1);
    hoverLit_ = 2;
}

}  // namespace video
