#include <gtest/gtest.h>

#include "com/server/Identity.h"

// The class is linked into this program, so that a test can plug its own operations in.
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
