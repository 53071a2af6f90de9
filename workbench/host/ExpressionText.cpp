#include "workbench/host/ExpressionText.h"

namespace tsln::workbench {

std::string expressionFault(std::string_view expression) {
    std::string closing;  // the brackets that close the open ones
    bool quoted = false;
    for (const char c : expression) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '(' || c == '[') {
            closing += c == '(' ? ')' : ']';
        } else if (c == ')' || c == ']') {
            if (closing.empty()) return std::string("There is a \"") + c + "\" without an opening bracket.";
            if (closing.back() != c)
                return std::string("There is a \"") + c + "\" where a \"" + closing.back() +
                       "\" is expected.";
            closing.pop_back();
        }
    }
    if (quoted) return "A quotation mark is not closed.";
    if (!closing.empty()) return std::string("A \"") + closing.back() + "\" is missing at the end.";
    return {};
}

}  // namespace tsln::workbench
