#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// A line of text with links in it. The caption is in the markup of captions:
/// "<TextBlock><Hyperlink Click='Hyperlink_New'>New</Hyperlink> / ...</TextBlock>", where "Click" names the
/// operation that the link runs.
class LinkLabel : public Control {
  public:
    LinkLabel(Screen& screen, std::string name, std::string caption);
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);

    /// The caption without its markup: plain text, and links, which have an operation.
    struct Part {
        std::string text;
        std::string operation;
        friend bool operator==(const Part&, const Part&) = default;
    };
    const std::vector<Part>& parts() const noexcept { return parts_; }

    std::function<void(const std::string& operation)> onLink;
    /// The user follows the link; nothing happens while the label is disabled or has no such link.
    void userFollow(std::string_view operation);
    /// Adds `Caption`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string caption_;
    std::vector<Part> parts_;
};

}  // namespace tsln
