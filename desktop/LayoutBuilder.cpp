#include "desktop/LayoutBuilder.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <wx/button.h>
#include <wx/gbsizer.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/Controls.h"

namespace tsln::desktop {
namespace {

constexpr int dialogMargin = 12;  // pixels at 96 per inch
constexpr int scrollStep = 10;    // pixels

/// A window that only holds others. It takes no focus even where none of them can, as in a screen that shows progress.
template <class Base>
class Holder : public Base {
  public:
    explicit Holder(wxWindow* parent) : Base(parent) { this->m_container.DisableSelfFocus(); }
};

bool isColumn(const Layout& layout) {
    return layout.kind != Layout::Kind::Row;
}

/// Whether the layout is a row with a label before its first control.
bool beginsWithField(const Layout& layout) {
    return layout.kind == Layout::Kind::Row && !layout.control && !layout.children.empty() &&
           layout.children.front().kind == Layout::Kind::Field;
}

/// The accessible name for a label: without the mnemonic's mark and the colon.
wxString spokenName(const wxString& label) {
    wxString name = wxControl::RemoveMnemonics(label);
    if (name.EndsWith(":")) name.RemoveLast();
    return name;
}

}  // namespace

LayoutBuilder::LayoutBuilder(ScreenDialog& dialog)
    : dialog_(dialog), gap_(wxSizerFlags::GetDefaultBorder()) {}

LayoutBuilder::Built LayoutBuilder::build(const Layout& layout) {
    const int margin = dialog_.FromDIP(dialogMargin);
    Built built{new wxBoxSizer(wxVERTICAL), new Holder<wxScrolledWindow>(&dialog_)};
    // The scrolled part takes the space of the margin, too, so that focus frames at its edges are not cut off.
    const auto addTo = [margin](wxSizer& sizer, const Part& part, bool stretches, int sides) {
        const wxSizerFlags flags = wxSizerFlags(stretches ? 1 : 0).Expand().Border(sides, margin);
        if (part.sizer) {
            sizer.Add(part.sizer, flags);
        } else if (part.window) {
            sizer.Add(part.window, flags);
        }
    };
    Layout content = layout;
    std::optional<Layout> buttons;
    if (layout.kind == Layout::Kind::Column && !layout.control && layout.children.size() > 1 &&
        !layout.children.back().stretches) {
        buttons = std::move(content.children.back());
        content.children.pop_back();
    }
    // GTK refuses to move a hidden control. On a panel of their own all are scrolled with the panel.
    auto* panel = new Holder<wxPanel>(built.content);
    auto* inner = new wxBoxSizer(wxVERTICAL);
    addTo(*inner, make(content, panel), true, buttons ? wxLEFT | wxRIGHT | wxTOP : wxALL);
    panel->SetSizer(inner);
    auto* scrolled = new wxBoxSizer(wxVERTICAL);
    scrolled->Add(panel, wxSizerFlags(1).Expand());
    built.content->SetSizer(scrolled);
    built.content->SetScrollRate(scrollStep, scrollStep);
    built.sizer->Add(built.content, wxSizerFlags(1).Expand());
    if (!buttons) return built;
    built.sizer->AddSpacer(2 * gap_);
    addTo(*built.sizer, make(*buttons, &dialog_), false, wxLEFT | wxRIGHT | wxBOTTOM);
    return built;
}

LayoutBuilder::Part LayoutBuilder::make(const Layout& layout, wxWindow* parent) {
    switch (layout.kind) {
        case Layout::Kind::Item:
            // makeControl() clears the last label: it gets a copy.
            return layout.control ? makeControl(*layout.control, parent, wxString(lastLabel_)) : Part();
        case Layout::Kind::Field:
            return makeField(layout, parent);
        case Layout::Kind::Row:
        case Layout::Kind::Column:
        case Layout::Kind::Form:
            return makeBox(layout, parent);
        case Layout::Kind::Tabs:
            return makeParts(layout, parent, dialog_.FromDIP(dialogMargin));
        case Layout::Kind::Split:
            return makeParts(layout, parent, 0);
        case Layout::Kind::Spring:
            return {};
    }
    return {};
}

LayoutBuilder::Part LayoutBuilder::makeControl(Control& control, wxWindow* parent, const wxString& label) {
    ControlView* view = dialog_.addView(makeView(dialog_, parent, control));
    if (!view) return {};
    if (auto* text = dynamic_cast<Label*>(&control)) {
        lastLabel_ = toWx(text->caption());
    } else {
        lastLabel_.clear();
        const wxString caption = view->caption();
        const wxString& shown = caption.empty() ? label : caption;
        if (!shown.empty()) dialog_.addMnemonic(shown, *view);
        if (!control.accessibleName.empty()) {
            setAccessibleName(view->inputWindow(), toWx(control.accessibleName));
        } else if (caption.empty() && !label.empty()) {
            setAccessibleName(view->inputWindow(), spokenName(label));
        }
    }
    return {.window = &view->window(),
            .view = view,
            .isGroup = view->growsHigh(),
            .growsWide = view->growsWide(),
            .growsHigh = view->growsHigh()};
}

/// Makes a row, column or form, in its frame if it has one.
LayoutBuilder::Part LayoutBuilder::makeBox(const Layout& layout, wxWindow* parent) {
    ControlView* frame =
        layout.control ? dialog_.addView(makeView(dialog_, parent, *layout.control)) : nullptr;
    wxWindow* inside = frame ? &frame->window() : parent;
    Part part;
    if (layout.kind == Layout::Kind::Form) {
        part = makeForm(layout, inside);
    } else {
        part = fillBox(layout, inside, new wxBoxSizer(isColumn(layout) ? wxVERTICAL : wxHORIZONTAL));
    }
    if (!frame) return part;
    if (auto* box = dynamic_cast<wxStaticBox*>(inside)) {
        auto* framed = new wxStaticBoxSizer(box, wxVERTICAL);
        framed->SetMinSize(box->GetBestSize().x, 0);  // its title, also around hidden controls
        framed->Add(part.sizer, wxSizerFlags(1).Expand().Border(wxALL, gap_));
        part.sizer = framed;
    } else {
        inside->SetSizer(part.sizer);
        part.sizer = nullptr;
        part.window = inside;
    }
    return part;
}

/// `firstLabel`: the label of the first field of the layout, which the caller has placed in another sizer.
LayoutBuilder::Part LayoutBuilder::fillBox(const Layout& layout, wxWindow* parent, wxSizer* sizer,
                                           wxWindow* firstLabel) {
    const bool column = isColumn(layout);
    const bool onlyButtons = std::ranges::all_of(layout.children, [](const Layout& child) {
        return child.kind == Layout::Kind::Spring || dynamic_cast<Button*>(child.control);
    });
    Part whole{.sizer = sizer, .isGroup = true, .growsWide = column};
    bool first = true;
    bool afterGroup = false;
    for (const Layout& child : layout.children) {
        if (child.kind == Layout::Kind::Spring) {
            sizer->AddStretchSpacer();
            continue;
        }
        // A label names the control after it in its row. One in a column does so only if it has an access key: it may
        // be a remark of its own.
        if (first || (column && lastLabel_.Find('&') == wxNOT_FOUND)) lastLabel_.clear();
        const Part part = first && firstLabel ? makeLabelled(child, parent, firstLabel) : make(child, parent);
        if (!part.window && !part.sizer) continue;
        // Groups have larger gaps than single controls.
        if (!first) sizer->AddSpacer(part.isGroup || afterGroup ? 2 * gap_ : gap_);
        afterGroup = part.isGroup;
        first = false;

        wxSizerFlags flags(child.stretches ? 1 : 0);
        const bool across =
            column ? part.growsWide || part.isGroup || onlyButtons : part.growsHigh || part.isGroup;
        if (across) {
            flags.Expand();
        } else if (!column) {
            flags.CentreVertical();
        }
        if (part.sizer) {
            sizer->Add(part.sizer, flags);
        } else {
            sizer->Add(part.window, flags);
        }
        whole.growsWide = whole.growsWide || (part.growsWide && child.stretches);
        whole.growsHigh = whole.growsHigh || part.growsHigh;
    }
    equalizeButtons(layout.children);
    return whole;
}

/// Gives adjacent buttons one width. Buttons with long captions are left out: they would make the row too
/// wide.
void LayoutBuilder::equalizeButtons(const std::vector<Layout>& children) {
    std::vector<wxWindow*> buttons;
    int width = wxButton::GetDefaultSize(&dialog_).x;
    const int most = width * 3 / 2;
    for (const Layout& child : children) {
        if (child.kind != Layout::Kind::Item || !dynamic_cast<Button*>(child.control)) continue;
        wxWindow& button = dialog_.viewOf(*child.control)->window();
        const int best = button.GetBestSize().x;
        if (best > most) continue;
        buttons.push_back(&button);
        width = std::max(width, best);
    }
    for (wxWindow* button : buttons)
        button->SetMinSize({width, -1});
}

wxWindow* LayoutBuilder::makeLabel(const Layout& field, wxWindow* parent) {
    return new wxStaticText(parent, wxID_ANY, toWx(field.caption));
}

/// Makes the control of a field whose label exists already.
LayoutBuilder::Part LayoutBuilder::makeLabelled(const Layout& field, wxWindow* parent, wxWindow* label) {
    const Part part = makeControl(*field.control, parent, toWx(field.caption));
    if (part.view) part.view->setLabel(label);
    return part;
}

LayoutBuilder::Part LayoutBuilder::makeField(const Layout& layout, wxWindow* parent) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    wxWindow* label = makeLabel(layout, parent);
    row->Add(label, wxSizerFlags().CentreVertical());
    row->AddSpacer(2 * gap_);
    Part part = makeLabelled(layout, parent, label);
    if (part.window) row->Add(part.window, wxSizerFlags(part.growsWide ? 1 : 0).CentreVertical());
    part.window = nullptr;
    part.sizer = row;
    part.isGroup = part.isGroup || part.growsWide;
    return part;
}

