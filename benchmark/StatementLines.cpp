#include "benchmark/Lines.h"
#include "benchmark/contest/SampleRows.h"
#include "shared/modSharedSQL.h"

namespace tsln::bench {
namespace {

using modSharedSQL::Tag;

constexpr std::size_t fillsPerRun = 2000;

/// A statement that writes all columns of a customer, with one tag per column.
struct Statement {
    Statement() {
        text = "UPDATE Customers SET ";
        for (const std::string& column : customersColumns()) {
            const std::size_t at = names.size();
            names.push_back("<" + column.substr(0, 3) + std::to_string(at) + ">");
            text += column + " = '" + names.back() + "', ";
        }
        text += "Exported = 0";
        for (std::size_t i = 0; i < names.size(); ++i)
            tags.emplace_back(names[i], std::string_view(customerValue(7, i)));
    }
    std::string text;
    std::vector<std::string> names;
    std::vector<Tag> tags;
};

/// The minimal work: copies the template from tag to tag and appends each tag's value.
std::string appendInOnePass(std::string_view text, std::span<const Tag> tags) {
    std::string result;
    std::size_t at = 0;
    for (const Tag& tag : tags) {
        const std::size_t open = text.find('<', at);
        result.append(text, at, open - at).append(tag.value);
        at = text.find('>', open) + 1;
    }
    return result.append(text, at);
}

}  // namespace

void measureStatements(const Settings&, Report& report) {
    const Statement statement;
    const auto times = [&](auto fill) {
        return [&statement, fill] {
            std::size_t bytes = 0;
            for (std::size_t i = 0; i < fillsPerRun; ++i)
                bytes += fill(statement.text, std::span<const Tag>(statement.tags)).size();
            use(bytes);
        };
    };
    using Fill = std::string (*)(std::string_view, std::span<const Tag>);
    const Contest contest({{"fillTags", times(static_cast<Fill>(modSharedSQL::fillTags))},
                           {"one pass", times(appendInOnePass)}},
                          {.seconds = 2});
    report.add(
        Line{"filling a statement of 45 tags", "appending text and values in turn", contest.ratio(0, 1)});
}

}  // namespace tsln::bench
