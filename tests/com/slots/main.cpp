#include <gtest/gtest.h>

#include "com/server/Identity.h"

// The class is linked into this program instead of the DLL, so that the tests can plug in their operations.
HINSTANCE tsln::com::thisModule() noexcept {
    return GetModuleHandleW(nullptr);
}

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    OleInitialize(nullptr);
    const int failed = RUN_ALL_TESTS();
    OleUninitialize();
    return failed;
}
