#include "desktop/Dialogs.h"

#include <algorithm>

#include <wx/dcscreen.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/settings.h>
// clang-format off: the next header needs the one above
#include <wx/generic/msgdlgg.h>
// clang-format on

#include "desktop/ForeignWindows.h"
#include "desktop/LineBreaks.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

#ifdef __WXGTK__
using MessageDialog = wxGenericMessageDialog;  // the native one shows no icon
#else
using MessageDialog = wxMessageDialog;
#endif

constexpr int messageWidth = 440;  // pixels at 96 per inch

long styleOf(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return wxOK;
        case MessageButtons::OkCancel:
            return wxOK | wxCANCEL;
        case MessageButtons::YesNo:
            return wxYES_NO | wxYES_DEFAULT;
    }
    return wxOK;
}

long styleOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
#ifdef __WXGTK__
            return 0;  // the generic dialog has a picture for every other style, and fails for this one
#else
            return wxICON_NONE;
#endif
        case MessageIcon::Information:
            return wxICON_INFORMATION;
        case MessageIcon::Question:
            return wxICON_QUESTION;
        case MessageIcon::Exclamation:
            return wxICON_WARNING;
        case MessageIcon::Critical:
            return wxICON_ERROR;
    }
    return wxICON_NONE;
}

wxString wildcard(std::span<const FileFilter> filters) {
    wxString text;
    for (const FileFilter& filter : filters) {
        wxString caption = toWx(filter.caption);
        const wxString pattern = toWx(filter.pattern);
        if (!caption.Contains(pattern)) caption << " (" << pattern << ")";
        if (!text.empty()) text << "|";
        text << caption << "|" << pattern;
    }
    return text;
}

void fillMenu(wxMenu& menu, const Command& popup) {
    for (const Command& command : popup.commands) {
        if (command.beginsGroup && menu.GetMenuItemCount() > 0) menu.AppendSeparator();
        if (command.commands.empty()) {
            menu.Append(command.id, toWx(command.caption))->Enable(command.enabled);
        } else {
            auto* inner = new wxMenu;
            fillMenu(*inner, command);
            menu.AppendSubMenu(inner, toWx(command.caption))->Enable(command.enabled);
        }
    }
}

#ifdef __WXGTK__
wxString wrappedMessage(const wxString& text) {
    wxScreenDC device;
    device.SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
    const int width = std::min(device.FromDIP(messageWidth), device.GetSize().x * 2 / 3);
    std::vector<wxString> lines =
        wrapLines(text, width, [&](const wxString& part) { return device.GetTextExtent(part).x; });
    // A long text is cut so that the buttons stay on the screen.
    const auto most = static_cast<std::size_t>(device.GetSize().y * 2 / 3 / device.GetCharHeight());
    if (lines.size() > most) {
        lines.resize(most);
        lines.back() << " ...";
    }
    wxString wrapped;
    for (const wxString& line : lines)
        wrapped << (&line == lines.data() ? "" : "\n") << line;
    return wrapped;
}
#endif

}  // namespace

MessageAnswer askMessage(wxWindow* owner, const wxString& title, const wxString& text, MessageButtons buttons,
                         MessageIcon icon) {
    std::optional<ForeignWindows> foreign;  // below an owner they are already disabled
    if (!owner) foreign.emplace();
    MessageDialog box(owner, text, title.empty() ? wxString(programTitle) : title,
                      styleOf(buttons) | styleOf(icon) | wxCENTRE);
#ifdef __WXGTK__
    box.SetMessage(wrappedMessage(text));  // wxGenericMessageDialog does not wrap text
    if (buttons == MessageButtons::YesNo) box.SetEscapeId(wxID_NO);
#endif
    switch (box.ShowModal()) {
        case wxID_OK:
            return MessageAnswer::Ok;
        case wxID_YES:
            return MessageAnswer::Yes;
        default:
            break;
    }
    switch (buttons) {
        case MessageButtons::Ok:
            return MessageAnswer::Ok;
        case MessageButtons::OkCancel:
            return MessageAnswer::Cancel;
        case MessageButtons::YesNo:
            return MessageAnswer::No;
    }
    return MessageAnswer::Ok;
}

std::string withExtension(const std::string& name, const FileFilter& filter) {
    const std::string first = filter.pattern.substr(0, filter.pattern.find(';'));
    const bool takesAny = !first.starts_with("*.") || first.find_first_of("*?", 2) != std::string::npos;
    if (takesAny || !wxFileName(toWx(name)).GetExt().empty()) return name;
    return name + (name.ends_with('.') ? first.substr(2) : first.substr(1));
}

std::optional<std::string> askFile(wxWindow* owner, FileDialogKind kind, const wxString& title,
                                   std::span<const FileFilter> filters, const wxString& proposal) {
    static wxString lastFolder;
    const bool saving = kind == FileDialogKind::Save;
    wxFileName before(proposal);
    for (;;) {
        wxFileDialog dialog(owner, title, before.GetDirCount() > 0 ? before.GetPath() : lastFolder,
                            before.GetFullName(), wildcard(filters),
                            saving ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT : wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        if (dialog.ShowModal() != wxID_OK) return std::nullopt;
        lastFolder = wxFileName(dialog.GetPath()).GetPath();
        const std::string chosen = fromWx(dialog.GetPath());
        if (!saving) return chosen;
        const auto filter = static_cast<std::size_t>(dialog.GetFilterIndex());
        const std::string full = filter < filters.size() ? withExtension(chosen, filters[filter]) : chosen;
        // The dialog asked about the typed name. With the extension added, another file may exist.
        if (full == chosen || !wxFileExists(toWx(full))) return full;
        const wxString question = wxString::Format("The file '%s' already exists. Do you want to replace it?",
                                                   wxFileName(toWx(full)).GetFullName());
        if (askMessage(owner, {}, question, MessageButtons::YesNo, MessageIcon::Question) ==
            MessageAnswer::Yes) {
            return full;
        }
        before.Assign(toWx(full));
    }
}

int askPopup(wxWindow& window, const Command& popup, const wxPoint& position) {
    wxMenu menu;
    fillMenu(menu, popup);
    // Not by GetPopupMenuSelectionFromUser: it connects the window for a while, and the toolkit fails when an event that
    // meets the disconnected handler leads to another event of the window.
    int chosen = 0;
    menu.Bind(wxEVT_MENU, [&](wxCommandEvent& event) { chosen = event.GetId(); });
    window.PopupMenu(&menu, window.ScreenToClient(position));
    return chosen;
}

}  // namespace tsln::desktop
