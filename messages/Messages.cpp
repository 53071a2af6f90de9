#include "messages/Messages.h"

#include "messages/SentMessages.h"
#include "messages/TemplateEditor.h"
#include "messages/TemplatesList.h"

namespace tsln::messages {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowEmailTemplates, [](Library& self, Arguments a) {
        showList<TemplatesList>(self, templatesList, a[0].toBoolean());
        return Variant();
    });
    library.plugIn(Operation::ShowEditEmailTemplate,
                   [](Library& self, Arguments a) { return Variant(editTemplate(self, a[0].toLong())); });
    library.plugIn(Operation::ShowSentMessages, [](Library& self, Arguments) {
        showList<SentMessages>(self, sentMessagesList);
        return Variant();
    });
}

}  // namespace tsln::messages
