#pragma once

namespace tsln {
class Library;
}

namespace tsln::migration {

/// Plugs in the operation that brings a company of version 4.2 into the open one.
void plugIn(Library& library);

}  // namespace tsln::migration
