#pragma once

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Variant.h"

namespace tsln {

/// One argument of a late-bound call: a value, or a reference to the caller's variable.
class Argument {
  public:
    Argument(Variant value) : own_(std::move(value)) {}
    template <class T>
    requires(std::convertible_to<T, Variant> && !std::same_as<std::remove_cvref_t<T>, Argument>)
        Argument(T&& value)
        : own_(Variant(std::forward<T>(value))) {}

    /// The callee sees the variable's value and may write it. The variable must outlive the call.
    static Argument byReference(Variant& variable) {
        Argument argument{Variant()};
        argument.reference_ = &variable;
        return argument;
    }

    const Variant& value() const noexcept { return reference_ ? *reference_ : own_; }
    bool isByReference() const noexcept { return reference_ != nullptr; }
    /// Writes the caller's variable. For an argument passed by value only this copy changes.
    void assign(Variant value) { (reference_ ? *reference_ : own_) = std::move(value); }

  private:
    Variant own_;
    Variant* reference_ = nullptr;
};

/// The arguments of one call, in order. An argument that the caller left out reads as Missing.
class Arguments {
  public:
    Arguments(std::span<Argument> arguments = {}) : arguments_(arguments) {}

    std::size_t count() const noexcept { return arguments_.size(); }
    bool has(std::size_t i) const noexcept { return i < count() && !arguments_[i].value().isMissing(); }
    const Variant& operator[](std::size_t i) const;
    /// The argument, or `otherwise` when it was left out.
    Variant valueOr(std::size_t i, const Variant& otherwise) const;
    /// Assigns to argument i; does nothing when the caller left it out.
    void assign(std::size_t i, Variant value);
    /// Raises HostError for a call with fewer than `least` (code::paramNotOptional) or more than `most`
    /// arguments (code::badParamCount).
    void require(std::size_t least, std::size_t most) const;
    std::span<Argument> all() const noexcept { return arguments_; }

  private:
    std::span<Argument> arguments_;
};

/// How a caller uses a member. Late-bound callers do not know whether a member is a property or a function,
/// so an object treats Get and Call alike for every member that has a value.
enum class Access { Get, Put, Call };

/// An object reached by member name at run time. Names compare without letter case. Failures are HostErrors.
class Object {
  public:
    virtual ~Object() = default;

    /// `arguments` are the member's arguments; for Put the new value comes last, after any indexes.
    virtual Variant invoke(std::string_view member, Access access, Arguments arguments) = 0;

    template <class... A>
    Variant call(std::string_view member, A&&... arguments) {
        return invokeWith(member, Access::Call, std::forward<A>(arguments)...);
    }
    template <class... A>
    Variant get(std::string_view member, A&&... indexes) {
        return invokeWith(member, Access::Get, std::forward<A>(indexes)...);
    }
    template <class... A>
    void put(std::string_view member, A&&... indexesAndValue) {
        static_assert(sizeof...(A) > 0, "a property is set to a value");
        invokeWith(member, Access::Put, std::forward<A>(indexesAndValue)...);
    }

  protected:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;

  private:
    template <class... A>
    Variant invokeWith(std::string_view member, Access access, A&&... arguments) {
        if constexpr (sizeof...(A) == 0) {
            return invoke(member, access, Arguments());
        } else {
            Argument list[] = {Argument(std::forward<A>(arguments))...};
            return invoke(member, access, Arguments(list));
        }
    }
};

/// True when the two names are equal without ASCII letter case.
bool sameName(std::string_view a, std::string_view b) noexcept;

/// One row of an object's member table. `read` answers Get and Call, `write` answers Put.
template <class Self>
struct Member {
    std::string_view name;
    Variant (*read)(Self& self, Arguments arguments) = nullptr;
    void (*write)(Self& self, Arguments arguments) = nullptr;
};

/// Raises the error for a member that `who` does not have.
[[noreturn]] void raiseUnknownMember(std::string_view who, std::string_view member);
/// Raises the error for a member that cannot be used that way (a read-only property set, a method put).
[[noreturn]] void raiseWrongAccess(std::string_view who, std::string_view member);

/// The row of a member; null when the table has none of that name.
template <class Self>
const Member<Self>* findMember(std::span<const Member<Self>> table, std::string_view member) {
    const auto row = std::ranges::find_if(
        table, [member](const Member<Self>& candidate) { return sameName(candidate.name, member); });
    return row == table.end() ? nullptr : &*row;
}

/// Calls the member of a row as `access` asks; `who` is the object's name in error texts.
template <class Self>
Variant invokeRow(Self& self, std::string_view who, const Member<Self>& row, Access access, Arguments arguments) {
    if (access == Access::Put) {
        if (!row.write) raiseWrongAccess(who, row.name);
        row.write(self, arguments);
        return {};
    }
    if (!row.read) raiseWrongAccess(who, row.name);
    return row.read(self, arguments);
}

/// Finds the member in the table and calls it; `who` is the object's name in error texts.
template <class Self>
Variant invokeMember(Self& self, std::string_view who, std::span<const Member<Self>> table,
                     std::string_view member, Access access, Arguments arguments) {
    const Member<Self>* row = findMember(table, member);
    if (!row) raiseUnknownMember(who, member);
    return invokeRow(self, who, *row, access, arguments);
}

}  // namespace tsln
