#pragma once

#include "platform/storage/recordset.h"
#include "video/video_screen.h"

namespace video {

/// `frmVideo`, the menu of all units: a click shows the unit's tips and plays its video.
class VideoMenu final : public VideoScreen {
    Q_OBJECT
   public:
    explicit VideoMenu(core::Context& context);

   private:
    void buildHeader();
    void buildTopics();
    Label& addTopicRow(int row);
    void loadTopics();
    void topicClicked(int index);
    void secondTopicClicked();
    void showTips(int topicNo);
    void play(const QString& file);
    void topicHovered(int index);
    void exitClicked();

    platform::Database formDb_;
    platform::Recordset topicRs_;
    platform::ControlArray<Label> lblTopic_{QStringLiteral("lblTopic")};
    Label* lblTopic2_ = nullptr;
    StoryBox* txtStory_ = nullptr;
    bool opening_ = false;
};

}  // namespace video
