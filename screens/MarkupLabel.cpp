#include "screens/MarkupLabel.h"

#include <algorithm>

#include "screens/ControlMembers.h"

namespace tsln {

MarkupLabel::MarkupLabel(Screen& screen, std::string name, std::string caption)
    : Control(screen, std::move(name)), caption_(std::move(caption)), runs_(parseMarkup(caption_)) {}

void MarkupLabel::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    runs_ = parseMarkup(caption_);
    changed();
}

void MarkupLabel::userFollow(std::string_view operation) {
    if (!enabled() || !visible() || operation.empty() || !onLink) return;
    const auto run = std::ranges::find(runs_, operation, &MarkupRun::operation);
    if (run == runs_.end()) return;
    // A copy: the handler may set another caption.
    fire([this, name = run->operation] { onLink(name); });
}

Variant MarkupLabel::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<MarkupLabel> members[] = {
        {"Caption", [](MarkupLabel& self, Arguments) { return Variant(self.caption_); },
         [](MarkupLabel& self, Arguments a) { self.setCaption(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
