#include "entities/AddressBlock.h"

namespace tsln::entities {
namespace {

/// How the columns of an address end.
constexpr std::string_view columnEnds[] = {"Address1", "Address2", "City", "State", "Zip", "Country"};

constexpr int boxWidth = 34;  // characters

}  // namespace

AddressBlock::AddressBlock(HostScreen& screen, const AddressNames& names, bool& validate)
    : box(screen, std::string(names.box)), screen_(screen), names_(names), validate_(validate) {
    box.multiLine = true;
    box.widthInCharacters = boxWidth;
}

void AddressBlock::show(const Recordset& row) {
    Address address;
    for (std::size_t i = 0; i < address.size(); ++i)
        address[i] = row.text(std::string(names_.prefix) + std::string(columnEnds[i]));
    box.setText(screen_.host().CombineAddress(address));
}

void AddressBlock::left() {
    if (box.text().empty()) validate_ = true;
    std::string text = box.text();
    screen_.host().ParseAddress(text, validate_);
    box.setText(std::move(text));
}

void AddressBlock::addTags(StatementTags& tags) {
    std::string text = box.text();
    const Address parts = screen_.host().ParseAddress(text, validate_);
    for (std::size_t i = 0; i < parts.size(); ++i)
        tags.text(names_.tags[i], parts[i]);
}

}  // namespace tsln::entities
