#include "core/study_time.h"

namespace core {

StudyTime::StudyTime(Context& context) : Screen(context, QStringLiteral("frmTime"), QSize(320, 110)) {
    const QString title = QStringLiteral("Brindle English Study Time");
    setWindowTitle(title);
    setAccessibleName(title);
    addLabel(QStringLiteral("Label1"), QRect(20, 14, 280, 30), platform::TextRole::Heading, title);
    lblTime_ = &addLabel(QStringLiteral("lblTime"), QRect(20, 54, 280, 36), platform::TextRole::Title);
    timer1_ = new platform::Timer(QStringLiteral("Timer1"), 1000, this);
    timer1_->onTick = [this] { tick(); };
    timer1_->setEnabled(true);
}

void StudyTime::tick() {
    if (!timer1_->enabled())
        return;
    ++session().elapsedSeconds;
    lblTime_->setCaption(QString::number(session().elapsedSeconds));
}

}  // namespace core
