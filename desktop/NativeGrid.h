#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include <wx/dataview.h>

namespace tsln::desktop {

/// The editor that a data view opens in a cell. It must not outlive the data view.
class CellEditor {
  public:
    explicit CellEditor(wxDataViewCtrl& grid) : grid_(grid) {}
#ifdef __WXGTK__
    ~CellEditor();
#else
    ~CellEditor() = default;
#endif
    CellEditor(const CellEditor&) = delete;
    CellEditor& operator=(const CellEditor&) = delete;

    /// Sets up editing in a column of the data view: at most `maxLength` characters can be typed (0: any
    /// number), and moving the focus elsewhere keeps the typed text.
    void prepare(wxDataViewColumn& column, std::size_t maxLength);
    bool isOpen() const;
    /// Ends editing and keeps the typed text.
    void accept();
    /// Replaces the text in the open editor and sets the caret behind it.
    void replaceText(const wxString& text);
    /// Opens the list of the choices in the open editor.
    void openChoices();

  private:
    wxDataViewCtrl& grid_;
#ifdef __WXGTK__
    void* open_ = nullptr;  // the platform's widget
    bool menuOpen_ = false;
#endif
};

// Functions that the toolkit lacks or that differ between its platforms.

/// Draws the background of a cell's attributes, which the toolkit draws for text alone; an invalid colour
/// draws none.
void setBackground(wxDataViewRenderer& renderer, const wxColour& colour);
/// A renderer whose cells have the background of their attributes.
template <class Renderer>
class Striped : public Renderer {
  public:
    using Renderer::Renderer;

  protected:
    void SetAttr(const wxDataViewItemAttr& attr) override {
        Renderer::SetAttr(attr);
        setBackground(*this, attr.HasBackgroundColour() ? attr.GetBackgroundColour() : wxColour());
    }
};

/// Runs `clicked` with the model's column when the user has clicked a header, not dragged it. Called once,
/// after all columns were added.
void onHeaderClick(wxDataViewCtrl& grid, const std::function<void(unsigned column)>& clicked);
/// Draws the arrow of the sort order; a null column draws none.
void showSortArrow(wxDataViewCtrl& grid, const wxDataViewColumn* column, bool ascending);
/// Lets the next keys and clicks select several rows, or one. Where several can be selected, the toolkit walks
/// through all rows for each selection; so only acts with Ctrl or Shift are prepared for it.
void allowSeveral(wxDataViewCtrl& grid, bool several);
/// Selects just this row and gives it the keyboard, so that Shift extends the selection from there.
void selectOnly(wxDataViewCtrl& grid, const wxDataViewItem& item, unsigned row,
                const wxDataViewColumn* column);
/// Scrolls a row into view at once, without the toolkit's animation, which other changes of the rows would stop
/// half-way.
void scrollTo(wxDataViewCtrl& grid, const wxDataViewItem& item, unsigned row);
/// The rows that are wholly or partly in view: the first one and the one after the last; equal when there are none.
struct VisibleRows {
    unsigned first = 0, end = 0;
    bool contains(std::size_t row) const { return row >= first && row < end; }
};
VisibleRows visibleRows(const wxDataViewCtrl& grid);
/// After the rows were replaced: scrolls so that this row is the first in view, where the toolkit does not keep it.
void scrollBackTo(wxDataViewCtrl& grid, unsigned firstRow);
/// Draws the rows in view again, with the texts that they have now.
void redrawRows(wxDataViewCtrl& grid);
/// The row at a point of the data view's client area, if there is one.
std::optional<unsigned> rowAt(const wxDataViewCtrl& grid, const wxPoint& point);
/// The width a column was given by the program or the user, without the width added by stretching.
int givenWidth(const wxDataViewColumn& column);
/// Lets the column take the remaining width.
void takeRemainingWidth(wxDataViewColumn& column);

}  // namespace tsln::desktop
