#include <cmath>
#include <limits>
#include <optional>
#include <random>

#include <gtest/gtest.h>

#include "automation/DateText.h"
#include "automation/NumericText.h"
#include "automation/Object.h"
#include "automation/Variant.h"

namespace tsln {
namespace {

constexpr std::int32_t none = 0;

/// The code of the error that the conversion raises, or `none`.
template <class Convert>
std::int32_t codeOf(Convert convert) {
    try {
        convert();
        return none;
    } catch (const HostError& error) {
        EXPECT_FALSE(error.text().empty());
        EXPECT_FALSE(error.source().empty());
        return error.code();
    }
}

TEST(NumericText, ReadsWhatThePlatformTakesForANumber) {
    const struct {
        std::string_view text;
        std::optional<double> value;
    } cases[] = {
        {"0", 0},
        {"-0", 0},
        {"12", 12},
        {" \t12\r\n", 12},
        {"+12", 12},
        {"12-", -12},
        {"- 12", -12},
        {"-12.5", -12.5},
        {".5", .5},
        {"5.", 5},
        {"-.5", -.5},
        {"1,234,567.25", 1234567.25},
        {"$1,234.50", 1234.5},
        {"-$5", -5},
        {"$-5", -5},
        {"5$", 5},
        {"(5)", -5},
        {"($1,000.5)", -1000.5},
        {"$(5)", -5},
        {"1e3", 1000},
        {"1.5E-2", .015},
        {"1d3", 1000},
        {"1D+3", 1000},
        {"-1e5", -100000},
        {"0e99999999999", 0},
        {"1e-9999", 0},
        {"&HFF", 255},
        {"&hff ", 255},
        {"&O17", 15},
        {"000000000000000000000000000000000000000000000000001.5", 1.5},
        {"0.00000000000000000000000000000000000000000000000000015e50", 1.5e-2},
        {"100000000000000000000000000000000000000000000000000", 1e50},
        {"9007199254740993", 9007199254740992.0},
        {"+9007199254740993.00000000000000000000000000000000000001", 9007199254740994.0},
        {"", {}},
        {" ", {}},
        {"12abc", {}},
        {"abc", {}},
        {"-", {}},
        {".", {}},
        {"$", {}},
        {"()", {}},
        {"(5", {}},
        {"5)", {}},
        {"(-5)", {}},
        {"-(5)", {}},
        {"-5-", {}},
        {"(5)-", {}},
        {"$5$", {}},
        {"1 2", {}},
        {"1.2.3", {}},
        {"1.2,3", {}},
        {",5", {}},
        {"1e", {}},
        {"e5", {}},
        {"1e5.5", {}},
        {"&H", {}},
        {"&HG", {}},
        {"-&H1", {}},
        {"&H1x", {}},
        {"&H-1", {}},
        {"inf", {}},
        {"-inf", {}},
        {"nan", {}},
        {"0x10", {}},
        {"1e400", {}},
        {"&HFFFFFFFFFFFFFFFFF", {}},
        {std::string_view("5\0", 2), {}},
    };
    for (const auto& [text, expected] : cases) {
        SCOPED_TRACE(text);
        double value = 4711;
        const bool read = readNumber(text, value) == Reading::Done;
        ASSERT_EQ(read, expected.has_value());
        EXPECT_EQ(value, expected.value_or(4711));
        EXPECT_EQ(isNumericText(text), read);
    }
}

TEST(NumericText, WritesTheSignificantDigitsOnly) {
    const struct {
        double value;
        std::string_view text;
    } doubles[] = {
        {0, "0"},
        {-0.0, "0"},
        {1, "1"},
        {-1.5, "-1.5"},
        {100, "100"},
        {0.1, "0.1"},
        {0.0001, "0.0001"},
        {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {0.1 + 0.2, "0.3"},
        {123456789012345, "123456789012345"},
        {999999999999999, "999999999999999"},
        {9999999999999999.0, "1E+16"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1.5e20, "1.5E+20"},
        {1e100, "1E+100"},
        {-1.25e-100, "-1.25E-100"},
        {1e-15, "0.000000000000001"},
        {1e-16, "1E-16"},
        {1.5e-15, "1.5E-15"},
        {1e-5 / 3, "3.33333333333333E-06"},
        {1234.5678, "1234.5678"},
        {INFINITY, "1.#INF"},
    };
    for (const auto& [value, text] : doubles)
        EXPECT_EQ(numberText(value), text);
    const struct {
        float value;
        std::string_view text;
    } singles[] = {
        {0.025f, "0.025"},    {0.1f, "0.1"},    {1.0f / 3, "0.3333333"},       {16777216.0f, "1.677722E+07"},
        {9999999, "9999999"}, {1e7f, "1E+07"},  {0.01234567f, "1.234567E-02"}, {-2.5f, "-2.5"},
        {1e-7f, "0.0000001"}, {1e-8f, "1E-08"},
    };
    for (const auto& [value, text] : singles)
        EXPECT_EQ(numberText(value), text);
}

TEST(Variant, ConvertsToWholeNumbersHalfToEvenWithinBounds) {
    constexpr double big = 9223372036854775808.0;  // 2^63
    constexpr std::int32_t high = code::overflow;
    const struct {
        Variant value;
        double integer;  // the value in 16, 32 and 64 bits, or the error's code
        double whole;
        double longLong;
    } cases[] = {
        {0.5, 0, 0, 0},
        {1.5, 2, 2, 2},
        {2.5, 2, 2, 2},
        {-2.5, -2, -2, -2},
        {"2.5", 2, 2, 2},
        {"3.5", 4, 4, 4},
        {"-0.5", 0, 0, 0},
        {"-0.51", -1, -1, -1},
        {"2.50000000000000000001", 3, 3, 3},
        {"25e-1", 2, 2, 2},
        {"0.04", 0, 0, 0},
        {32767.49, 32767, 32767, 32767},
        {32767.5, high, 32768, 32768},
        {-32768.5, -32768, -32768, -32768},
        {-32768.51, high, -32769, -32769},
        {"32767.5", high, 32768, 32768},
        {"-32768.5", -32768, -32768, -32768},
        {32767.5f, high, 32768, 32768},
        {std::int32_t(40000), high, 40000, 40000},
        {2147483647.49, high, 2147483647, 2147483647},
        {2147483647.5, high, high, 2147483648},
        {-2147483648.5, high, -2147483648.0, -2147483648.0},
        {"2147483647.5", high, high, 2147483648},
        {"-2147483648.5", high, -2147483648.0, -2147483648.0},
        {std::int64_t(2147483648), high, high, 2147483648},
        {big, high, high, high},
        {-big, high, high, -big},
        {"9223372036854775808", high, high, high},
        {"-9223372036854775808", high, high, -big},
        {"-9,223,372,036,854,775,808.5", high, high, -big},
        {"1e19", high, high, high},
        {"1e400", high, high, high},
        {std::nan(""), high, high, high},
        {"&HFFFF", -1, 65535, 65535},
        {"&H7FFF", 32767, 32767, 32767},
        {"&HFFFFFFFF", high, -1, 4294967295},
        {Date{40606.75}, high, 40607, 40607},
        {true, -1, -1, -1},
        {false, 0, 0, 0},
        {Variant(), 0, 0, 0},
    };
    const auto outcome = [](auto convert) -> double {
        try {
            return static_cast<double>(convert());
        } catch (const HostError& error) {
            return error.code();
        }
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.value.toText());
        EXPECT_EQ(outcome([&] { return row.value.toInteger(); }), row.integer);
        EXPECT_EQ(outcome([&] { return row.value.toLong(); }), row.whole);
        EXPECT_EQ(outcome([&] { return row.value.toLongLong(); }), row.longLong);
    }
    EXPECT_EQ(Variant("9,007,199,254,740,993.4").toLongLong(), 9007199254740993);
}

TEST(Variant, ConvertsToSingleAndDouble) {
    EXPECT_EQ(Variant("0.025").toSingle(), 0.025f);
    EXPECT_EQ(Variant(true).toDouble(), -1);
    EXPECT_EQ(Variant(Date{1.5}).toDouble(), 1.5);
    EXPECT_EQ(codeOf([] { Variant(1e39).toSingle(); }), code::overflow);
    EXPECT_EQ(codeOf([] { Variant("1e39").toSingle(); }), code::overflow);
    EXPECT_EQ(codeOf([] { Variant("-1e309").toDouble(); }), code::overflow);
    EXPECT_EQ(codeOf([] { Variant("one").toDouble(); }), code::typeMismatch);
}

TEST(Variant, ConvertsToBooleanAndText) {
    const struct {
        Variant value;
        std::optional<bool> boolean;  // nothing: type mismatch
        std::string_view text;
    } cases[] = {
        {Variant(), false, ""},
        {true, true, "True"},
        {std::int16_t(-7), true, "-7"},
        {std::int32_t(0), false, "0"},
        {std::int64_t(9007199254740993), true, "9007199254740993"},
        {0.25, true, "0.25"},
        {0.0f, false, "0"},
        {Date{0}, false, "12:00:00 AM"},
        {Date{40606}, true, "3/4/2011"},
        {"TRUE", true, "TRUE"},
        {"false", false, "false"},
        {"#true#", true, "#true#"},
        {"#False#", false, "#False#"},
        {"0.0", false, "0.0"},
        {"($2)", true, "($2)"},
        {" true", {}, " true"},
        {"yes", {}, "yes"},
        {"", {}, ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.value.toText());
        EXPECT_EQ(row.value.toText(), row.text);
        if (row.boolean) {
            EXPECT_EQ(row.value.toBoolean(), *row.boolean);
        } else {
            EXPECT_EQ(codeOf([&] { row.value.toBoolean(); }), code::typeMismatch);
        }
    }
}

TEST(Variant, RefusesWhatHasNoValue) {
    const Variant values[] = {Null(), Missing(), ObjectPtr()};
    for (const Variant& value : values) {
        SCOPED_TRACE(typeName(value));
        EXPECT_FALSE(value.isNumeric());
        EXPECT_EQ(codeOf([&] { value.toBoolean(); }), code::typeMismatch);
        EXPECT_EQ(codeOf([&] { value.toInteger(); }), code::typeMismatch);
        EXPECT_EQ(codeOf([&] { value.toDouble(); }), code::typeMismatch);
        EXPECT_EQ(codeOf([&] { value.toDate(); }), code::typeMismatch);
        EXPECT_EQ(codeOf([&] { value.toText(); }), code::typeMismatch);
        EXPECT_EQ(codeOf([&] { value.object(); }),
                  value.isObject() ? code::objectNotSet : code::typeMismatch);
    }
    EXPECT_EQ(Variant(ObjectPtr()).toObject(), nullptr);
    EXPECT_EQ(codeOf([] { Variant().toObject(); }), code::typeMismatch);
    EXPECT_FALSE(Variant(Date{1}).isNumeric());
    EXPECT_TRUE(Variant().isNumeric());
}

TEST(DateText, ReadsDatesAndTimes) {
    const int thisYear = toCalendar(now())->year;
    using C = CalendarTime;
    const struct {
        std::string_view text;
        std::optional<C> time;
    } cases[] = {
        {"3/4/2011", C{2011, 3, 4}},
        {"3-4-2011", C{2011, 3, 4}},
        {"2011-03-04", C{2011, 3, 4}},
        {"2011/3/4", C{2011, 3, 4}},
        {"99/3/4", C{1999, 3, 4}},
        {" 3 / 4 / 2011 ", C{2011, 3, 4}},
        {"4 March 2011", C{2011, 3, 4}},
        {"March 4, 2011", C{2011, 3, 4}},
        {"mar 4 2011", C{2011, 3, 4}},
        {"4-Mar-2011", C{2011, 3, 4}},
        {"4-MAR-11", C{2011, 3, 4}},
        {"2011 March 4", C{2011, 3, 4}},
        {"March 2011", C{2011, 3, 1}},
        {"3/2011", C{2011, 3, 1}},
        {"1 Sept 2011", C{2011, 9, 1}},
        {"25/12/2011", C{2011, 12, 25}},
        {"12/25/2011", C{2011, 12, 25}},
        {"1/1/29", C{2029, 1, 1}},
        {"1/1/30", C{1930, 1, 1}},
        {"1/1/0", C{2000, 1, 1}},
        {"1/1/100", C{100, 1, 1}},
        {"12/31/9999", C{9999, 12, 31}},
        {"3/4", C{thisYear, 3, 4}},
        {"25/12", C{thisYear, 12, 25}},
        {"4 March", C{thisYear, 3, 4}},
        {"March 4", C{thisYear, 3, 4}},
        {"2/29/2012", C{2012, 2, 29}},
        {"2/29/2000", C{2000, 2, 29}},
        {"10:20", C{1899, 12, 30, 10, 20}},
        {"10 PM", C{1899, 12, 30, 22}},
        {"3/4/2011 10:20:30", C{2011, 3, 4, 10, 20, 30}},
        {"3/4/2011 10:20:30.123", C{2011, 3, 4, 10, 20, 30}},
        {"3/4/2011 10:20:30PM", C{2011, 3, 4, 22, 20, 30}},
        {"10:20 am March 4, 2011", C{2011, 3, 4, 10, 20}},
        {"10:20 3/4/2011", C{2011, 3, 4, 10, 20}},
        {"12:00 AM", C{}},
        {"12:30 pm", C{1899, 12, 30, 12, 30}},
        {"2/29/2011", {}},
        {"2/29/1900", {}},
        {"4/31/2011", {}},
        {"13/13/2011", {}},
        {"0/1/2011", {}},
        {"1/0/2011", {}},
        {"1/1/10000", {}},
        {"1/1/099", {}},
        {"24:00", {}},
        {"10:60", {}},
        {"10:20:60", {}},
        {"13:00 AM", {}},
        {"10:20 10:30", {}},
        {"10:20:30.", {}},
        {"10:", {}},
        {"", {}},
        {"  ", {}},
        {"12345", {}},
        {"40606.5", {}},
        {"1,234", {}},
        {"1,2,2011", {}},
        {"3 4 2011", {}},
        {"3/4-2011", {}},
        {"3/4/", {}},
        {"/3/4", {}},
        {"-3", {}},
        {"3/4/2011/5", {}},
        {"March", {}},
        {"March April 2011", {}},
        {"4 2011 March", {}},
        {"4 Marsh 2011", {}},
        {"3/4/2011 x", {}},
        {"2011-03-04T10:20:30", {}},
        {"99999999999999999999/1/1", {}},
        {"1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1", {}},
    };
    for (const auto& [text, time] : cases) {
        SCOPED_TRACE(text);
        const std::optional<Date> date = readDateText(text);
        ASSERT_EQ(date.has_value(), time.has_value());
        EXPECT_EQ(isDateText(text), time.has_value());
        if (time) {
            EXPECT_EQ(toCalendar(*date), time);
        }
    }
}

TEST(DateText, CountsDaysFromDayZero) {
    const struct {
        double days;
        std::string_view text;
    } cases[] = {
        {40606, "3/4/2011"},
        {40606 + 37230.0 / 86400, "3/4/2011 10:20:30 AM"},
        {40606.5, "3/4/2011 12:00:00 PM"},
        {0.75, "6:00:00 PM"},
        {0, "12:00:00 AM"},
        {1, "12/31/1899"},
        {-1.25, "12/29/1899 6:00:00 AM"},
        {-1, "12/29/1899"},
        {-657434, "1/1/0100"},
        {2958465, "12/31/9999"},
    };
    for (const auto& [days, text] : cases) {
        EXPECT_EQ(dateText({days}), text);
        EXPECT_EQ(Variant(text).toDate().days, days) << text;
    }
    EXPECT_EQ(dateText({40605.999999999}), "3/4/2011");
    EXPECT_EQ(dateText({2958465.999999999}), "12/31/9999 11:59:59 PM");
}

TEST(DateText, EveryDayRoundTrips) {
    for (int day = -657434; day <= 2958465; day += 97) {
        const Date date{day < 0 ? day - 0.5 : day + 0.5};
        ASSERT_EQ(fromCalendar(*toCalendar(date)), date);
    }
}

TEST(Variant, ConvertsToDate) {
    EXPECT_EQ(Variant(std::int32_t(40606)).toDate(), Date{40606});
    EXPECT_EQ(Variant("40606.5").toDate(), Date{40606.5});
    EXPECT_EQ(Variant(true).toDate(), Date{-1});
    EXPECT_EQ(Variant().toDate(), Date{0});
    for (const double days : {-657435.0, 2958466.0, 1e300, double(INFINITY), std::nan("")}) {
        EXPECT_EQ(codeOf([&] { Variant(days).toDate(); }), code::overflow) << days;
        EXPECT_EQ(codeOf([&] { Variant(Date{days}).toText(); }), code::overflow) << days;
    }
    EXPECT_EQ(codeOf([] { Variant("soon").toDate(); }), code::typeMismatch);
    EXPECT_EQ(codeOf([] { Variant("2/30/2011").toDate(); }), code::typeMismatch);
}

/// No text crashes a reader, and a value that was read is in range and is read again when it is written.
TEST(Variant, ReadsAnyTextSafely) {
    std::mt19937 random(20110304);
    constexpr std::string_view alphabet = "0123456789012345678901/:-,.$()+ eEdD&HhOoAPMmarT#\xC3\x00";
    for (int run = 0; run < 200000; ++run) {
        std::string text(random() % 14, ' ');
        for (char& c : text)
            c = alphabet[random() % alphabet.size()];
        SCOPED_TRACE(text);
        double number = 0;
        std::int64_t whole = 0;
        if (readNumber(text, number) == Reading::Done) {
            ASSERT_TRUE(std::isfinite(number));
            double again = 0;
            ASSERT_EQ(readNumber(numberText(number), again), Reading::Done);
            ASSERT_NEAR(again, number, std::abs(number) * 1e-14);
            if (readNumber(text, whole) == Reading::Done && std::abs(number) < 1e15) {
                ASSERT_EQ(whole, std::llrint(number));
            }
        }
        if (const std::optional<Date> date = readDateText(text)) {
            ASSERT_TRUE(isInRange(*date));
            ASSERT_EQ(readDateText(dateText(*date)), date);
        }
    }
}

}  // namespace
}  // namespace tsln
