#pragma once

#include "core/screen.h"

namespace course {

using core::Int16;
using platform::ControlArray;
using platform::Label;
using platform::PictureButton;
using platform::TextBox;

inline constexpr QSize exerciseSize(993, 718);
inline constexpr int sideLeft = 872;

/// Where the chrome of a screen stands, and what stands beside it. Tops in pixels.
struct ChromeLayout {
    const char* picture = "original.jpg";  // in the folder `interface`
    int quizTop = 344;
    int beginTop = 344;
    int nextTop = 456;
    int preTop = 560;
    bool hasBegin = true;
    bool hasQuiz = true;
    // Captions beneath the buttons; empty for none.
    const char* quizLabelName = "lblAnswer";
    const char* quizCaption = "Answer";
    const char* nextLabelName = "lblNextCaption";
    const char* nextCaption = "Next Lesson";
    const char* preLabelName = "lblPreCaption";
    const char* preCaption = "Voca Quiz";
    // The control that shows the step's title.
    const char* topicName = "lblTopic";
    int timerInterval = 1;
};

/// What every exercise screen wears: the six picture buttons with their hover protocol, the leaving routines
/// and the one-shot `TimerGo` that does the data work once the form is on view.
class ExerciseScreen : public core::Screen {
    Q_OBJECT
   public:
    ExerciseScreen(core::Context& context, const QString& name, const ChromeLayout& layout);

   protected:
    /// The data work of the first tick. TimerGo is disabled when it returns, unless it asks to stay.
    virtual void firstTick() = 0;
    /// Closes the screen's own record sets, in their order; `contentDb` follows by itself.
    virtual void closeRecordsets() {}
    /// The same for the No branch of `picNext` and for `picPre`, where a few screens leave a set open.
    virtual void closeRecordsetsForNo() { closeRecordsets(); }
    virtual void closeRecordsetsForPre() { closeRecordsets(); }
    /// What else goes back to rest when the mouse crosses the form.
    virtual void restoreHover() {}

    /// What follows the answers in the order of Tab: the button that checks them, and Begin. The buttons that
    /// leave the screen come after these on every screen.
    virtual std::vector<QWidget*> afterAnswers() const;

    virtual void beginClicked() {}
    virtual void quizClicked() {}
    /// Asks, checks that nothing begun is unfinished, and moves on.
    virtual void nextClicked();
    virtual void preClicked();
    virtual void tableClicked();
    virtual void exitClicked();

    /// Closes all data, leaves, and opens a screen.
    void leaveTo(const QString& screen);
    /// Closes all data and takes the form off the screen.
    void leave();

    /// A label that lights up while this holds leaves the hover state as it is.
    bool hoverOpen() const { return hoverArmed_ == 1; }
    /// For a further button of a screen: true when armed, and then spends it.
    bool spendHover();

    bool loading() const { return timerGo_->enabled(); }
    void keepTimerRunning() { stayEnabled_ = true; }
    void showPreByWords();
    void showQuizButton(bool visible);
    void showBegin(bool visible);

    PictureButton& picBegin() const { return *picBegin_; }
    PictureButton& picQuiz() const { return *picQuiz_; }
    PictureButton& picNext() const { return *picNext_; }
    PictureButton& picPre() const { return *picPre_; }
    bool hasQuizButton() const { return picQuiz_ != nullptr; }

    platform::Database contentDb;

   private:
    struct ChromeButton;

    void orderTabs() final;
    void buildChrome(const ChromeLayout& layout);
    void buildCaptions(const ChromeLayout& layout);
    void buttonHovered(PictureButton& button, const char* picture, bool pictureFirst);
    void formHovered();
    void tick();

    PictureButton* picBegin_ = nullptr;
    PictureButton* picQuiz_ = nullptr;
    PictureButton* picNext_ = nullptr;
    PictureButton* picPre_ = nullptr;
    PictureButton* picTable_ = nullptr;
    PictureButton* picExit_ = nullptr;
    Label* quizLabel_ = nullptr;
    platform::Timer* timerGo_ = nullptr;
    Int16 hoverArmed_;
    Int16 hoverLit_;
    bool stayEnabled_ = false;
};

}  // namespace course
