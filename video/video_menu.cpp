#include "video/video_menu.h"

#include "core/stores.h"
#include "platform/desktop/waiting.h"
#include "video/tips.h"
#include "video/video_files.h"

namespace video {

using platform::TextRole;

namespace {

constexpr int listLeft = 22;
constexpr int focusMargin = 6;  // between a title and its focus mark
constexpr int listTop = 123;
constexpr int pitch = 23;
constexpr QSize rowSize(280, 22);

QRect rowPlace(int row) {
    return {QPoint(listLeft, listTop + row * pitch), rowSize};
}

void makeClickable(Label& label, std::function<void()> clicked) {
    label.setFocusPolicy(Qt::TabFocus);
    label.setContentsMargins(focusMargin, 0, focusMargin, 0);
    label.setCursor(Qt::PointingHandCursor);
    label.onClick = std::move(clicked);
}

}  // namespace

VideoMenu::VideoMenu(core::Context& context)
    : VideoScreen(context, QStringLiteral("frmVideo"), QStringLiteral("video.jpg")) {
    setAccessibleName(QStringLiteral("Video lessons"));
    buildHeader();
    buildTopics();
    txtStory_ = &addStory(QRect(342, 98, 626, 594));
    PictureButton& exit = addHoverButton(QStringLiteral("picExit"), QRect(752, 18, 100, 40),
                                         QStringLiteral("back"), QStringLiteral("Back to table"));
    exit.onClick = [this] { exitClicked(); };
    loadTopics();
}

void VideoMenu::buildHeader() {
    addBookTitle(QRect(24, 20, 300, 36), TextRole::Title);
    Label& guide = addLabel(
        QStringLiteral("Label3"), QRect(342, 16, 350, 44), TextRole::Body,
        QStringLiteral("아래에서 문법 타이틀을 클릭하면 해당 레슨의 설명과 함께 동영상 레슨으로 학습할 수 "
                       "있습니다."));
    guide.setWordWrap(true);
    addLabel(QStringLiteral("Label1"), QRect(listLeft + focusMargin, 94, rowSize.width(), 26),
             TextRole::Heading, QStringLiteral("Title"))
        .setForeColor(platform::colour::accent);
}

void VideoMenu::buildTopics() {
    // The first unit's second entry stands between the first and the second unit.
    constexpr int secondEntryRow = 1;
    for (int i = 0; i < menuTopics; ++i) {
        const int row = i < secondEntryRow ? i : i + 1;
        Label& topic = addLabel(lblTopic_, rowPlace(row), TextRole::Body);
        makeClickable(topic, [this, i] { topicClicked(i); });
        topic.onMouseMove = [this, i] { topicHovered(i); };
        if (i + 1 == secondEntryRow) {
            lblTopic2_ = &addLabel(QStringLiteral("lblTopic2"), rowPlace(secondEntryRow), TextRole::Body);
            makeClickable(*lblTopic2_, [this] { secondTopicClicked(); });
        }
    }
}

void VideoMenu::loadTopics() {
    formDb_ = core::openCourse(context());
    topicRs_ = formDb_.openRecordset(QStringLiteral("Select * From topic order by topicno"));
    for (int i = 0; !topicRs_.eof(); ++i, topicRs_.moveNext())
        lblTopic_(i).setCaption(topicRs_.text(QStringLiteral("Title")));
    lblTopic_(0).setCaption(QStringLiteral("명사 1"));
    lblTopic2_->setCaption(QStringLiteral("명사 2"));
}

void VideoMenu::topicClicked(int index) {
    if (opening_)
        return;
    showTips(index + 1);
    play(menuVideoFile(session().videoRoot, index));
}

void VideoMenu::secondTopicClicked() {
    if (opening_)
        return;
    showTips(1);
    play(secondVideoFile(session().videoRoot));
}

void VideoMenu::showTips(int topicNo) {
    txtStory_->setText(readTips(context(), QStringLiteral("topicno=%1").arg(topicNo)).story);
}

void VideoMenu::play(const QString& file) {
    session().videoFile = file;
    // The player opens after this handler; a second click on the way there must not bring up another.
    opening_ = true;
    context().navigator.open(QStringLiteral("frmVideo2"));
    platform::later(this, [this] { opening_ = false; });
}

void VideoMenu::topicHovered(int index) {
    if (!hoverOpen())
        return;
    for (Label* topic : lblTopic_)
        topic->setForeColor(platform::colour::black);
    lblTopic_(index).setForeColor(platform::colour::red);
}

void VideoMenu::exitClicked() {
    topicRs_.close();
    formDb_.close();
    unload();
}

}  // namespace video
