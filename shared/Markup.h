#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tsln {

/// The layout of a block of text.
struct MarkupBlock {
    enum class Alignment { Left, Center, Right };
    bool wraps = false;
    Alignment alignment = Alignment::Left;
    double fontSize = 0;  ///< in 1/96 of an inch; 0: that of the window
    friend bool operator==(const MarkupBlock&, const MarkupBlock&) = default;
};

/// A piece of text that is drawn in one go, or the end of a line.
struct MarkupRun {
    std::string text;
    bool bold = false;
    bool lineBreak = false;
    std::string operation;  ///< what the link runs; empty: no link
    MarkupBlock block;
    friend bool operator==(const MarkupRun&, const MarkupRun&) = default;
};

/// Reads the markup of message texts and captions:
///   <Bold>...</Bold>
///   <LineBreak/>
///   <Hyperlink Click='Operation'>...</Hyperlink>
///   <TextBlock TextWrapping='Wrap' TextAlignment='Right' FontSize='12'>...</TextBlock>:
///       a block on lines of its own; a block within another one inherits the attributes that it does not set
///   <![CDATA[...]]>: plain text
/// Carriage returns and line feeds end lines, too. Unknown attributes are ignored.
///
/// Texts are filled with names that users typed, usually without escaping. So there are no character
/// references, and everything that is not complete markup of these kinds is text: "A < B & <x>", a "<Bold>" that
/// nothing closes, a "<Bold>" within bold text, a "</Bold>" too many, a "<Hyperlink>" without its operation.
std::vector<MarkupRun> parseMarkup(std::string_view markup);

/// The text without its markup, lines ended by "\n".
std::string plainText(std::string_view markup);

/// Markup that shows the text unchanged, whatever it contains. Use it wherever a text that a user typed is
/// put between tags; it must not be put into a tag's attributes.
std::string asMarkupText(std::string_view text);

}  // namespace tsln
