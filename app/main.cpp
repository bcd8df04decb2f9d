#include "app/screen_loop.h"
#include "app/screens.h"
#include "core/startup.h"
#include "platform/application.h"
#include "platform/look.h"

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    platform::setUpLook();

    core::Session session;
    const platform::UserSettings settings;
    const platform::Drives drives(core::drivesRoot(settings));
    const platform::SystemClock clock;
    platform::SystemRandom random;
    platform::DeviceSound sound;
    platform::DesktopBoxes boxes;
    platform::Frame frame(QStringLiteral("frmFrame"));
    app::ScreenLoop screens(app::allScreens());
    core::Context context{session, drives, settings, clock, random, sound, boxes, screens,
                          core::applicationFolder(settings, drives), &frame};
    screens.setContext(context);
    frame.onCloseRequest = [&] {
        session.closeDictionary();
        screens.endProgram();
    };

    int status = 1;
    application.guarded([&] {
        if (core::StartUp(context, frame))
            status = platform::Application::exec();
    });
    return status;
}
