#include "workbench/tour/AccessibilityFaults.h"

#include <wx/toplevel.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#include <memory>
#include <set>
#endif

namespace tsln::workbench {

#ifdef __WXGTK__

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};
using Accessible = std::unique_ptr<AtkObject, Unref>;

bool is(AtkObject* object, AtkStateType state) {
    const std::unique_ptr<AtkStateSet, Unref> states(atk_object_ref_state_set(object));
    return atk_state_set_contains_state(states.get(), state);
}

std::string nameOf(AtkObject* object) {
    const char* name = atk_object_get_name(object);
    return name ? name : "";
}

/// The roles of lists with rows and cells.
bool hasRows(AtkRole role) {
    return role == ATK_ROLE_TABLE || role == ATK_ROLE_TREE_TABLE;
}

/// Inspects one window.
class Inspection {
  public:
    Inspection(GtkWindow* window, std::vector<std::string>& faults)
        : title_(gtk_window_get_title(window) ? gtk_window_get_title(window) : ""), faults_(faults) {
        look(gtk_widget_get_accessible(GTK_WIDGET(window)));
    }

  private:
    void tell(const std::string& what) { faults_.push_back("\"" + title_ + "\": " + what + "."); }

    void look(AtkObject* object) {
        const AtkRole role = atk_object_get_role(object);
        if (!is(object, ATK_STATE_SHOWING) && role != ATK_ROLE_FRAME && role != ATK_ROLE_DIALOG) return;
        if (is(object, ATK_STATE_FOCUSABLE)) lookAtControl(object, role);
        if (hasRows(role)) return lookAtRows(object);
        for (int i = 0; i < atk_object_get_n_accessible_children(object); ++i) {
            if (const Accessible child(atk_object_ref_accessible_child(object, i)); child) look(child.get());
        }
    }

    void lookAtControl(AtkObject* object, AtkRole role) {
        // Windows have titles, and what only scrolls takes no input of its own.
        if (role == ATK_ROLE_FRAME || role == ATK_ROLE_DIALOG || role == ATK_ROLE_WINDOW ||
            role == ATK_ROLE_SCROLL_PANE)
            return;
        const std::string name = nameOf(object), kind = atk_role_get_name(role);
        if (role == ATK_ROLE_UNKNOWN || role == ATK_ROLE_INVALID) return tell("\"" + name + "\" has no role");
        if (name.empty()) return tell("a control of the role \"" + kind + "\" has no name");
        if (!names_.insert({role, name}).second)
            tell("two controls of the role \"" + kind + "\" have the name \"" + name + "\"");
    }

    void lookAtRows(AtkObject* list) {
        if (!ATK_IS_TABLE(list)) return tell("\"" + nameOf(list) + "\" is a list without rows");
        AtkTable* const table = ATK_TABLE(list);
        for (int column = 0; column < atk_table_get_n_columns(table); ++column) {
            if (!atk_table_get_column_header(table, column))
                tell("\"" + nameOf(list) + "\" has a column without a header");
        }
        if (atk_table_get_n_rows(table) == 0) return;
        if (const Accessible cell(atk_table_ref_at(table, 0, 0)); !cell)
            tell("the rows of \"" + nameOf(list) + "\" have no cells");
    }

    const std::string title_;
    std::vector<std::string>& faults_;
    std::set<std::pair<AtkRole, std::string>> names_;
};

}  // namespace

std::vector<std::string> accessibilityFaults(const wxTopLevelWindow* except) {
    std::vector<std::string> faults;
    for (const wxWindow* window : wxTopLevelWindows) {
        if (window != except && window->IsShown() && GTK_IS_WINDOW(window->GetHandle()))
            Inspection(GTK_WINDOW(window->GetHandle()), faults);
    }
    return faults;
}

#else

std::vector<std::string> accessibilityFaults(const wxTopLevelWindow*) {
    return {};
}

#endif

}  // namespace tsln::workbench
