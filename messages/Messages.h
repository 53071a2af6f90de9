#pragma once

namespace tsln {
class Library;
}

/// E-mail templates and the log of the messages that were sent.
namespace tsln::messages {

/// Registers the operations of templates and messages with the library.
void plugIn(Library& library);

}  // namespace tsln::messages
