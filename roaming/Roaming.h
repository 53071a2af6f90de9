#pragma once

namespace tsln {
class Library;
}

/// Roaming workstations, which work on a copy of the company: their list and dialog on the main system, and on the
/// workstation its identity, its initial synchronization and its management.
namespace tsln::roaming {

/// Registers the operations of the roaming workstations with the library.
void plugIn(Library& library);

}  // namespace tsln::roaming
