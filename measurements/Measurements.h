#pragma once

namespace tsln {
class Library;
}

/// What salespersons and installers measure at a customer's: the list, its dialog and the choice of a location.
namespace tsln::measurements {

/// Registers the operations of the customer measurements with the library.
void plugIn(Library& library);

}  // namespace tsln::measurements
