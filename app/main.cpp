#include "app/program.h"
#include "platform/desktop/application.h"
#include "platform/desktop/look.h"

int main(int argc, char** argv) {
    platform::Application application(argc, argv);
    platform::setUpLook();
    app::Program program;
    return application.run([&program] { return program.start(); });
}
