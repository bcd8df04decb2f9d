#include "app/program.h"
#include "platform/desktop/application.h"
#include "platform/desktop/look.h"

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    platform::setUpLook();
    app::Program program;
    int status = 0;
    application.guarded([&] {
        if (program.start())
            status = platform::Application::exec();
    });
    return status;
}
