#pragma once

#include "platform/desktop/look.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <functional>

namespace platform {

/// Key codes of key-down events, as desktop forms number them.
namespace key {
inline constexpr int backspace = 8;
inline constexpr int enter = 13;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
}  // namespace key

/// The key code of a Qt key, 0 for keys without one here.
int keyCode(int qtKey);

/// What a box or an answer label tells of its answer beside its colours: a small sign at the right edge.
enum class BoxMark { None, Right, Wrong, Given };

/// A text on a form. With `onClick` set it can be clicked, by keyboard too where it takes the focus.
class Label : public QLabel {
    Q_OBJECT
   public:
    explicit Label(QWidget* parent);

    QString caption() const { return text(); }
    void setCaption(const QString& caption);
    void setForeColor(QRgb colour);
    QRgb foreColor() const;
    void setBackColor(QRgb colour);
    /// Draws the label as a panel: a filled, rounded ground with a border. A transparent fill takes it away.
    void setPanel(QRgb fill, QRgb border);
    /// A screen reader is told the same.
    void setMark(BoxMark mark);
    BoxMark mark() const { return mark_; }

    std::function<void()> onClick;
    std::function<void()> onMouseMove;

   protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

   private:
    bool pressed_ = false;
    QRgb panelFill_ = 0;
    QRgb panelBorder_ = 0;
    BoxMark mark_ = BoxMark::None;
};

/// A one-line box. Takes Latin letters whatever the keyboard mode.
class TextBox : public QLineEdit {
    Q_OBJECT
   public:
    explicit TextBox(QWidget* parent);

    void setForeColor(QRgb colour);
    QRgb foreColor() const;
    void setBackColor(QRgb colour);
    QRgb backColor() const;
    /// A locked box takes the focus but no typing.
    void setLocked(bool locked);
    bool locked() const { return isReadOnly(); }
    /// A screen reader is told the same.
    void setMark(BoxMark mark);
    BoxMark mark() const { return mark_; }
    /// The width that is left to the text, in pixels, beside margins and sign.
    int textRoom() const;
    /// Selects the whole text and takes the focus, so that typing replaces it.
    void selectAndFocus();

    std::function<void(int keyCode)> onKeyDown;
    std::function<void()> onChange;
    std::function<void()> onClick;

   protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

   private:
    BoxMark mark_ = BoxMark::None;
};

/// A read-only text of many lines with a scroll bar where it needs one.
class StoryBox : public QPlainTextEdit {
    Q_OBJECT
   public:
    explicit StoryBox(QWidget* parent);
    void setText(const QString& text) { setPlainText(text); }
    QString text() const { return toPlainText(); }

   protected:
    void resizeEvent(QResizeEvent* event) override;
};

/// A drop-down list. `onClick` runs when the learner picks an entry.
class DropList : public QComboBox {
    Q_OBJECT
   public:
    explicit DropList(QWidget* parent);
    QString text() const { return currentText(); }

    std::function<void()> onClick;

   protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class CommandButton : public QPushButton {
    Q_OBJECT
   public:
    CommandButton(const QString& caption, QWidget* parent);
    std::function<void()> onClick;
};

/// A picture that can be pressed: by mouse, or by Tab and Space with a visible focus mark.
class PictureButton : public QAbstractButton {
    Q_OBJECT
   public:
    explicit PictureButton(QWidget* parent);

    /// Shows a picture file; the property `picture` keeps its name.
    void setPicture(const QPixmap& picture, const QString& fileName);

    std::function<void()> onClick;
    std::function<void()> onMouseMove;

   protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;

   private:
    QPixmap picture_;
};

}  // namespace platform
