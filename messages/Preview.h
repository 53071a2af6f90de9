#pragma once

#include <string>
#include <string_view>

namespace tsln::messages {

/// What the preview shows of a message, above its body.
struct MessageHeading {
    std::string_view subject, from, to;
    std::string_view sent;  ///< date and time, as the list shows it
};

/// The heading in the markup of captions: subject, sender and receiver, whatever they contain.
std::string previewMarkup(const MessageHeading& message);
/// What stands there while no message is selected.
std::string_view noPreviewMarkup();

/// Fills "[[subject]]", "[[from]]", "[[to]]" and "[[date]]" of a markup. The values are shown as they are: nothing in
/// them is taken for markup or replaced, and their line ends become "<LineBreak/>".
std::string fillMarkup(std::string_view markup, const MessageHeading& message);

}  // namespace tsln::messages