LayoutBuilder::Part LayoutBuilder::makeForm(const Layout& layout, wxWindow* parent) {
    auto* grid = new wxGridBagSizer(gap_, 2 * gap_);
    Part whole{.sizer = grid, .isGroup = true, .growsWide = true};
    int row = 0;
    for (const Layout& child : layout.children) {
        if (beginsWithField(child)) {
            // Its label goes into the label column, the rest into the control column.
            wxWindow* label = makeLabel(child.children.front(), parent);
            const Part part = fillBox(child, parent, new wxBoxSizer(wxHORIZONTAL), label);
            grid->Add(label, {row, 0}, {1, 1}, wxALIGN_CENTRE_VERTICAL);
            grid->Add(part.sizer, {row, 1}, {1, 1}, wxEXPAND);
        } else if (child.kind == Layout::Kind::Field) {
            wxWindow* label = makeLabel(child, parent);
            const Part part = makeLabelled(child, parent, label);
            if (!part.view) {
                label->Destroy();
                continue;
            }
            const int labelSide = part.growsHigh ? wxALIGN_TOP | wxTOP : wxALIGN_CENTRE_VERTICAL;
            grid->Add(label, {row, 0}, {1, 1}, labelSide, dialog_.FromDIP(4));
            const int fill = part.growsHigh || part.growsWide ? int(wxEXPAND) : int(wxALIGN_CENTRE_VERTICAL);
            grid->Add(part.window, {row, 1}, {1, 1}, fill);
            whole.growsHigh = whole.growsHigh || part.growsHigh;
        } else {
            const Part part = make(child, parent);
            if (part.sizer) {
                grid->Add(part.sizer, {row, 0}, {1, 2}, wxEXPAND);
            } else if (part.window) {
                const int fill = part.growsHigh || part.growsWide ? int(wxEXPAND) : int(wxALIGN_LEFT);
                grid->Add(part.window, {row, 0}, {1, 2}, fill);
            } else {
                grid->Add(0, 0, {row, 0});
            }
            whole.growsHigh = whole.growsHigh || part.growsHigh;
        }
        if (child.stretches) grid->AddGrowableRow(static_cast<std::size_t>(row), 1);
        ++row;
    }
    if (grid->GetChildren().empty()) return whole;
    // Without fields every child spans both columns, and there is no second column to grow.
    const bool hasFields = std::ranges::any_of(layout.children, [](const Layout& child) {
        return child.kind == Layout::Kind::Field || beginsWithField(child);
    });
    grid->AddGrowableCol(hasFields ? 1 : 0, 1);
    return whole;
}

/// Makes a page or a pane for each child layout, with a margin around its content.
LayoutBuilder::Part LayoutBuilder::makeParts(const Layout& layout, wxWindow* parent, int margin) {
    ControlView* view = dialog_.addView(makeView(dialog_, parent, *layout.control));
    for (const Layout& child : layout.children) {
        auto* page = new wxPanel(&view->window());
        const Part content = make(child, page);
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        const wxSizerFlags flags = wxSizerFlags(1).Expand().Border(wxALL, margin);
        if (content.sizer) {
            sizer->Add(content.sizer, flags);
        } else if (content.window) {
            sizer->Add(content.window, flags);
        }
        page->SetSizer(sizer);
        page->SetSize(sizer->GetMinSize());  // the toolkit fails on windows of size 0
        page->Layout();
        view->addPart(page);
    }
    return {.window = &view->window(), .view = view, .isGroup = true, .growsWide = true, .growsHigh = true};
}

}  // namespace tsln::desktop
