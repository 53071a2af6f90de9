#include "lists/Lists.h"

namespace tsln::lists {

const ListDescription deliveryRangesList{
    .open = Operation::ShowDeliveryRanges,
    .edit = Operation::ShowEditDeliveryRanges,
    .screenName = "frmDeliveryRanges",
    .caption = "Delivery Ranges",
    .table = "DeliveryRanges",
    .orderBy = "Range",
    .columns = {{"Delivery Range", 280, "Range"}},
    .securityArea = 111,
    .listKind = 14,
    .moveReferencesCode = 7,
    .defaults = DefaultSet{"Would you like to install the default delivery ranges?", "TSLN50_DeliveryRanges"},
    .deleteFailure = "There was a problem deleting one or more delivery range(s).",
    .dialog = {
        .newCaption = "New Delivery Range",
        .editCaption = "Edit Delivery Range",
        .fields = {fields::name("txtRange", "&Delivery range:", "Range", "<m>", "You must enter a valid delivery range.", "A delivery range with this name already exists.")},
        .saveFailure = "There was a problem saving this delivery range.",
    }};

}  // namespace tsln::lists
