#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/Object.h"

namespace tsln::bench {

/// A host that answers every query with the prepared text, which it hands over. The user holds every right.
class PreparedHost : public Object, public std::enable_shared_from_this<PreparedHost> {
  public:
    std::string text;
    Variant invoke(std::string_view member, Access, Arguments) override {
        if (sameName(member, "xml")) return std::exchange(text, {});
        if (sameName(member, "CanDo")) return true;
        if (sameName(member, "FixDateForSQLInsert")) return "2024-03-04T00:00:00";
        return ObjectPtr(shared_from_this());  // the sub-objects and the document
    }
};

}  // namespace tsln::bench
