#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Control.h"
#include "shared/Markup.h"

namespace tsln {

/// Text with bold parts, lines and links, in the markup of captions: "<TextBlock
/// TextWrapping='Wrap'><Hyperlink Click='Hyperlink_New'>New</Hyperlink> / ...</TextBlock>", where "Click"
/// names the operation that the link runs. Text typed by a user must pass through asMarkupText() first.
class MarkupLabel : public Control {
  public:
    MarkupLabel(Screen& screen, std::string name, std::string caption);
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    /// The caption, parsed into runs of text.
    const std::vector<MarkupRun>& runs() const noexcept { return runs_; }

    std::function<void(const std::string& operation)> onLink;
    /// The user follows the link. Ignored while the label is disabled, or without such a link.
    void userFollow(std::string_view operation);
    /// Adds `Caption`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string caption_;
    std::vector<MarkupRun> runs_;
};

}  // namespace tsln
