#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "maintenance/ListScreen.h"

namespace tsln::messages {

extern const ListDescription templatesList;

/// The e-mail templates. Opened for one type, the list shows the templates of one type at a time; a choice above it,
/// which begins with the customers', selects the type.
class TemplatesList : public ListScreen {
  public:
    TemplatesList(Library& library, const ListDescription& description, bool oneType);

    ComboBox cboType{*this, "cboType"};

  protected:
    std::string loadStatement() const override;
    std::vector<Layout> furtherButtons() override;
    void added(std::int32_t ID) override { leaveOutOtherType(ID); }
    void cmdEdit_Click() override;
    void deleteSelected() override;

  private:
    void leaveOutOtherType(std::int32_t ID);

    const bool oneType_;
};

}  // namespace tsln::messages
