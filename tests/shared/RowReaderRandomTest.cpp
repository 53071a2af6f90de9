#include <chrono>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "tests/shared/RowsOfTree.h"

namespace tsln::modSharedXML {
namespace {

/// Makes random query results: usual, unusual and damaged ones.
class RandomDocument {
  public:
    explicit RandomDocument(unsigned seed) : random_(seed) {}

    std::string make() {
        std::string text = rarely(8) ? one(prologues) : one(plainPrologues);
        const std::string root = rarely(40) ? one({"records", "Other", "Record", "n:Records"}) : "Records";
        text += "<" + root + (rarely(40) ? one(attributes) : "") + ">";
        for (std::size_t rows = below(12); rows > 0; --rows)
            text += row() + (rarely(12) ? one(betweenElements) : "");
        text += "</" + root + ">" + (rarely(8) ? one(epilogues) : "");
        if (rarely(3)) {
            for (std::size_t hits = below(4) + 1; hits > 0 && !text.empty(); --hits)
                damage(text);
        }
        return text;
    }

  private:
    using Texts = std::vector<std::string>;

    std::size_t below(std::size_t limit) { return random_() % limit; }
    bool rarely(std::size_t times) { return below(times) == 0; }
    const std::string& one(const Texts& choices) { return choices[below(choices.size())]; }
    std::string one(std::initializer_list<const char*> choices) {
        return choices.begin()[below(choices.size())];
    }

    std::string row() {
        if (rarely(30)) return one({"<Record/>", "<Record />", "<Record></Record>", "<Row><ID>1</ID></Row>"});
        std::string text = rarely(40) ? "<Record" + one(attributes) + ">" : "<Record>";
        for (std::size_t fields = below(7); fields > 0; --fields) {
            text += element(rarely(60) ? one(oddNames) : one(plainNames), 0);
            if (rarely(40)) text += one(betweenElements);
        }
        return text + (rarely(60) ? "</Record >" : "</Record>");
    }

    std::string element(const std::string& name, int depth) {
        if (rarely(25)) return "<" + name + one({"/>", " />", "\n/>"});
        std::string value;
        for (std::size_t parts = below(5); parts > 0; --parts)
            value += rarely(6) ? one(oddValues) : one(plainValues);
        if (rarely(80) && depth < 3) value += element(one(plainNames), depth + 1);
        if (rarely(300)) {  // deep enough to exhaust the stack of a recursive reader
            std::string open, close;
            for (std::size_t levels = below(3000); levels > 0; --levels) {
                open += "<a>";
                close += "</a>";
            }
            value = open + value + close;
        }
        return "<" + name + (rarely(60) ? one(attributes) : "") + ">" + value + "</" + name +
               (rarely(60) ? " >" : ">");
    }

    void damage(std::string& text) {
        const std::size_t at = below(text.size());
        const std::size_t size = below(20) + 1;
        switch (below(8)) {
            case 0:
                text[at] = static_cast<char>(text[at] ^ (1 << below(8)));
                break;
            case 1:
                text[at] = "<>/&;#'\"=!-[]?xR \r\n\0\xC3\xFF"[below(23)];
                break;
            case 2:
                text.erase(at, size);
                break;
            case 3:
                text.insert(at, text, below(text.size()), size);
                break;
            case 4:
                text.resize(at);
                break;
            case 5:
                text.erase(0, size);
                break;
            case 6:
                text.insert(at, one(oddValues));
                break;
            default:
                text.insert(at, one(marks));
                break;
        }
    }

