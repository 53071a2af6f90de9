#pragma once

#include <string>
#include <thread>

#include "com/edge/ComObject.h"
#include "tests/com/driver/WindowDriver.h"
#include "tslnmaint5.h"  // made from the module's interface description: all that a client knows of it

namespace tsln::test {

using com::ComPtr;

/// The module's file, beside this program.
std::wstring serverFile();

/// The module's own functions, called as the system's registering tool calls them.
HRESULT callServer(const char* function);

/// A new `Library`, got from the system by its program identifier.
ComPtr<ILibrary> newLibrary();

/// Calls a member by its name, with arguments in their order. The result code; `told` and `result` may be
/// null.
HRESULT callByName(IDispatch* object, const std::string& member, std::vector<VARIANT> arguments,
                   VARIANT* result = nullptr, EXCEPINFO* told = nullptr, UINT* wrong = nullptr);

VARIANT variantOf(LONG value);
VARIANT variantOf(const wchar_t* text);
VARIANT missing();

/// The running error of the thread that an early-bound call has left, as "source: text"; empty when there is
/// none.
std::string errorObject();

/// What a user does meanwhile: screens are modal, so the calls that open them only return once they are
/// closed. Anything that does not come out is a failure of the test that made this; the screens are closed
/// then.
class User {
  public:
    explicit User(std::function<void(WindowDriver&)> acts);
    ~User();

  private:
    std::thread thread_;
};

}  // namespace tsln::test
