#pragma once

namespace tsln {
class Library;
}

/// The editors of the company's master records: vendors and those that follow their pattern.
namespace tsln::entities {

/// Registers the operations of the editors with the library.
void plugIn(Library& library);

}  // namespace tsln::entities
