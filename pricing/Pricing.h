#pragma once

namespace tsln {
class Library;
}

/// What an order costs beyond its products, and the tools that change many records at once.
namespace tsln::pricing {

/// Registers the operations of this room with the library.
void plugIn(Library& library);

}  // namespace tsln::pricing
