#pragma once

#include "core/screen.h"

#include <QFont>

#include <vector>

namespace video {

using core::Int16;
using platform::Label;
using platform::PictureButton;
using platform::StoryBox;

inline constexpr QSize videoScreenSize(993, 718);

/// What the two screens beside the player share: the hover protocol of the exercise screens, and the box
/// that the tips are read in.
class VideoScreen : public core::Screen {
    Q_OBJECT
   public:
    VideoScreen(core::Context& context, const QString& name, const QString& background);

   protected:
    /// A picture button that lights up; `picture` names its two images ("back" for back1.jpg, back2.jpg).
    PictureButton& addHoverButton(const QString& name, const QRect& place, const QString& picture,
                                  const QString& spoken);
    /// `txtStory`, in the size of a text that is read for minutes.
    StoryBox& addStory(const QRect& place);
    /// `lblBookTitle`, the same on both screens.
    Label& addBookTitle(const QRect& place, platform::TextRole role);

    /// Whether something under the mouse may light up. A title that does leaves the state as it is.
    bool hoverOpen() const { return hoverArmed_ == 1; }

   private:
    struct HoverButton {
        PictureButton* button;
        QString picture;
    };

    void showPicture(const HoverButton& hover, int state);
    void buttonHovered(const HoverButton& hover);
    void formHovered();

    std::vector<HoverButton> buttons_;
    Int16 hoverArmed_{1};
    Int16 hoverLit_{1};
};

}  // namespace video
