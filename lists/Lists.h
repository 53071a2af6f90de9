#pragma once

#include "bridge/Library.h"
#include "lists/ListDescription.h"

namespace tsln::lists {

/// Gives the library the lookup lists and their edit dialogs.
void plugIn(Library& library);

extern const ListDescription termsList;
extern const EditDescription termsDialog;

}  // namespace tsln::lists
