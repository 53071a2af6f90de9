#include <random>

#include <gtest/gtest.h>

#include "automation/DateText.h"
#include "automation/Object.h"
#include "shared/modSharedXML.h"

namespace tsln::modSharedXML {
namespace {

Records oneRecord(std::string_view fields) {
    return Records::parse("<Records><Record>" + std::string(fields) + "</Record></Records>");
}

/// A document as a database returns it: an object with its text as a property.
class Document : public Object {
  public:
    explicit Document(Variant text) : text_(std::move(text)) {}
    Variant invoke(std::string_view member, Access, Arguments) override {
        if (!sameName(member, "xml")) raiseUnknownMember("Document", member);
        return text_;
    }

  private:
    Variant text_;
};

TEST(Records, GiveTheRowsInOrder) {
    Records records = Records::parse(
        "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n<Records>\r\n  <Record><ID>3</ID></Record>\r\n"
        "  <!-- none --><Other/><Record/>\r\n  <Record><ID>1</ID></Record>\r\n</Records>\r\n");
    const Records moved = std::move(records);
    std::vector<std::int32_t> ids;
    for (const Record record : moved)
        ids.push_back(readLong("ID", record, -7));
    EXPECT_EQ(ids, (std::vector<std::int32_t>{3, -7, 1}));
    EXPECT_EQ(moved.count(), 3u);
    EXPECT_EQ(readText("ID", moved.first()), "3");
}

TEST(Records, RaiseAnErrorForMalformedTextOnly) {
    const struct {
        std::string_view text;
        bool malformed;
    } cases[] = {
        {"", false},
        {" \r\n", false},
        {"<Records/>", false},
        {"<Rows><Record><ID>1</ID></Record></Rows>", false},
        {"<records><Record/></records>", false},
        {"<Root><Records><Record/></Records></Root>", false},
        {"Timeout expired", true},
        {"<Records><Record>", true},
        {"<Records><Record></Records>", true},
        {"<Records><Record><ID>1</ID", true},
        {"<", true},
    };
    for (const auto& [text, malformed] : cases) {
        SCOPED_TRACE(text);
        const Records records = Records::read(std::string(text));
        EXPECT_EQ(!records.error().empty(), malformed);
        EXPECT_TRUE(records.empty());
        EXPECT_FALSE(records.first());
        EXPECT_EQ(records.begin(), records.end());
        if (!malformed) continue;
        try {
            Records::parse(std::string(text));
            ADD_FAILURE() << "no error raised";
        } catch (const HostError& error) {
            EXPECT_EQ(error.code(), code::fail);
            EXPECT_EQ(error.text(), records.error());
        }
    }
}

TEST(Records, AreReadFromTheDocumentOfAQuery) {
    const auto rows = std::make_shared<Document>("<Records><Record/><Record/></Records>");
    EXPECT_EQ(readRecords(rows).count(), 2u);
    EXPECT_EQ(readRecords(std::make_shared<Document>(Variant())).count(), 0u);
    const struct {
        Variant document;
        std::int32_t code;
    } failures[] = {
        {ObjectPtr(), code::objectNotSet},
        {Variant(), code::typeMismatch},
        {"<Records/>", code::typeMismatch},
        {std::make_shared<Document>(Null()), code::typeMismatch},
        {std::make_shared<Document>("<Records>"), code::fail},
    };
    for (const auto& row : failures) {
        try {
            readRecords(row.document);
            ADD_FAILURE() << "no error raised";
        } catch (const HostError& error) {
            EXPECT_EQ(error.code(), row.code);
        }
    }
}

TEST(FieldReaders, GiveTextAsItWasStored) {
    const struct {
        std::string_view fields;
        std::string_view text;
    } cases[] = {
        {"<F>plain</F>", "plain"},
        {"<F>one&#13;&#10;two</F>", "one\r\ntwo"},
        {"<F>one&amp;#13;&amp;#10;two</F>", "one\r\ntwo"},
        {"<F>&amp;#13</F>", "&#13"},
        {"<F>&amp;#13;&amp;#1&amp;#10;&amp;</F>", "\r&#1\n&"},
        {"<F>&lt;b&gt; &quot;O'Brien&quot; &amp; Co</F>", "<b> \"O'Brien\" & Co"},
        {"<F>  padded </F>", "  padded "},
        {"<F>  </F>", "  "},
        {"<F><![CDATA[a<b&#10;]]></F>", "a<b\n"},
        {"<F>a<![CDATA[b]]>c</F>", "abc"},
        {"<F>a<i>b<j/></i>c<k><l>d</l></k></F>e", "abcd"},
        {"<F>K\xC3\xBC"
         "che</F>",
         "K\xC3\xBC"
         "che"},
        {"<F>first</F><F>second</F>", "first"},
        {"text before<Fx>no</Fx><F>yes</F>", "yes"},
        {"<F></F>", "default"},
        {"<F/>", "default"},
        {"<f>other case</f><FF>longer</FF>", "default"},
        {"", "default"},
    };
    for (const auto& [fields, text] : cases) {
        const Records records = oneRecord(fields);
        EXPECT_EQ(readText("F", records.first(), "default"), text) << fields;
    }
    EXPECT_EQ(readText("F", Record(), "default"), "default");
    const Records records = oneRecord("text<F>x</F>");
    EXPECT_EQ(readText("", records.first(), "default"), "default");
    EXPECT_EQ(readText(std::string_view("F\0", 2), records.first(), "default"), "default");
}

TEST(FieldReaders, ConvertOrGiveTheDefault) {
    const struct {
        std::string_view text;
        std::int32_t whole;  // the default is 5
        std::int16_t integer;
        float single;
        bool boolean;           // with the default false
        bool booleanOtherwise;  // with the default true
    } cases[] = {
        {"12", 12, 12, 12, true, true},
        {"-1", -1, -1, -1, true, true},
        {"1", 1, 1, 1, true, true},
        {"0", 0, 0, 0, false, false},
        {"2.5", 2, 2, 2.5f, true, true},
        {" $1,000 ", 1000, 1000, 1000, true, true},
        {"40000", 40000, 5, 40000, true, true},
        {"32767.5", 32768, 5, 32767.5f, true, true},
        {"2147483648", 5, 5, 2147483648.0f, true, true},
        {"1e39", 5, 5, 5, true, true},
        {"1e400", 5, 5, 5, false, true},
        {"12abc", 5, 5, 5, false, true},
        {"YES", 5, 5, 5, true, true},
        {"No", 5, 5, 5, false, false},
        {"TRUE", 5, 5, 5, true, true},
        {"False", 5, 5, 5, false, false},
        {"maybe", 5, 5, 5, false, true},
        {"", 5, 5, 5, false, true},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.text);
        const Records records = oneRecord("<A>1</A><F>" + std::string(row.text) + "</F>");
        const Record record = records.first();
        EXPECT_EQ(readLong("F", record, 5), row.whole);
        EXPECT_EQ(readInteger("F", record, 5), row.integer);
        EXPECT_EQ(readSingle("F", record, 5), row.single);
        EXPECT_EQ(readBoolean("F", record, false), row.boolean);
        EXPECT_EQ(readBoolean("F", record, true), row.booleanOtherwise);
    }
    const Records withNull = oneRecord("<A>1</A>");
    for (const Record record : {Record(), withNull.first()}) {
        EXPECT_EQ(readLong("F", record), 0);
        EXPECT_EQ(readInteger("F", record, 5), 5);
        EXPECT_EQ(readSingle("F", record, 0.5f), 0.5f);
        EXPECT_TRUE(readBoolean("F", record, true));
        EXPECT_EQ(readDate("F", record, Date{3}), Date{3});
    }
}

TEST(FieldReaders, ReadDates) {
    using C = CalendarTime;
    const struct {
        std::string_view text;
        std::optional<C> time;
    } cases[] = {
        {"2011-03-04T10:20:30", C{2011, 3, 4, 10, 20, 30}},
        {"2011-03-04T10:20:30.997", C{2011, 3, 4, 10, 20, 30}},
        {"2011-03-04T00:00:00", C{2011, 3, 4}},
        {"2011-03-04T", C{2011, 3, 4}},
        {"2011-03-04", C{2011, 3, 4}},
        {"3/4/2011 10:20:30 PM", C{2011, 3, 4, 22, 20, 30}},
        {"4 Oct 2011", C{2011, 10, 4}},
        {"4 OCT 2011", C{2011, 10, 4}},
        {"2011-02-30T10:20:30", {}},
        {"2011-13-13T00:00:00", {}},
        {"2011-03T10:20:30", {}},
        {"T", {}},
        {"--T", {}},
        {"40606", {}},
        {"Today", {}},
        {"", {}},
    };
    const Date otherwise{-3.5};
    for (const auto& [text, time] : cases) {
        const Records records = oneRecord("<F>" + std::string(text) + "</F>");
        const Date expected = time ? fromCalendar(*time).value() : otherwise;
        EXPECT_EQ(readDate("F", records.first(), otherwise), expected) << text;
    }
}

TEST(FieldText, IsEncodedAndDecoded) {
    const struct {
        std::string_view plain;
        std::string_view encoded;
    } cases[] = {
        {"", ""},
        {"plain & <simple>", "plain & <simple>"},
        {"one\r\ntwo", "one&#13;&#10;two"},
        {"\n\n\r", "&#10;&#10;&#13;"},
    };
    for (const auto& [plain, encoded] : cases) {
        EXPECT_EQ(encodeFieldText(plain), encoded);
        EXPECT_EQ(decodeFieldText(encoded), plain);
    }
    EXPECT_EQ(decodeFieldText("&#&#13;10;&#11;&#10"),
              "&#\r10;&#11;&#10");  // a decoded character is not part of another reference
    std::string scratch = "unused";
    const std::string_view untouched = "&#1 nothing to decode";
    EXPECT_EQ(decodeFieldText("no entity", scratch), "no entity");
    EXPECT_EQ(scratch, "unused");
    EXPECT_EQ(decodeFieldText(untouched, scratch), untouched);
}

/// For damaged documents the readers neither crash nor raise errors.
TEST(FieldReaders, SurviveDamagedDocuments) {
    const std::string sound =
        "<?xml version='1.0'?><Records><Record><ID>1</ID><Name>O&#13;&#10;B&amp;#13;</Name><On>2011-03-04T10:20:30</On><D><![CDATA[x]]>y<z>1.5</z></D></Record><Record><ID>-2</ID><Name/></Record></Records>";
    constexpr std::string_view bytes = "<>/&;#'\"=!-[]?TR0159 \n\xC3\xFF\x00";
    std::mt19937 random(4711);
    std::size_t rows = 0;
    std::size_t refused = 0;
    for (int run = 0; run < 20000; ++run) {
        std::string text = sound;
        for (auto edits = random() % 4 + 1; edits > 0; --edits) {
            const std::size_t at = random() % text.size();
            switch (random() % 3) {
                case 0:
                    text[at] = bytes[random() % bytes.size()];
                    break;
                case 1:
                    text.erase(at, random() % 6 + 1);
                    break;
                default:
                    text.insert(at, text, random() % text.size(), random() % 12);
                    break;
            }
            if (text.empty()) text = "<";
        }
        SCOPED_TRACE(text);
        const Records records = Records::read(text);
        refused += !records.error().empty();
        for (const Record record : records) {
            ++rows;
            for (const std::string_view field : {"ID", "Name", "On", "D"}) {
                readText(field, record);
                readInteger(field, record);
                readLong(field, record);
                readSingle(field, record);
                readBoolean(field, record);
                readDate(field, record);
            }
        }
    }
    EXPECT_GT(rows, 1000u);
    EXPECT_GT(refused, 1000u);

    std::string deep = "<Records><Record><F>";
    for (int i = 0; i < 50000; ++i)
        deep += "<a>";
    deep += "1";
    for (int i = 0; i < 50000; ++i)
        deep += "</a>";
    EXPECT_EQ(readLong("F", Records::parse(deep + "</F></Record></Records>").first()), 1);
}

}  // namespace
}  // namespace tsln::modSharedXML
