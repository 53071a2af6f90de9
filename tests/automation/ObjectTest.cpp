#include <functional>

#include <gtest/gtest.h>

#include "automation/Object.h"

namespace tsln {
namespace {

/// A counter with a property, an indexed property, a read-only one, a method and an out argument.
class Counter : public Object {
  public:
    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Counter> table[] = {
            {"Value", [](Counter& self, Arguments) { return Variant(self.value); },
             [](Counter& self, Arguments given) { self.value = given[0].toLong(); }},
            {"Item", [](Counter& self, Arguments given) { return Variant(self.items[given[0].toLong()]); },
             [](Counter& self, Arguments given) { self.items[given[0].toLong()] = given[1].toText(); }},
            {"Name", [](Counter&, Arguments) { return Variant("counter"); }},
            {"Add",
             [](Counter& self, Arguments given) {
                 given.require(1, 2);
                 self.value += given[0].toLong() * given.valueOr(1, std::int32_t(1)).toLong();
                 return Variant(self.value);
             }},
            {"Read",
             [](Counter& self, Arguments given) {
                 given.assign(0, self.value);
                 given.assign(1, "second");
                 return Variant(true);
             }},
            {"Secret", nullptr, [](Counter& self, Arguments) { self.value = -1; }},
        };
        return invokeMember<Counter>(*this, "Counter", table, member, access, arguments);
    }

    std::int32_t value = 0;
    std::string items[3];
};

template <class Act>
std::pair<std::int32_t, std::string> failureOf(Act act) {
    try {
        act();
    } catch (const HostError& error) {
        return {error.code(), error.source() + "|" + error.text()};
    }
    return {0, ""};
}

TEST(Object, FindsMembersByNameWithoutLetterCase) {
    Counter counter;
    counter.put("value", std::int32_t(5));
    EXPECT_EQ(counter.get("VALUE").toLong(), 5);
    EXPECT_EQ(counter.call("Value").toLong(), 5);
    counter.put("Item", std::int32_t(2), "two");
    EXPECT_EQ(counter.get("item", std::int32_t(2)), Variant("two"));
    EXPECT_EQ(counter.call("Add", "2").toLong(), 7);
    EXPECT_EQ(counter.call("Add", std::int32_t(2), 10.0).toLong(), 27);
    EXPECT_EQ(counter.call("Add", std::int32_t(2), Missing()).toLong(), 29);
}

TEST(Object, WritesTheCallersVariables) {
    Counter counter;
    counter.value = 9;
    Variant first;
    counter.call("Read", Argument::byReference(first));  // the second argument is left out
    EXPECT_EQ(first, Variant(std::int32_t(9)));
    Variant second = "before";
    const Variant byValue = "kept";
    counter.call("Read", byValue, Argument::byReference(second));
    EXPECT_EQ(byValue, Variant("kept"));
    EXPECT_EQ(second, Variant("second"));
}

TEST(Object, TellsWhatWentWrongAndWhere) {
    Counter counter;
    const Variant held(std::make_shared<Counter>());
    const struct {
        std::function<void()> act;
        std::int32_t code;
        std::string_view text;
    } cases[] = {
        {[&] { counter.get("Vallue"); }, code::unknownName,
         "Counter|Object doesn't support this property or method: Vallue"},
        {[&] { counter.put("Name", "x"); }, code::memberNotFound,
         "Counter|Object doesn't support this use of the property or method: Name"},
        {[&] { counter.get("Secret"); }, code::memberNotFound,
         "Counter|Object doesn't support this use of the property or method: Secret"},
        {[&] { counter.call("Add"); }, code::paramNotOptional, "Automation|Argument not optional: 1."},
        {[&] { counter.call("Add", Missing(), "1"); }, code::paramNotOptional,
         "Automation|Argument not optional: 1."},
        {[&] { counter.call("Add", "1", "1", "1"); }, code::badParamCount,
         "Automation|Wrong number of arguments or invalid property assignment."},
        {[&] { counter.call("Add", "many"); }, code::typeMismatch, "Automation|Type mismatch."},
        {[&] { counter.put("Value", 3e9); }, code::overflow, "Automation|Overflow."},
        {[&] { Variant(ObjectPtr()).object(); }, code::objectNotSet, "Automation|Object variable not set."},
        {[&] { held.object().get("Nothing"); }, code::unknownName,
         "Counter|Object doesn't support this property or method: Nothing"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(failureOf(row.act), std::pair(row.code, std::string(row.text)));
    }
    EXPECT_EQ(counter.value, 0);
}

}  // namespace
}  // namespace tsln
