#include "desktop/NativeGrid.h"

#include <algorithm>
#include <utility>

#include <wx/textctrl.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif
#ifdef __WXMSW__
#include <wx/choice.h>
#include <wx/msw/private.h>
#endif

#include "desktop/Text.h"

namespace tsln::desktop {

#ifdef __WXGTK__

namespace {

GtkTreeView* treeOf(wxDataViewCtrl& grid) {
    return GTK_TREE_VIEW(grid.GtkGetTreeView());
}

GtkTreeViewColumn* handleOf(const wxDataViewColumn& column) {
    return GTK_TREE_VIEW_COLUMN(column.GetGtkHandle());
}

/// Connects a function object to a signal of the toolkit; it is deleted with the object that sends it.
/// `Arguments`: those of the signal, the sender first.
template <class Result, class... Arguments>
void connect(gpointer sender, const char* signal, std::function<Result(Arguments...)> handler,
             GConnectFlags flags = GConnectFlags(0)) {
    using Handler = std::function<Result(Arguments...)>;
    g_signal_connect_data(
        sender, signal, G_CALLBACK(+[](Arguments... arguments, gpointer data) -> Result {
            return (*static_cast<Handler*>(data))(arguments...);
        }),
        new Handler(std::move(handler)), [](gpointer data, GClosure*) { delete static_cast<Handler*>(data); },
        flags);
}

/// The widget or one inside it has the keyboard.
bool hasFocus(GtkWidget* widget) {
    GtkWidget* const top = gtk_widget_get_toplevel(widget);
    GtkWidget* const focus = GTK_IS_WINDOW(top) ? gtk_window_get_focus(GTK_WINDOW(top)) : nullptr;
    return focus && (focus == widget || gtk_widget_is_ancestor(focus, widget));
}

}  // namespace

CellEditor::~CellEditor() {
    if (open_) g_object_set(open_, "editing-canceled", TRUE, nullptr);
    accept();
}

void CellEditor::prepare(wxDataViewColumn& column, std::size_t maxLength) {
    using Started = std::function<void(GtkCellRenderer*, GtkCellEditable*, const char*)>;
    connect(column.GetRenderer()->GetGtkHandle(), "editing-started",
            Started([this, maxLength](GtkCellRenderer*, GtkCellEditable* editor, const char*) {
                open_ = editor;
                menuOpen_ = false;
                connect(editor, "remove-widget",
                        std::function<void(GtkCellEditable*)>([this](GtkCellEditable* removed) {
                            open_ = nullptr;
                            // The toolkit returns the keyboard only from editors without inner widgets.
                            if (hasFocus(GTK_WIDGET(removed)))
                                grid_.CallAfter([this] {
                                    if (!open_) grid_.SetFocus();
                                });
                        }));
                if (!GTK_IS_ENTRY(editor)) return;
                gtk_entry_set_max_length(GTK_ENTRY(editor), static_cast<int>(maxLength));
                connect(editor, "populate-popup",
                        std::function<void(GtkEntry*, GtkWidget*)>(
                            [this](GtkEntry*, GtkWidget*) { menuOpen_ = true; }));
                // The toolkit's own handler, which runs after this one, would discard the typed text.
                connect(editor, "focus-out-event",
                        std::function<gboolean(GtkWidget*, GdkEvent*)>([this](GtkWidget*, GdkEvent*) {
                            if (!std::exchange(menuOpen_, false)) accept();
                            return FALSE;
                        }));
            }));
}

bool CellEditor::isOpen() const {
    return open_ != nullptr;
}

void CellEditor::accept() {
    if (!open_) return;
    GtkCellEditable* const editor = GTK_CELL_EDITABLE(std::exchange(open_, nullptr));
    g_object_ref(editor);
    gtk_cell_editable_editing_done(editor);
    gtk_cell_editable_remove_widget(editor);
    g_object_unref(editor);
}

void CellEditor::replaceText(const wxString& text) {
    if (!open_ || !GTK_IS_ENTRY(open_)) return;
    gtk_entry_set_text(GTK_ENTRY(open_), text.utf8_str());
    gtk_editable_set_position(GTK_EDITABLE(open_), -1);
}

void CellEditor::openChoices() {
    if (open_ && GTK_IS_COMBO_BOX(open_)) gtk_combo_box_popup(GTK_COMBO_BOX(open_));
}

void setBackground(wxDataViewRenderer& renderer, const wxColour& colour) {
    GtkCellRenderer* const handle = renderer.GetGtkHandle();
    if (colour.IsOk()) {
        g_object_set(handle, "cell-background-rgba", static_cast<const GdkRGBA*>(colour), nullptr);
    } else {
        g_object_set(handle, "cell-background-set", FALSE, nullptr);
    }
}

void onHeaderClick(wxDataViewCtrl& grid, const std::function<void(unsigned column)>& clicked) {
    for (unsigned i = 0; i < grid.GetColumnCount(); ++i) {
        const unsigned column = grid.GetColumn(i)->GetModelColumn();
        gtk_tree_view_column_set_clickable(handleOf(*grid.GetColumn(i)), TRUE);
        connect(handleOf(*grid.GetColumn(i)), "clicked",
                std::function<void(GtkTreeViewColumn*)>([=](GtkTreeViewColumn*) { clicked(column); }));
    }
}

void showSortArrow(wxDataViewCtrl& grid, const wxDataViewColumn* column, bool ascending) {
    for (unsigned i = 0; i < grid.GetColumnCount(); ++i) {
        GtkTreeViewColumn* const handle = handleOf(*grid.GetColumn(i));
        gtk_tree_view_column_set_sort_indicator(handle, grid.GetColumn(i) == column);
        // Ascending is the arrow that points down.
        gtk_tree_view_column_set_sort_order(handle, ascending ? GTK_SORT_ASCENDING : GTK_SORT_DESCENDING);
    }
}

void allowSeveral(wxDataViewCtrl& grid, bool several) {
    gtk_tree_selection_set_mode(gtk_tree_view_get_selection(treeOf(grid)),
                                several ? GTK_SELECTION_MULTIPLE : GTK_SELECTION_SINGLE);
}

void selectOnly(wxDataViewCtrl& grid, const wxDataViewItem&, unsigned row, const wxDataViewColumn* column) {
    allowSeveral(grid, false);
    GtkTreePath* const path = gtk_tree_path_new_from_indices(static_cast<int>(row), -1);
    gtk_tree_view_set_cursor(treeOf(grid), path, column ? handleOf(*column) : nullptr, FALSE);
    gtk_tree_path_free(path);
}

void scrollTo(wxDataViewCtrl& grid, const wxDataViewItem& item, unsigned row) {
    GtkTreeView* const tree = treeOf(grid);
    GdkRectangle area{};
    if (gtk_widget_get_mapped(GTK_WIDGET(tree))) {
        GtkTreePath* const path = gtk_tree_path_new_from_indices(static_cast<int>(row), -1);
        gtk_tree_view_get_background_area(tree, path, nullptr, &area);
        gtk_tree_path_free(path);
    }
    if (area.height == 0)
        return grid.EnsureVisible(item);  // no place yet; the toolkit scrolls when it has one
    int top = 0;
    gtk_tree_view_convert_bin_window_to_tree_coords(tree, 0, area.y, nullptr, &top);
    GtkAdjustment* const scrolling = gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(tree));
    const double last = top + area.height - gtk_adjustment_get_page_size(scrolling);
    gtk_adjustment_set_value(scrolling, std::clamp(gtk_adjustment_get_value(scrolling),
                                                   std::min<double>(last, top), static_cast<double>(top)));
}

