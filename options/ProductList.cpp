#include "options/ProductList.h"

#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {

void ProductList::listLoaded() {
    if (named_ || !isOfOneProduct()) return;
    named_ = true;
    lblProduct.setCaption(modSharedSQL::format(
        "Product: {0}", modSharedStrings::asCaption(host().common().GetProductNameFromID(productID_))));
}

}  // namespace tsln::options