    const Texts plainPrologues{"", "", "<?xml version=\"1.0\"?>",
                               "<?xml version='1.0' encoding='UTF-8'?>\r\n", " \n"};
    const Texts prologues{"\xEF\xBB\xBF",
                          "\xEF\xBB\xBF<?xml version=\"1.0\"?>",
                          "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
                          "<?xml version=\"1.0\" encoding=\"UTF-16\"?>",
                          "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>",
                          "<?xml?>",
                          "<?xml  ?>",
                          "<?xml a='?>' ?>",
                          "<?xml ",
                          "<?XML version='1.0'?>",
                          "<!DOCTYPE Records>",
                          "<!DOCTYPE Records [<!ENTITY x \"<ID>5</ID>\">]>",
                          "<!-- <Records> -->",
                          "<?style x?>",
                          "\0"s,
                          "\xFF\xFE",
                          "text",
                          "<Records/>",
                          "<Records><Record><ID>first root</ID></Record></Records>"};
    const Texts epilogues{"\r\n",         " ",          "\0"s,         "\0<Records>"s, "text", "<Records/>",
                          "<!-- end -->", "</Records>", "\xEF\xBB\xBF"};
    const Texts attributes{" kind=\"a\"", " xmlns='x'",   " ",   "\n", " a='<Record>'", " a",
                           " a=b",        " a='1' a='2'", "\t\r"};
    const Texts betweenElements{" ",
                                "\n\t",
                                "\v",
                                "\xA0",
                                "loose",
                                "<!-- x -->",
                                "<!-- <Record> -->",
                                "<?pi x?>",
                                "<![CDATA[ ]]>",
                                "<![CDATA[</Record>]]>",
                                "&#32;",
                                "]]>"};
    const Texts marks{"\0"s,     "<Record>", "</Record>", "<Records>", "<ID>",  "</ID>", "<",
                      ">",       "/>",       "<>",        "</>",       "<!-->", "<!x>",  "<![CDATA[open",
                      "<Record", "\xF0\x9F"};
    const Texts plainNames{"ID", "Name", "Active", "Due.Days", "Name_Of-Other", "Other"};
    const Texts oddNames{"n:Odd",
                         "Größe",
                         "Nam",
                         "Names",
                         "name",
                         "_x",
                         "-x",
                         ".x",
                         "9x",
                         "ID\xFF",
                         "Record",
                         "Records",
                         ":",
                         "x\0y"s,
                         std::string(300, 'N'),
                         std::string(70000, 'W')};
    const Texts plainValues{"12",        "-1",    "Yes",    "Net 30",
                            " ",         "é",     "$1,000", "&amp;",
                            "&lt;",      "&#13;", "true",   "long text to go past sixteen bytes",
                            "&amp;#10;", "&gt;",  "'\""};
    const Texts oddValues{"\r",
                          "\r\n",
                          "\n\r",
                          "\r\r\n",
                          "\xE9",
                          "\xF0\x9F",
                          "&",
                          "&&",
                          "&amp",
                          "&AMP;",
                          "&unknown;",
                          "&;",
                          "&#;",
                          "&#x;",
                          "&#0;",
                          "&#x0;",
                          "&#65",
                          "&#65;",
                          "&#x41;",
                          "&#X41;",
                          "&#xe9;",
                          "&#xD800;",
                          "&#x10FFFF;",
                          "&#x110000;",
                          "&#99999999999999999999;",
                          "&#00000000000065;",
                          "&#-5;",
                          "&# 5;",
                          "&amp;amp;",
                          "&amp;#13",
                          "&#38;#13;",
                          "&quot;&apos;",
                          "&quot",
                          "&apo",
                          "]]>",
                          ">",
                          "\0"s,
                          "\x01",
                          "<![CDATA[x<y&amp;]]>",
                          "<![CDATA[]]>",
                          "<![CDATA[open",
                          "<b>in</b>",
                          "<!-- note -->",
                          "<?pi?>",
                          "<i/>",
                          "<b>&amp;<c>&#13;</c></b>",
                          "\t",
                          std::string(5000, ' '),
                          std::string(5000, '&')};

    std::mt19937 random_;
};

TEST(RowReader, ReadsAnyDocumentAsThePugixmlTreeHasIt) {
    const char* const given = std::getenv("TSLN_SEED");
    const unsigned first = given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 4711;
    constexpr unsigned documents = 20000;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    unsigned count = 0;
    unsigned damaged = 0;
    std::size_t rows = 0;
    for (; count < documents && std::chrono::steady_clock::now() < end; ++count) {
        const std::string text = RandomDocument(first + count).make();
        const Rows expected = readTree(text);
        damaged += expected == refused;
        rows += expected.size();
        for (const Way way : {Way::OnePass, Way::Nodes}) {
            ASSERT_EQ(readRows(text, way), expected)
                << "TSLN_SEED=" << first + count << (way == Way::OnePass ? ", in one pass" : ", by nodes")
                << "\n"
                << testing::PrintToString(text.substr(0, 3000));
        }
    }
    std::cout << "TSLN_SEED=" << first << ": " << count << " documents, " << damaged << " refused, " << rows
              << " rows\n";
    // The documents must be a mixture of sound and damaged ones.
    EXPECT_GT(damaged, count / 20);
    EXPECT_LT(damaged, count - count / 3);
    EXPECT_GT(rows, count);
}

}  // namespace
}  // namespace tsln::modSharedXML
