#include <chrono>

#include "tests/workbench/host/HostStage.h"
#include "workbench/host/AddressText.h"

namespace tsln::workbench {

void PrintTo(const Address& a, std::ostream* out) {
    for (const std::string* field : {&a.line1, &a.line2, &a.city, &a.state, &a.zip, &a.country})
        *out << "[" << *field << "]";
}

namespace {

TEST(AddressText, OrdinaryAddressesAreParsedToTheirFields) {
    const struct {
        const char *city, *state, *zip, *country;
    } places[] = {
        {"Merriden Falls", "WI", "53099", "USA"},
        {"New York", "NY", "10001-1234", "United States"},
        {"Washington", "DC", "20001", "US"},
        {"Portland", "Oregon", "97201", "U.S.A."},
        {"Ontario", "CA", "91761", "USA"},
        {"Winston-Salem", "North Carolina", "27101", ""},
        {"Toronto", "ON", "M5V 2T6", "Canada"},
        {"Toronto", "ON", "M5V 2T6", "CA"},
        {"Montr\u00e9al", "Qu\u00e9bec", "H3B1A7", "Canada"},
        {"St. John's", "NL", "A1C 5M2", "Canada"},
        {"Truth or Consequences", "NM", "87901", "Georgia"},
        {"Oxbow Landing", "WI", "", "USA"},
        {"Oxbow Landing", "", "53098", "USA"},
    };
    const std::pair<const char*, const char*> streets[] = {
        {"418 Halcyon Row", ""},
        {"418 Halcyon Row, Rear Dock", "Suite 12, Floor 3"},
        {"P.O. Box 12345", ""},
        {"12 rue de l'\u00c9glise", "Bureau 400"},
        {"1600 Washington Avenue", "Apt. 5"},
        {"", ""},
    };
    for (const auto& place : places) {
        for (const auto& [line1, line2] : streets) {
            for (const std::string& country : {std::string(place.country), std::string()}) {
                const Address address{line1, line2, place.city, place.state, place.zip, country};
                EXPECT_EQ(parseAddress(combineAddress(address)), address) << combineAddress(address);
            }
        }
    }
}

TEST(AddressText, AddressesAreReadAsPeopleTypeThem) {
    const struct {
        const char* text;
        Address address;
        bool complete;
    } cases[] = {
        {" 5 Elm St \n\n  springfield   il 62701 ", {"5 Elm St", "", "springfield", "il", "62701", ""}, true},
        {"5 Elm St\rSpringfield, IL, 62701\rusa",
         {"5 Elm St", "", "Springfield", "IL", "62701", "usa"},
         true},
        {"Attn: Ivo\n5 Elm St\nDock 2\nReno NV 89501",
         {"Attn: Ivo", "5 Elm St, Dock 2", "Reno", "NV", "89501", ""},
         true},
        {"5 Elm St\nReno", {"5 Elm St", "", "Reno", "", "", ""}, false},
        {"5 Elm St\nUnit 4", {"5 Elm St", "Unit 4", "", "", "", ""}, false},
        {"10 High Street\nLondon SW1A 2AA\nUnited Kingdom",
         {"10 High Street", "", "London SW1A 2AA", "", "", "United Kingdom"},
         false},
        {"Canada", {"Canada", "", "", "", "", ""}, false},
        {"", {}, false},
        {" \r\n ", {}, false},
    };
    for (const auto& c : cases) {
        const Address address = parseAddress(c.text);
        EXPECT_EQ(address, c.address) << c.text;
        EXPECT_EQ(address.isComplete(), c.complete) << c.text;
        const std::string normal = combineAddress(address);
        EXPECT_EQ(combineAddress(parseAddress(normal)), normal) << "the normal form is unchanged";
    }
    std::string longest;
    for (int i = 0; i < 100'000; ++i)
        longest += "WI ";
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(parseAddress(longest).line1.size(), longest.size() - 1);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST(AddressText, TheHostReturnsTheFieldsByReference) {
    const HostStage stage;
    Variant text("7 Ferry Steps\nOxbow Landing WI 53098"), fields[6], validate(true);
    std::vector<Argument> arguments{Argument::byReference(text)};
    for (Variant& field : fields)
        arguments.push_back(Argument::byReference(field));
    arguments.push_back(Argument::byReference(validate));
    EXPECT_EQ(stage.shared().invoke("ParseAddress", Access::Call, Arguments(arguments)), Variant(true));
    EXPECT_EQ(text, Variant("7 Ferry Steps\r\nOxbow Landing, WI 53098"));
    EXPECT_EQ(fields[2], Variant("Oxbow Landing"));
    EXPECT_EQ(fields[3], Variant("WI"));
    EXPECT_EQ(fields[5], Variant(""));
    EXPECT_EQ(validate, Variant(true));
    EXPECT_EQ(
        stage.shared().call("CombineAddress", fields[0], fields[1], fields[2], fields[3], fields[4], Null()),
        text);
}

}  // namespace
}  // namespace tsln::workbench
