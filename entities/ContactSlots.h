#pragma once

#include <deque>
#include <vector>

#include "bridge/HostScreen.h"
#include "entities/StatementTags.h"
#include "screens/Controls.h"
#include "shared/Connection.h"

namespace tsln::entities {

struct ContactSlotNames;

/// The labelled phone numbers and e-mail addresses of a record: each a label, chosen from the company's or
/// typed, and the number. Their controls are cboPhone1Label, txtPhone1 and so on.
class ContactSlots {
  public:
    /// Up to four phones and two e-mail addresses.
    ContactSlots(HostScreen& screen, int phones, int emails);

    /// Fills every label's list.
    void loadLabels();
    /// The labels that new records get by the company's options.
    void showDefaultLabels();
    void show(const Recordset& row);
    /// Takes the blanks off the numbers' ends.
    void trim();
    void addTags(StatementTags& tags) const;
    void setEnabled(bool enabled);
    /// A row for each, to stand in a form.
    std::vector<Layout> fields();

  private:
    struct Slot {
        Slot(HostScreen& screen, const ContactSlotNames& slotNames);
        const ContactSlotNames& names;
        ComboBox label;
        TextBox box;
    };
    HostScreen& screen_;
    std::deque<Slot> slots_;  // controls stay where they are
};

}  // namespace tsln::entities
