#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <wx/gdicmn.h>

class wxKeyEvent;
class wxString;
class wxWindow;

namespace tsln::desktop {

/// The window of a report control's rows: a list for reading or a grid to edit in. It draws from the control
/// and reports what the user does through `events`, which are set before the first showReport().
class ReportWindow {
  public:
    virtual ~ReportWindow() = default;

    struct Events {
        std::function<void()> selection;  ///< the selection or the focused row may have changed
        std::function<void(std::size_t row)> activated;
        std::function<void(std::size_t column)> headerClicked;
        std::function<void(const wxPoint& onScreen)> contextMenu;    ///< asked for by the pointer
        std::function<void(const std::function<void()>& what)> act;  ///< reports another act to the control
    };
    Events events;

    virtual wxWindow& window() = 0;
    /// The inner window that holds the rows and takes the input.
    virtual wxWindow& rowsWindow() const = 0;
    /// Shows the control's columns, rows, selection, focus and sort order. Sends the same events as the user's
    /// own actions; the caller has to ignore them.
    virtual void showReport() = 0;
    /// Passes the user's column order and widths and the text of an open editor to the control.
    virtual void settle() {}

    virtual std::vector<std::size_t> selection() const = 0;
    virtual std::optional<std::size_t> focusedRow() const = 0;
    /// Selects just this row and brings it into view.
    virtual void goTo(std::size_t row) = 0;
    /// The row at a point of the screen, if there is one.
    virtual std::optional<std::size_t> rowAt(const wxPoint& onScreen) const = 0;
    /// The lower left corner of a row on the screen; nothing when it is not in view.
    virtual std::optional<wxPoint> belowRow(std::size_t row) const = 0;
    /// The width at which every column shows its caption whole and has the width it asks for, in pixels.
    virtual int naturalWidth() const = 0;

    /// An editor is open in a cell and has the keyboard.
    virtual bool isEditing() const { return false; }
    /// Handles a key that edits cells. True when the key needs no further handling.
    virtual bool takesKey([[maybe_unused]] const wxKeyEvent& key) { return false; }
    /// Handles a letter typed on the focused row. True when it was entered into a cell.
    virtual bool takesLetter([[maybe_unused]] const wxString& letter) { return false; }
};

}  // namespace tsln::desktop
