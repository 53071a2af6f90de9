#include <gtest/gtest.h>

#include "workbench/host/QueryDocument.h"

namespace tsln::workbench {
namespace {

constexpr const char* termsXml =
    "<Records><Record><ID>1</ID><Terms>A &amp; B</Terms><Note> </Note></Record>"
    "<Record><ID>2</ID><Terms>two&amp;#13;&amp;#10;lines</Terms></Record></Records>";

TEST(QueryDocument, TheDocumentIsReadNodeByNode) {
    const ObjectPtr document = makeQueryDocument(termsXml);
    EXPECT_EQ(document->get("xml"), Variant(termsXml));
    const ObjectPtr rows = document->call("selectNodes", "Records/Record").toObject();
    ASSERT_EQ(rows->get("length"), Variant(2));
    std::string seen;
    for (int i = 0; i < rows->get("length").toLong(); ++i) {
        const ObjectPtr row = rows->get("item", i).toObject();
        const ObjectPtr columns = row->get("childNodes").toObject();
        for (int j = 0; j < columns->get("length").toLong(); ++j) {
            const ObjectPtr column = columns->call("item", j).toObject();
            seen += column->get("nodeName").toText() + "=" + column->get("text").toText() + ";";
        }
    }
    EXPECT_EQ(seen, "ID=1;Terms=A & B;Note= ;ID=2;Terms=two&#13;&#10;lines;");
}

TEST(QueryDocument, EveryMemberAnswers) {
    const ObjectPtr document = makeQueryDocument(termsXml);
    const ObjectPtr root = document->get("documentElement").toObject();
    const ObjectPtr first = document->call("selectSingleNode", "//Records/Record").toObject();
    const ObjectPtr list = root->get("childNodes").toObject();
    EXPECT_EQ(root->get("nodeName"), Variant("Records"));
    EXPECT_EQ(document->get("nodeName"), Variant("#document"));
    EXPECT_EQ(first->get("xml"),
              Variant("<Record><ID>1</ID><Terms>A &amp; B</Terms><Note> </Note></Record>"));
    EXPECT_EQ(first->call("selectSingleNode", "Terms").object().get("text"), Variant("A & B"));
    EXPECT_EQ(first->call("selectSingleNode", "Missing").toObject(), nullptr);
    EXPECT_EQ(document->call("selectNodes", "Records/Nothing").object().get("length"), Variant(0));
    EXPECT_EQ(first->get("nextSibling").object().get("firstChild").object().get("text"), Variant("2"));
    EXPECT_EQ(
        first->get("parentNode").object().get("lastChild").object().get("firstChild").object().get("text"),
        Variant("2"));
    EXPECT_EQ(first->get("previousSibling").toObject(), nullptr);
    EXPECT_EQ(first->get("nodeType"), Variant(1));
    EXPECT_EQ(list->call("nextNode").object().call("hasChildNodes"), Variant(true));
    EXPECT_EQ(list->call("nextNode").object().get("text"), Variant("2two&#13;&#10;lines"));
    EXPECT_EQ(list->call("nextNode").toObject(), nullptr);
    EXPECT_EQ(list->get("item", 2).toObject(), nullptr);
    EXPECT_EQ(list->get("item", -1).toObject(), nullptr);

    EXPECT_THROW(document->call("selectNodes", "Records["), HostError);
    EXPECT_THROW(document->call("selectSingleNode", "count(//Record)"), HostError);
    EXPECT_THROW(document->get("ownerDocument"), HostError);
    EXPECT_THROW(document->put("text", "x"), HostError);
    EXPECT_THROW(makeQueryDocument("<Records><a></Records>")->get("text"), HostError);
}

TEST(QueryDocument, NodesOutliveTheDocument) {
    const ObjectPtr node = makeQueryDocument(termsXml)->call("selectSingleNode", "//Terms").toObject();
    EXPECT_EQ(node->get("text"), Variant("A & B"));
    EXPECT_EQ(makeQueryDocument("")->call("selectNodes", "Records/Record").object().get("length"),
              Variant(0));
}

}  // namespace
}  // namespace tsln::workbench
