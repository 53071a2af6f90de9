#include "entities/MarginBox.h"

#include "automation/NumericText.h"
#include "bridge/NumericField.h"

namespace tsln::entities {
namespace {

constexpr NumericBounds bounds{.minimum = -100'000, .maximum = 10'000};
constexpr float percent = 100;

}  // namespace

MarginBox::MarginBox(HostScreen& screen, std::string name) : box(screen, std::move(name)) {
    box.rightAligned = true;
    box.widthInCharacters = 10;
    box.onLeave = [this] { correct(); };
}

void MarginBox::show(float fraction) {
    box.setText(numberText(fraction * percent));
    correct();
}

void MarginBox::correct() {
    checkDecimalField(box, bounds);
}

std::string MarginBox::fraction() const {
    float typed = 0;
    readNumber(box.text(), typed);  // an empty box, of a record that is not there, is 0
    return numberText(typed / percent);
}

}  // namespace tsln::entities
