#pragma once

#include "bridge/Library.h"
#include "maintenance/ListDescription.h"

namespace tsln::lists {

/// Gives the library the lookup lists, their edit dialogs and what belongs to them.
void plugIn(Library& library);

/// "Exported to accounting", which several lists have last.
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