VisibleRows visibleRows(const wxDataViewCtrl& grid) {
    GtkTreePath* first = nullptr;
    GtkTreePath* last = nullptr;
    if (!gtk_tree_view_get_visible_range(treeOf(const_cast<wxDataViewCtrl&>(grid)), &first, &last)) return {};
    const VisibleRows rows{static_cast<unsigned>(gtk_tree_path_get_indices(first)[0]),
                           static_cast<unsigned>(gtk_tree_path_get_indices(last)[0]) + 1};
    gtk_tree_path_free(first);
    gtk_tree_path_free(last);
    return rows;
}

void scrollBackTo(wxDataViewCtrl& grid, unsigned firstRow) {
    GtkTreePath* const path = gtk_tree_path_new_from_indices(static_cast<int>(firstRow), -1);
    gtk_tree_view_scroll_to_cell(treeOf(grid), path, nullptr, TRUE, 0, 0);
    gtk_tree_path_free(path);
}

void redrawRows(wxDataViewCtrl& grid) {
    // GTK keeps the picture of the rows when only the window around them is refreshed.
    gtk_widget_queue_draw(GTK_WIDGET(treeOf(grid)));
}

std::optional<unsigned> rowAt(const wxDataViewCtrl& grid, const wxPoint& point) {
    GtkTreeView* const tree = treeOf(const_cast<wxDataViewCtrl&>(grid));
    int x = 0;
    int y = 0;
    gtk_tree_view_convert_widget_to_bin_window_coords(tree, point.x, point.y, &x, &y);
    GtkTreePath* path = nullptr;
    if (y < 0 || !gtk_tree_view_get_path_at_pos(tree, x, y, &path, nullptr, nullptr, nullptr)) return {};
    const auto row = static_cast<unsigned>(gtk_tree_path_get_indices(path)[0]);
    gtk_tree_path_free(path);
    return row;
}

