#pragma once

namespace tsln {

class Library;

/// Gives the library every screen of the module: the one place that names all rooms of screens.
void plugInModule(Library& library);

}  // namespace tsln
