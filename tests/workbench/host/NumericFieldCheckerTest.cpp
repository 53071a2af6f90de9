#include <gtest/gtest.h>

#include "workbench/host/NumericFieldChecker.h"

namespace tsln::workbench {
namespace {

class Field : public Object {
  public:
    explicit Field(std::string_view begin) : text(begin) {}
    std::string text;

    Variant invoke(std::string_view member, Access access, Arguments a) override {
        if (!sameName(member, "Text")) raiseUnknownMember("Field", member);
        if (access == Access::Put) text = a[0].toText();
        return text;
    }
};

TEST(NumericFieldChecker, CorrectsTheFieldInPlace) {
    struct Case {
        const char* member;
        std::string_view typed;
        double least, most, otherwise;
        std::string_view corrected;
    };
    const Case cases[] = {
        {"CheckInteger", "30", 0, 999, 0, "30"},        {"CheckInteger", "", 0, 999, 0, "0"},
        {"CheckInteger", "  7 ", 0, 999, 0, "7"},       {"CheckInteger", "thirty", 0, 999, 5, "5"},
        {"CheckInteger", "12abc", 0, 999, 5, "5"},      {"CheckInteger", "-5", 0, 999, 1, "0"},
        {"CheckInteger", "1000", 0, 999, 1, "999"},     {"CheckInteger", "2.5", 0, 999, 0, "2"},
        {"CheckInteger", "3.5", 0, 999, 0, "4"},        {"CheckInteger", "$1,000", 0, 5000, 0, "1000"},
        {"CheckInteger", "1e2", 0, 999, 0, "100"},      {"CheckInteger", "(5)", -10, 10, 0, "-5"},
        {"CheckInteger", "none", 5, 9, 0, "5"},         {"checkdecimal", "2.50", 0, 999.999, 0, "2.5"},
        {"CheckDecimal", ".5", 0, 999.999, 0, "0.5"},   {"CheckDecimal", "1000", 0, 999.999, 0, "999.999"},
        {"CheckDecimal", "-0.001", 0, 999.999, 0, "0"}, {"CheckDecimal", "1,234.5", 0, 9999, 0, "1234.5"},
        {"CheckDecimal", "1e400", 0, 10, 3, "3"},
    };
    NumericFieldChecker checker;
    for (const Case& c : cases) {
        const auto field = std::make_shared<Field>(c.typed);
        checker.call(c.member, field, c.least, c.most, c.otherwise);
        EXPECT_EQ(field->text, c.corrected) << c.member << " '" << c.typed << "'";
    }
}

TEST(NumericFieldChecker, InvalidArgumentsAreRefused) {
    NumericFieldChecker checker;
    const auto field = std::make_shared<Field>("5");
    EXPECT_THROW(checker.call("CheckInteger", field, 9, 0, 0), HostError);
    EXPECT_THROW(checker.call("CheckInteger", ObjectPtr(), 0, 9, 0), HostError);
    EXPECT_THROW(checker.call("CheckInteger", field, 0, 9), HostError);
    EXPECT_THROW(checker.call("CheckDate", field, 0, 9, 0), HostError);
    EXPECT_EQ(field->text, "5");
}

}  // namespace
}  // namespace tsln::workbench
