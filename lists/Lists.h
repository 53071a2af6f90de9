#pragma once

#include "bridge/Library.h"
#include "maintenance/ListDescription.h"

namespace tsln::lists {

/// Registers the lookup lists, their dialogs and the related operations with the library.
void plugIn(Library& library);

/// The field "Exported to accounting". Several lists have it as their last field.
inline constexpr FieldDescription exportedField =
    fields::check("chkExported", "&Exported to accounting", "Exported", "<ex>");

extern const ListDescription termsList;
extern const ListDescription paymentMethodsList, shippingMethodsList, referralMethodsList;
extern const ListDescription jobTypesList, orderTypesList;
extern const ListDescription productTypesList, manufacturersList;
extern const ListDescription customerTypesList, groupsList, deliveryRangesList;
extern const ListDescription phoneLabelsList, emailLabelsList;
extern const ListDescription measurementRoomsList, measurementItemsList, measurementMountsList;
extern const ListDescription locationsList;
extern const ListDescription productTagsList, portfolioTagsList;
extern const ListDescription discountGroupsList, salesTaxCodesList, salesTaxGroupsList, accountsList;
extern const ListDescription fieldMeasureCriteriaList, quoteApprovalList, depositCriteriaList;

}  // namespace tsln::lists
