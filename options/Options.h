#pragma once

namespace tsln {
class Library;
}

namespace tsln::options {

/// Registers the screens of product options with the library.
void plugIn(Library& library);

}  // namespace tsln::options
