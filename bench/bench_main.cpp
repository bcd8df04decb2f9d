#include "platform/desktop/application.h"
#include "platform/desktop/look.h"
#include "tools/support/offscreen.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    tools::useOffscreenDesktop(home.path());
    platform::Application application(argc, argv);
    application.onFailure = [](const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    };
    platform::setUpLook();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
