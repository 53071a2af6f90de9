#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// A line of fixed text. "&" marks the mnemonic of the control that follows it in the layout.
class Label : public Control {
  public:
    Label(Screen& screen, std::string name, std::string caption)
        : Control(screen, std::move(name)), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string caption_;
};

/// A push button. Its caption's "&" marks the mnemonic.
class Button : public Control {
  public:
    enum class Role {
        Plain,
        Default,  ///< Enter presses it from anywhere on the screen.
        Cancel,   ///< Esc presses it from anywhere on the screen.
    };
    Button(Screen& screen, std::string name, std::string caption, Role role = Role::Plain)
        : Control(screen, std::move(name)), caption_(std::move(caption)), role_(role) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& caption() const noexcept { return caption_; }
    void setCaption(std::string caption);
    Role role() const noexcept { return role_; }
    void setRole(Role role);

    std::function<void()> onClick;
    /// The user presses the button; nothing happens while it is disabled.
    void userPress();
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string caption_;
    Role role_;
};

/// An edit field for text, of one line or of several.
class TextBox : public Control {
  public:
    TextBox(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& text() const noexcept { return text_; }
    void setText(std::string text);
    bool locked() const noexcept { return locked_; }
    void setLocked(bool locked);

    /// The selection, in characters of the text; a line end counts as two, CR and LF. Without a selection the
    /// length is 0 and the start is the position of the caret. The front end updates it after every user
    /// action.
    struct Selection {
        std::size_t start = 0;
        std::size_t length = 0;
        friend bool operator==(Selection, Selection) = default;
    };
    const Selection& selection() const noexcept { return selection_; }
    /// The part of the selection beyond the end of the text is dropped.
    void select(Selection selection);
    void selectAll();
    std::string selectedText() const;
    /// Replaces the selection by the text and puts the caret behind it.
    void insert(std::string_view text);
    /// How often the screen itself has set the selection. The front end compares it to detect a new one.
    int selectionsMade() const noexcept { return selectionsMade_; }

    bool multiLine = false;      ///< set before the screen is shown
    bool password = false;       ///< one line, shown masked; set before the screen is shown
    std::string cueText;         ///< shown grey in an empty one-line box; set before the screen is shown
    bool rightAligned = false;   ///< set before the screen is shown
    int widthInCharacters = 30;  ///< the least width; set before the screen is shown
    std::size_t maxLength = 0;   ///< in characters; 0 means no limit; set before the screen is shown

    std::function<void()> onChange;
    /// Enter was pressed. Returns true when the key is handled; false presses the default button.
    std::function<bool()> onEnterKey;
    /// The user opened the context menu, by a right click or the menu key. Empty: the platform's own menu opens.
    std::function<void()> onContextMenu;
    void userContextMenu();
    /// The user changed the text. Without `selection` the caret is at the end of the text.
    void userType(std::string text, std::optional<Selection> selection = std::nullopt);
    void userSelect(Selection selection);
    /// The user pressed Enter. Returns true when the key is handled, which includes a handler that throws.
    bool userEnter();
    /// Adds `Text`, `Locked`, `SelStart`, `SelLength` and `SelText`.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Selection withinText(Selection selection) const;

    std::string text_;
    Selection selection_;
    int selectionsMade_ = 0;
    bool locked_ = false;
};

/// A check box.
class CheckBox : public Control {
  public:
    CheckBox(Screen& screen, std::string name, std::string caption)
        : Control(screen, std::move(name)), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::string& caption() const noexcept { return caption_; }
    bool checked() const noexcept { return checked_; }
    void setChecked(bool checked);
    /// 0 for clear, 1 for ticked, as statements write it.
    std::int32_t value() const noexcept { return checked_ ? 1 : 0; }

    std::function<void()> onClick;
    /// The user ticks or clears the box.
    void userCheck(bool checked);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::string caption_;
    bool checked_ = false;
};

/// A list from which the user chooses one entry. Each entry has a text and a stored number. The host's
/// loaders fill it through AddItem, NewIndex and ItemData.
class ComboBox : public Control {
  public:
    ComboBox(Screen& screen, std::string name) : Control(screen, std::move(name)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    struct Entry {
        std::string text;
        std::int32_t itemData = 0;
    };
    const std::vector<Entry>& entries() const noexcept { return entries_; }
    /// Adds an entry at the end and returns its index.
    int addItem(std::string text, std::int32_t itemData = 0);
    void clear();
    /// -1 when nothing is chosen.
    int listIndex() const noexcept { return listIndex_; }
    /// An index outside the list clears the choice.
    void setListIndex(int index);
    /// Chooses the first entry with this stored number. Without such an entry returns false and changes
    /// nothing.
    bool choose(std::int32_t itemData);
    /// The stored number of the chosen entry; no value when nothing is chosen.
    std::optional<std::int32_t> chosen() const;
    /// The chosen entry's text, or the text typed into an editable list.
    const std::string& text() const noexcept { return text_; }
    void setText(std::string text);

    bool editable = false;       ///< free text allowed; set before the screen is shown
    int widthInCharacters = 24;  ///< set before the screen is shown

    std::function<void()> onClick;   ///< an entry was chosen
    std::function<void()> onChange;  ///< the user typed into an editable list
    void userChoose(int index);
    void userType(std::string text);
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    std::vector<Entry> entries_;
    int listIndex_ = -1;
    int newIndex_ = -1;
    std::string text_;
};

/// A frame around other controls, which the layout names. With an empty caption no border is drawn.
class Frame : public Control {
  public:
    Frame(Screen& screen, std::string name, std::string caption = {})
        : Control(screen, std::move(name)), caption_(std::move(caption)) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }
    const std::string& caption() const noexcept { return caption_; }

  private:
    std::string caption_;
};

}  // namespace tsln
