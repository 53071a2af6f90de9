#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/HostError.h"
#include "shared/RowReader.h"

namespace tsln::modSharedXML {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Way = RowReader::Way;
using Rows = std::vector<std::vector<std::string>>;

const std::vector<std::string_view> fields{"ID", "Name", "Active", "Name", "Due.Days", "Nowhere"};

/// Every row as its texts and conversions. An error that was raised is added as a last row.
Rows readAll(const std::string& text, Way way) {
    Rows rows;
    try {
        RowReader reader(text, fields, way);
        while (reader.next()) {
            auto& row = rows.emplace_back(reader.texts().begin(), reader.texts().end());
            row.push_back(std::to_string(reader.readLong(0, -7)));
            row.push_back(std::to_string(reader.readLong(1, 5)));
            row.push_back(reader.readBoolean(2, true) ? "yes" : "no");
        }
        if (reader.next()) rows.push_back({"a row after the last"});
    } catch (const HostError& error) {
        rows.push_back({"raised", error.what()});
    }
    return rows;
}

/// The name that the one-pass way reads from one row.
std::string nameIn(const std::string& row) {
    RowReader reader("<Records><Record>" + row + "</Record></Records>", fields);
    return reader.next() ? std::string(reader.texts()[1]) : "no row";
}

TEST(RowReader, ReadsValuesAsTheFieldReadersDo) {
    const std::pair<const char*, const char*> cases[] = {
        {"<Name>Net 30</Name>", "Net 30"},
        {"<Name></Name>", ""},
        {"<Name/>", ""},
        {"<Name/><Name>second</Name>", ""},
        {"<Name>  </Name>", "  "},
        {"<Name>first</Name><ID>1</ID><Name>second</Name>", "first"},
        {"<NameOfOther>x</NameOfOther><Name>y</Name>", "y"},
        {"<name>other case</name>", ""},
        {"<Name>Baker &amp; Sons &lt;A&gt; &quot;q&quot; &apos;</Name>", "Baker & Sons <A> \"q\" '"},
        {"<Name>one&amp;#13;&amp;#10;two</Name>", "one\r\ntwo"},
        {"<Name>one&#13;&#10;two &#x41;&#233;</Name>", "one\r\ntwo Aé"},
        {"<Name>one\r\ntwo\rthree</Name>", "one\ntwo\nthree"},
        {"<Name>a & b &unknown; &#x; &#65</Name>", "a & b &unknown; &#x; &#65"},
        {"<Name>a long value of which the end stands far behind &amp;</Name>",
         "a long value of which the end stands far behind &"},
        {"<Name kind='x'>attribute</Name>", "attribute"},
        {"<Name>out <b>in</b></Name>", "out in"},
        {"<Name><![CDATA[<raw>]]></Name>", "<raw>"},
        {"<!-- note --><Name>comment</Name>", "comment"},
        {"loose<Name>text</Name>", "text"},
    };
    for (const auto& [row, name] : cases) {
        EXPECT_EQ(nameIn(row), name) << row;
        const std::string text = "<Records><Record>" + std::string(row) + "</Record></Records>";
        EXPECT_EQ(readAll(text, Way::OnePass), readAll(text, Way::Nodes)) << row;
    }
}

TEST(RowReader, ReadsDocumentsOfEveryForm) {
    const char* const shapes[] = {
        "",
        " \r\n\t",
        "<Records/>",
        "<Records></Records>",
        "<?xml version=\"1.0\"?>\r\n<Records>\r\n\t<Record>\r\n\t\t<ID>1</ID>\r\n\t</Record>\r\n</Records>\r\n",
        "<Records><Record/><Record></Record><Record><ID>3</ID></Record></Records>",
        "\xEF\xBB\xBF<Records><Record><ID>1</ID></Record></Records>",
        "<Other><Record><ID>1</ID></Record></Other>",
        "<Records><Row><ID>1</ID></Row><Record><ID>2</ID></Record></Records>",
        "<Records><Record><ID>1</ID></Record></Records><Records/>",
        "<Records><Record><ID>1</ID></Record></Records> trailing",
        "<Records><Record><ID>1</ID></Record><!-- end --></Records>",
        "<Records kind='x'><Record><ID>1</ID></Record></Records>",
    };
    for (const char* shape : shapes)
        EXPECT_EQ(readAll(shape, Way::OnePass), readAll(shape, Way::Nodes)) << shape;
}

TEST(RowReader, RaisesWhatIsWrongEvenBehindManyGoodRows) {
    std::string text = "<Records>";
    for (int i = 0; i < 100; ++i)
        text += "<Record><ID>" + std::to_string(i) + "</ID><Name>n</Name></Record>";
    RowReader reader(text + "<Record><ID>1</Name></Record></Records>", fields);
    std::size_t rows = 0;
    EXPECT_THROW(
        {
            while (reader.next())
                ++rows;
        },
        HostError);
    EXPECT_EQ(rows, 100u);
    // A document that is cut off at any place is refused by both ways with the same message.
    text = text.substr(0, 200) + "<Record><ID>1</ID></Record></Records>";
    for (std::size_t size = 1; size < text.size(); ++size) {
        const Rows found = readAll(text.substr(0, size), Way::OnePass);
        ASSERT_FALSE(found.empty());
        ASSERT_EQ(found.back()[0], "raised") << size;
        ASSERT_EQ(found.back(), readAll(text.substr(0, size), Way::Nodes).back()) << size;
    }
}

TEST(RowReader, EstimatesTheNumberOfRowsFromThoseRead) {
    std::string text = "<Records>";
    for (int i = 1000; i < 3000; ++i)
        text += "<Record><ID>" + std::to_string(i) + "</ID></Record>";
    RowReader reader(text + "</Records>", fields);
    EXPECT_EQ(reader.expectedRows(), 0u);
    for (int i = 0; i < 50; ++i)
        ASSERT_TRUE(reader.next());
    EXPECT_NEAR(static_cast<double>(reader.expectedRows()), 2000, 20);
}

}  // namespace
}  // namespace tsln::modSharedXML
