#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tsln::workbench {

/// A piece of a message that is drawn in one go: text of one weight, or the end of a line.
struct MarkupRun {
    std::string text;
    bool bold = false;
    bool lineBreak = false;
    friend bool operator==(const MarkupRun&, const MarkupRun&) = default;
};

/// Reads the markup of message texts: "<Bold>...</Bold>", "<LineBreak/>" and
/// "<TextBlock TextWrapping='Wrap'>...</TextBlock>", a block that stands on lines of its own. Carriage
/// returns and line feeds end lines, too.
///
/// Messages are filled with names that users typed, and nobody escapes those. So there are no character
/// references, and whatever is no complete markup of these kinds is text: "A < B & <x>", a "<Bold>" that
/// nothing closes, a "<Bold>" within bold text, a "</Bold>" too many.
std::vector<MarkupRun> parseMarkup(std::string_view text);

/// The text without its markup, lines ended by "\n".
std::string plainText(std::string_view text);

}  // namespace tsln::workbench
