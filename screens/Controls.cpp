#include "screens/Controls.h"

#include <algorithm>

#include "screens/ControlMembers.h"

namespace tsln {
namespace {

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t characterCount(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char byte) { return !continuesCharacter(byte); }));
}

/// The byte at which the character of that index begins; the size of the text when there are fewer
/// characters.
std::size_t byteOffset(std::string_view utf8, std::size_t character) {
    std::size_t at = 0;
    for (; at < utf8.size(); ++at) {
        if (!continuesCharacter(utf8[at]) && character-- == 0) break;
    }
    return at;
}

/// A number of characters given by the host. A negative one raises HostError.
std::size_t countOf(const Control& control, const Variant& value) {
    const std::int32_t count = value.toLong();
    if (count < 0)
        throw HostError(code::badIndex, control.name(),
                        "There are no " + std::to_string(count) + " characters.");
    return static_cast<std::size_t>(count);
}

/// A text of several lines, pasted for example, with a blank for each line end.
std::string onOneLine(std::string text) {
    if (text.find_first_of("\r\n") == text.npos) return text;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        line += text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return line;
}

}  // namespace

// Label -----------------------------------------------------------------------------------------------

void Label::setCaption(std::string caption) {
    caption_ = std::move(caption);
    changed();
}

Variant Label::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<Label> members[] = {
        {"Caption", [](Label& self, Arguments) { return Variant(self.caption_); },
         [](Label& self, Arguments a) { self.setCaption(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

// Button ----------------------------------------------------------------------------------------------

void Button::setCaption(std::string caption) {
    caption_ = std::move(caption);
    changed();
}

void Button::setRole(Role role) {
    if (role_ == role) return;
    role_ = role;
    changed();
}

void Button::userPress() {
    if (enabled() && visible()) fire(onClick);
}

Variant Button::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<Button> members[] = {
        {"Caption", [](Button& self, Arguments) { return Variant(self.caption_); },
         [](Button& self, Arguments a) { self.setCaption(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

// TextBox ---------------------------------------------------------------------------------------------

void TextBox::setText(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    selection_ = {};
    changed();
    fire(onChange);
}

TextBox::Selection TextBox::withinText(Selection selection) const {
    const std::size_t length = characterCount(text_);
    selection.start = std::min(selection.start, length);
    selection.length = std::min(selection.length, length - selection.start);
    return selection;
}

void TextBox::select(Selection selection) {
    selection_ = withinText(selection);
    ++selectionsMade_;
    changed();
}

void TextBox::selectAll() {
    select({0, characterCount(text_)});
}

std::string TextBox::selectedText() const {
    const std::size_t from = byteOffset(text_, selection_.start);
    return text_.substr(from, byteOffset(text_, selection_.start + selection_.length) - from);
}

void TextBox::insert(std::string_view text) {
    const std::size_t from = byteOffset(text_, selection_.start);
    const std::size_t to = byteOffset(text_, selection_.start + selection_.length);
    const std::size_t caret = selection_.start + characterCount(text);
    const bool isChange = std::string_view(text_).substr(from, to - from) != text;
    text_.replace(from, to - from, text);
    select({caret, 0});
    if (isChange) fire(onChange);
}

void TextBox::setLocked(bool locked) {
    locked_ = locked;
    changed();
}

void TextBox::userType(std::string text, std::optional<Selection> selection) {
    if (!multiLine) text = onOneLine(std::move(text));
    if (locked_ || !enabled() || text_ == text) return;
    text_ = std::move(text);
    selection_ = withinText(selection.value_or(Selection{std::string::npos, 0}));
    fire(onChange);
}

void TextBox::userSelect(Selection selection) {
    selection_ = withinText(selection);
}

void TextBox::userContextMenu() {
    fire(onContextMenu);
}

bool TextBox::userEnter() {
    if (!enabled() || !onEnterKey) return false;
    bool used = true;
    fire([&] { used = onEnterKey(); });
    return used;
}

Variant TextBox::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<TextBox> members[] = {
        {"Text", [](TextBox& self, Arguments) { return Variant(self.text_); },
         [](TextBox& self, Arguments a) { self.setText(a[0].toText()); }},
        {"Locked", [](TextBox& self, Arguments) { return Variant(self.locked_); },
         [](TextBox& self, Arguments a) { self.setLocked(a[0].toBoolean()); }},
        {"SelStart",
         [](TextBox& self, Arguments) { return Variant(static_cast<std::int32_t>(self.selection_.start)); },
         [](TextBox& self, Arguments a) {
             self.select({countOf(self, a[0]), 0});
         }},
        {"SelLength",
         [](TextBox& self, Arguments) { return Variant(static_cast<std::int32_t>(self.selection_.length)); },
         [](TextBox& self, Arguments a) {
             self.select({self.selection_.start, countOf(self, a[0])});
         }},
        {"SelText", [](TextBox& self, Arguments) { return Variant(self.selectedText()); },
         [](TextBox& self, Arguments a) { self.insert(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

// CheckBox --------------------------------------------------------------------------------------------

void CheckBox::setChecked(bool checked) {
    if (checked_ == checked) return;
    checked_ = checked;
    changed();
}

void CheckBox::userCheck(bool checked) {
    if (!enabled()) return;
    checked_ = checked;
    fire(onClick);
}

Variant CheckBox::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr Member<CheckBox> members[] = {
        {"Value", [](CheckBox& self, Arguments) { return Variant(self.value()); },
         [](CheckBox& self, Arguments a) { self.setChecked(a[0].toLong() != 0); }},
        {"Caption", [](CheckBox& self, Arguments) { return Variant(self.caption_); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

// ComboBox --------------------------------------------------------------------------------------------

int ComboBox::addItem(std::string text, std::int32_t itemData) {
    entries_.push_back({std::move(text), itemData});
    newIndex_ = static_cast<int>(entries_.size()) - 1;
    changed();
    return newIndex_;
}

void ComboBox::clear() {
    entries_.clear();
    listIndex_ = newIndex_ = -1;
    text_.clear();
    changed();
}

void ComboBox::setListIndex(int index) {
    const bool exists = index >= 0 && index < static_cast<int>(entries_.size());
    listIndex_ = exists ? index : -1;
    text_ = exists ? entries_[static_cast<std::size_t>(index)].text : std::string();
    changed();
}

bool ComboBox::choose(std::int32_t itemData) {
    const auto found = std::ranges::find(entries_, itemData, &Entry::itemData);
    if (found == entries_.end()) return false;
    setListIndex(static_cast<int>(found - entries_.begin()));
    return true;
}

std::optional<std::int32_t> ComboBox::chosen() const {
    if (listIndex_ < 0) return std::nullopt;
    return entries_[static_cast<std::size_t>(listIndex_)].itemData;
}

void ComboBox::setText(std::string text) {
    const auto found = std::ranges::find(entries_, text, &Entry::text);
    listIndex_ = found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
    if (editable || listIndex_ >= 0) text_ = std::move(text);
    changed();
}

void ComboBox::userChoose(int index) {
    if (!enabled()) return;
    setListIndex(index);
    fire(onClick);
}

void ComboBox::userType(std::string text) {
    text = onOneLine(std::move(text));
    if (!enabled() || !editable || text_ == text) return;
    text_ = std::move(text);
    listIndex_ = -1;
    fire(onChange);
}

Variant ComboBox::invoke(std::string_view member, Access access, Arguments arguments) {
    static constexpr auto entry = [](ComboBox& self, const Variant& index) -> Entry& {
        const auto i = index.toLong();
        if (i < 0 || i >= static_cast<std::int32_t>(self.entries_.size())) {
            throw HostError(code::badIndex, self.name(), "The list has no entry " + std::to_string(i) + ".");
        }
        return self.entries_[static_cast<std::size_t>(i)];
    };
    static constexpr Member<ComboBox> members[] = {
        {"AddItem",
         [](ComboBox& self, Arguments a) {
             a.require(1, 2);
             if (!a.has(1)) return Variant(self.addItem(a[0].toText()));
             const auto at =
                 std::clamp<std::int32_t>(a[1].toLong(), 0, static_cast<std::int32_t>(self.entries_.size()));
             self.entries_.insert(self.entries_.begin() + at, Entry{a[0].toText()});
             if (self.listIndex_ >= at) ++self.listIndex_;
             self.newIndex_ = at;
             self.changed();
             return Variant(at);
         }},
        {"RemoveItem",
         [](ComboBox& self, Arguments a) {
             a.require(1, 1);
             const auto at = &entry(self, a[0]) - self.entries_.data();
             self.entries_.erase(self.entries_.begin() + at);
             if (self.listIndex_ == at) {
                 self.setListIndex(-1);
             } else if (self.listIndex_ > at) {
                 --self.listIndex_;
             }
             self.newIndex_ = -1;
             self.changed();
             return Variant();
         }},
        {"Clear",
         [](ComboBox& self, Arguments) {
             self.clear();
             return Variant();
         }},
        {"ItemData", [](ComboBox& self, Arguments a) { return Variant(entry(self, a[0]).itemData); },
         [](ComboBox& self, Arguments a) {
             a.require(2, 2);
             entry(self, a[0]).itemData = a[1].toLong();
         }},
        {"List", [](ComboBox& self, Arguments a) { return Variant(entry(self, a[0]).text); },
         [](ComboBox& self, Arguments a) {
             a.require(2, 2);
             entry(self, a[0]).text = a[1].toText();
             self.changed();
         }},
        {"ListCount",
         [](ComboBox& self, Arguments) { return Variant(static_cast<std::int32_t>(self.entries_.size())); }},
        {"ListIndex", [](ComboBox& self, Arguments) { return Variant(self.listIndex_); },
         [](ComboBox& self, Arguments a) { self.setListIndex(a[0].toLong()); }},
        {"NewIndex", [](ComboBox& self, Arguments) { return Variant(self.newIndex_); }},
        {"Text", [](ComboBox& self, Arguments) { return Variant(self.text_); },
         [](ComboBox& self, Arguments a) { self.setText(a[0].toText()); }},
    };
    return invokeControl(*this, members, member, access, arguments);
}

}  // namespace tsln
