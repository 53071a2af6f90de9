#pragma once

#include <string>
#include <thread>

#include "com/edge/ComObject.h"
#include "tests/com/driver/WindowDriver.h"
#include "tslnmaint5.h"  // generated from the interface description, all that a client knows of the module

namespace tsln::test {

using com::ComPtr;

/// The path of the DLL, which is in this program's folder.
std::wstring serverFile();

/// Loads the DLL and calls an exported function without arguments, as the system's registration tool does.
HRESULT callServer(const char* function);

/// Creates a `Library` by its program identifier.
ComPtr<ILibrary> newLibrary();

/// Calls a member by name with arguments in their order. Returns the result code. `result`, `told` and `wrong` may be
/// null.
HRESULT callByName(IDispatch* object, const std::string& member, std::vector<VARIANT> arguments,
                   VARIANT* result = nullptr, EXCEPINFO* told = nullptr, UINT* wrong = nullptr);

VARIANT variantOf(LONG value);
VARIANT variantOf(const wchar_t* text);
VARIANT missing();

/// Returns the thread's error object after a failed early-bound call, as "source: text"; empty when there is none.
std::string errorObject();

/// Operates windows on a second thread while the test's thread waits in a call that opens a modal screen. When an
/// action fails, the test fails and all screens are closed.
class User {
  public:
    explicit User(std::function<void(WindowDriver&)> acts);
    ~User();

  private:
    std::thread thread_;
};

}  // namespace tsln::test
