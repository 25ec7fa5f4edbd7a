// Runs the desktop tests on Qt's offscreen platform, so that they need no display.
#include "desktop/desktop.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    cijferwerf::prepare_application();
    const QApplication application(argc, argv);
    cijferwerf::dress_application();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
