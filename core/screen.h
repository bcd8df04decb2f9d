#pragma once

#include "core/context.h"
#include "platform/desktop/form.h"
#include "platform/desktop/timer.h"

namespace core {

/// A form of the course: knows the context, and ends the program where the window manager closes it.
class Screen : public platform::Form {
    Q_OBJECT
   public:
    Screen(Context& context, const QString& name, QSize designSize);

   protected:
    /// The ways out come last, what ends the program at the very end.
    void orderTabs() override;

    Context& context() const { return context_; }
    Session& session() const { return context_.session; }

    /// Shows a picture of the application folder ("interface\\quiz.jpg") as the form's ground.
    void loadBackground(const QString& relativePath);
    void loadPicture(platform::PictureButton& button, const QString& relativePath);
    /// The picture that a control begins with. It belongs to the form's design, so a form comes up without
    /// the file too, and only the loading of a picture later on fails.
    void loadDesignPicture(platform::PictureButton& button, const QString& relativePath);
    /// The hand cursor that came with the course.
    void setHandCursor(QWidget& control, const QString& file);

    /// Ends the program at once: the long-lived handles close, nothing is asked or saved.
    void endProgram();

   private:
    Context& context_;
};

}  // namespace core
