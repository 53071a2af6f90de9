#include <gtest/gtest.h>

#include "com/edge/Platform.h"
#include "tests/com/server/Server.h"

namespace {

/// What a user has set at the screens, their positions and column layouts, belongs to one run only.
void forgetSettings() {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Kestrane\\Tessaline");
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    OleInitialize(nullptr);
    forgetSettings();
    int failed = 1;
    if (tsln::test::callServer("DllRegisterServer") == S_OK) {
        failed = RUN_ALL_TESTS();
        tsln::test::callServer("DllUnregisterServer");
    }
    forgetSettings();
    OleUninitialize();
    return failed;
}
