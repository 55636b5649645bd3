#include "support/test_application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const support::TestApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
