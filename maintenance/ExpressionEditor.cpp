#include "maintenance/ExpressionEditor.h"

#include "bridge/Component.h"

namespace tsln {

std::optional<std::string> editExpression(HostScreen& screen, const std::string& expression,
                                          std::string_view title) {
    ObjectPtr editor;
    try {
        editor = screen.desktop().createObject("tslnfe5.Engine");
    } catch (const HostError&) {
        return std::nullopt;
    }
    const Component engine(std::move(editor), screen.host());
    const Variant edited = title.empty() ? engine->call("ShowEditExpression", expression)
                                         : engine->call("ShowEditExpression2", expression, title);
    if (!edited.isText()) return std::nullopt;
    return edited.toText();
}

}  // namespace tsln
