#include <gtest/gtest.h>

#include "com/edge/Platform.h"
#include "tests/com/server/Server.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    OleInitialize(nullptr);
    int failed = 1;
    if (tsln::test::callServer("DllRegisterServer") == S_OK) {
        failed = RUN_ALL_TESTS();
        tsln::test::callServer("DllUnregisterServer");
    }
    OleUninitialize();
    return failed;
}
