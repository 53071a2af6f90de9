#include <gtest/gtest.h>

#include "com/edge/Platform.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    OleInitialize(nullptr);
    const int failed = RUN_ALL_TESTS();
    OleUninitialize();
    return failed;
}
