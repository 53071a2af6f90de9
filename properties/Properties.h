#pragma once

namespace tsln {
class Library;
}

namespace tsln::properties {

/// Registers the screen of the database's properties with the library.
void plugIn(Library& library);

}  // namespace tsln::properties
