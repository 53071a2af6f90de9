// Rows of query results: the reader in one pass and the one by nodes against pugixml's tree.

#include "tests/fuzz/Fuzz.h"
#include "tests/shared/RowsOfTree.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tsln::modSharedXML;
    const std::string text(tsln::fuzz::textOf(data, size));
    const Rows expected = readTree(text);
    tsln::fuzz::same(readRows(text, Way::OnePass), expected, "the rows in one pass");
    tsln::fuzz::same(readRows(text, Way::Nodes), expected, "the rows by nodes");
    tsln::fuzz::same(Records::read(text).count(), expected == refused ? 0 : expected.size(),
                     "the number of rows");
    return 0;
}
