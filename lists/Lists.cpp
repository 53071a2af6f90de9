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
    for (const ListEntry& entry : listEntries) {
        library.plugIn(entry.operation, [&entry](Library& self, Arguments) {
            return Variant(showList(self, entry.description));
        });
    }
    for (const DialogEntry& entry : dialogEntries) {
        library.plugIn(entry.operation, [&entry](Library& self, Arguments a) {
            return Variant(showDialog(self, entry.description, a[0].toLong()));
        });
    }
}

}  // namespace tsln::lists
