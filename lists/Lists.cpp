#include "lists/Lists.h"

#include "lists/EditDialog.h"
#include "lists/ListScreen.h"

namespace tsln::lists {
namespace {

struct ListEntry {
    Operation operation;
    const ListDescription& description;
};
struct DialogEntry {
    Operation operation;
    const EditDescription& description;
};

const ListEntry listEntries[] = {
    {Operation::ShowTerms, termsList},
};
const DialogEntry dialogEntries[] = {
    {Operation::ShowEditTerms, termsDialog},
};

}  // namespace

void plugIn(Library& library) {
    for (const auto& [operation, description] : listEntries) {
        library.plugIn(operation, [&description](Library& self, Arguments) {
            return Variant(showList(self, description));
        });
    }
    for (const auto& [operation, description] : dialogEntries) {
        library.plugIn(operation, [&description](Library& self, Arguments a) {
            return Variant(showDialog(self, description, a[0].toLong()));
        });
    }
}

}  // namespace tsln::lists
