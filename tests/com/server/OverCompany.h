#pragma once

#include <string>

#include <gtest/gtest.h>

#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "doubles/TempFolder.h"
#include "tests/com/server/AgreeingUi.h"
#include "tests/com/server/Server.h"
#include "workbench/host/CompanySession.h"

namespace tsln::test {

/// The library of the built module, initialized by a host over a company of its own.
class OverCompany : public ::testing::Test {
  protected:
    void SetUp() override { initialize(); }
    void TearDown() override {
        if (library) {
            EXPECT_EQ(S_OK, library->PreTerminate());
        }
    }

    void initialize() {
        ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(session.sharedCode()));
        ASSERT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
    }
    std::string value(const std::string& sql) { return session.company().scalar(sql).toText(); }

    TempFolder folder{"Größe "};  // with a blank and a letter beyond ASCII
    AgreeingUi ui;
    workbench::CompanySession session{folder.file("Test.company"), "admin", ui};
    ComPtr<ILibrary> library = newLibrary();
};

}  // namespace tsln::test
