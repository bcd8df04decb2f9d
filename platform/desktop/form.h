#pragma once

#include "platform/desktop/control_array.h"
#include "platform/desktop/controls.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

namespace platform {

/// The full-screen backdrop behind every form, so that the learner's desktop never shows.
class Frame : public QWidget {
    Q_OBJECT
   public:
    explicit Frame(const QString& name);

    /// The window manager was asked to close the frame.
    std::function<void()> onCloseRequest;

   protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

/// A screen: a window of a fixed design size, centred over the frame and scaled down, everything with it,
/// where the screen is smaller. Positions are given in design pixels.
class Form : public QWidget {
    Q_OBJECT
   public:
    Form(const QString& name, QSize designSize, QWidget* frame);
    ~Form() override;

    QSize designSize() const { return designSize_; }
    double scale() const { return scale_; }

    void place(QWidget& control, const QRect& designRect);
    void movePlace(QWidget& control, int left, int top);
    /// The place of a control in design pixels.
    QRect placeOf(const QWidget& control) const;

    /// Fills the form with a picture; the property `picture` keeps its file name.
    void setBackground(const QPixmap& picture, const QString& fileName);

    Label& addLabel(const QString& name, const QRect& designRect, TextRole role, const QString& caption = {});
    TextBox& addTextBox(const QString& name, const QRect& designRect, TextRole role);
    StoryBox& addStoryBox(const QString& name, const QRect& designRect);
    DropList& addDropList(const QString& name, const QRect& designRect, const QString& spokenName);
    PictureButton& addPictureButton(const QString& name, const QRect& designRect, const QString& spokenName);
    CommandButton& addButton(const QString& name, const QRect& designRect, const QString& caption);
    /// Adds the next member of an array.
    Label& addLabel(ControlArray<Label>& array, const QRect& designRect, TextRole role);
    TextBox& addTextBox(ControlArray<TextBox>& array, const QRect& designRect, TextRole role);
    CommandButton& addButton(ControlArray<CommandButton>& array, const QRect& designRect,
                             const QString& caption);

    /// Takes the form off the screen for good. The object goes when the event in hand is done, and after the
    /// end of any handler that waits.
    void unload();
    bool isUnloaded() const { return unloaded_; }

    std::function<void()> onMouseMove;
    /// The window manager was asked to close the form.
    std::function<void()> onCloseRequest;
    /// Called once, from unload.
    std::function<void()> onUnload;

   protected:
    /// Called once, as the form comes up with all its controls: brings them into the order of Tab, which is
    /// else that of their making.
    virtual void orderTabs() {}
    /// Moves controls to the end of the order of Tab, one after the other; null stands for none.
    void putLast(const std::vector<QWidget*>& controls);

    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

   private:
    QRect scaled(const QRect& designRect) const;

    QSize designSize_;
    double scale_ = 1.0;
    bool unloaded_ = false;
    bool tabsOrdered_ = false;
    QPixmap background_;
};

}  // namespace platform