int givenWidth(const wxDataViewColumn& column) {
    return gtk_tree_view_column_get_fixed_width(handleOf(column));
}

void takeRemainingWidth(wxDataViewColumn& column) {
    gtk_tree_view_column_set_expand(handleOf(column), TRUE);
}

#else

namespace {

wxWindow* openEditor(const wxDataViewCtrl& grid) {
    for (unsigned i = 0; i < grid.GetColumnCount(); ++i) {
        if (wxWindow* editor = grid.GetColumn(i)->GetRenderer()->GetEditorCtrl()) return editor;
    }
    return nullptr;
}

}  // namespace

void CellEditor::prepare(wxDataViewColumn& column, std::size_t maxLength) {
    // On this platform the toolkit itself keeps the typed text when the focus moves.
    grid_.Bind(wxEVT_DATAVIEW_ITEM_EDITING_STARTED, [this, &column, maxLength](wxDataViewEvent& event) {
        event.Skip();
        if (event.GetDataViewColumn() != &column || maxLength == 0) return;
        if (auto* text = dynamic_cast<wxTextCtrl*>(openEditor(grid_))) text->SetMaxLength(maxLength);
    });
}

bool CellEditor::isOpen() const {
    return openEditor(grid_) != nullptr;
}

void CellEditor::accept() {
    for (unsigned i = 0; i < grid_.GetColumnCount(); ++i) {
        wxDataViewRenderer* const renderer = grid_.GetColumn(i)->GetRenderer();
        if (renderer->GetEditorCtrl()) renderer->FinishEditing();
    }
}

void CellEditor::replaceText(const wxString& text) {
    auto* editor = dynamic_cast<wxTextCtrl*>(openEditor(grid_));
    if (!editor) return;
    editor->ChangeValue(text);
    editor->SetInsertionPointEnd();
}

void CellEditor::openChoices() {
#ifdef __WXMSW__
    if (auto* choice = dynamic_cast<wxChoice*>(openEditor(grid_)))
        ::SendMessage(GetHwndOf(choice), CB_SHOWDROPDOWN, TRUE, 0);
#endif
}

void setBackground(wxDataViewRenderer&, const wxColour&) {}  // the data view draws it itself

void onHeaderClick(wxDataViewCtrl& grid, const std::function<void(unsigned column)>& clicked) {
    grid.Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, [clicked](wxDataViewEvent& event) {
        if (event.GetDataViewColumn()) clicked(event.GetDataViewColumn()->GetModelColumn());
    });
}

void showSortArrow(wxDataViewCtrl& grid, const wxDataViewColumn* column, bool ascending) {
    for (unsigned i = 0; i < grid.GetColumnCount(); ++i) {
        wxDataViewColumn* const at = grid.GetColumn(i);
        if (at == column) {
            at->SetSortOrder(ascending);
        } else if (at->IsSortKey()) {
            at->UnsetAsSortKey();
        }
    }
}

void allowSeveral(wxDataViewCtrl&, bool) {}  // the toolkit keeps the selected rows only

void selectOnly(wxDataViewCtrl& grid, const wxDataViewItem& item, unsigned, const wxDataViewColumn*) {
    grid.UnselectAll();
    grid.Select(item);
    grid.SetCurrentItem(item);
}

void scrollTo(wxDataViewCtrl& grid, const wxDataViewItem& item, unsigned) {
    grid.EnsureVisible(item);
}

VisibleRows visibleRows(const wxDataViewCtrl& grid) {
    const wxDataViewItem top = grid.GetTopItem();
    if (!top.IsOk()) return {};
    const unsigned first = static_cast<const wxDataViewVirtualListModel*>(grid.GetModel())->GetRow(top);
    return {first, first + static_cast<unsigned>(std::max(grid.GetCountPerPage(), 0))};
}

void scrollBackTo(wxDataViewCtrl&, unsigned) {}  // the toolkit keeps its position

void redrawRows(wxDataViewCtrl& grid) {
    grid.GetMainWindow()->Refresh();
}

std::optional<unsigned> rowAt(const wxDataViewCtrl& grid, const wxPoint& point) {
    wxDataViewItem item;
    wxDataViewColumn* column = nullptr;
    grid.HitTest(point, item, column);
    if (!item.IsOk()) return {};
    return static_cast<const wxDataViewVirtualListModel*>(grid.GetModel())->GetRow(item);
}

int givenWidth(const wxDataViewColumn& column) {
    return column.GetWidth();
}

void takeRemainingWidth(wxDataViewColumn&) {}  // the last column does so by itself

#endif

}  // namespace tsln::desktop
