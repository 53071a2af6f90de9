#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "automation/Object.h"
#include "bridge/Operations.h"
#include "bridge/ScreenSlots.h"
#include "screens/Desktop.h"

namespace tsln {

/// The one public class of the module. The host creates it, passes its shared-code object to Initialize and
/// opens every screen by an operation. The library keeps a reference to that object until PreTerminate.
///
/// Every operation of the table is a method of its name, taking its arguments by position:
///     library->ShowEditTerms(7)   // std::int32_t
///     library->ShowEditPortfiolioTag(Argument::byReference(tag))   // writes `tag`, a Variant
/// and answers late-bound callers by the same name. An operation raises HostError for arguments that do not
/// convert (code::typeMismatch, code::overflow), missing or surplus ones (code::paramNotOptional,
/// code::badParamCount), and code::notImplemented where no screen is plugged in for it.
///
/// What a handler assigns to an argument that the table declares by reference is converted to the declared
/// type and written to the caller's variable once the handler has returned. A caller that passed a value, an
/// argument declared by value and an operation that raises leave everything as it was.
class Library : public Object {
  public:
    /// `desktop` must outlive the library.
    explicit Library(Desktop& desktop);

    Desktop& desktop() const noexcept { return desktop_; }
    ScreenSlots& screens() noexcept { return screens_; }

    /// The implementation of an operation. It gets all arguments, in the declared types.
    using Handler = std::function<Variant(Library&, Arguments)>;
    void plugIn(Operation operation, Handler handler);
    bool isPluggedIn(Operation operation) const;

    /// Runs an operation of any visibility.
    Variant perform(Operation operation, Arguments arguments);

#define OPERATION(NAME, ...)                                                           \
    template <class... A>                                                              \
    auto NAME(A&&... arguments) {                                                      \
        return performTyped<Operation::NAME>(Argument(std::forward<A>(arguments))...); \
    }
#include "bridge/Operations.def"
#undef OPERATION

    /// Runs a public operation by its name.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    template <Operation operation, class... A>
    auto performTyped(A... arguments) {
        constexpr const OperationInfo& row = info(operation);
        static_assert(sizeof...(A) == row.argumentCount, "wrong number of arguments");
        std::array<Argument, sizeof...(A) + 1> list{std::move(arguments)..., Argument(Variant())};
        [[maybe_unused]] const Variant result =
            perform(operation, Arguments(std::span<Argument>(list).first(sizeof...(A))));
        if constexpr (row.result == ValueType::Boolean) return result.toBoolean();
        if constexpr (row.result == ValueType::Long) return result.toLong();
        if constexpr (row.result == ValueType::Object) return result.toObject();
    }

    void plugInOwnOperations();
    bool initialSyncComplete();
    void runPackageProcessor(const std::string& keys, bool wait);

    Desktop& desktop_;
    ObjectPtr sharedCode_;
    ScreenSlots screens_;
    std::array<Handler, operations.size()> handlers_;
};

}  // namespace tsln
