#include "desktop/Settings.h"

#include <wx/confbase.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/log.h>
#ifdef __WXMSW__
#include <wx/msw/registry.h>
#endif

#include "desktop/Text.h"

namespace tsln::desktop {

#ifdef __WXMSW__

Settings::Settings(std::string file) : file_(std::move(file)) {}
Settings::~Settings() = default;

std::optional<std::string> Settings::read(std::string_view key, std::string_view value) {
    const wxLogNull quiet;
    wxRegKey registry(wxRegKey::HKCU, toWx(key));
    if (!registry.Exists() || !registry.Open(wxRegKey::Read) || !registry.HasValue(toWx(value))) return {};
    wxString text;
    if (registry.GetValueType(toWx(value)) == wxRegKey::Type_Dword) {
        long number = 0;
        if (!registry.QueryValue(toWx(value), &number)) return {};
        text << number;
    } else if (!registry.QueryValue(toWx(value), text, true)) {
        return {};
    }
    return fromWx(text);
}

void Settings::write(std::string_view key, std::string_view value, std::string_view text) {
    const wxLogNull quiet;
    wxRegKey registry(wxRegKey::HKCU, toWx(key));
    if (registry.Create()) registry.SetValue(toWx(value), toWx(text));
}

#else

namespace {

/// Converts a key "Software\\A\\" to a path of the store. A slash in a key is escaped.
wxString path(std::string_view key, std::string_view value) {
    wxString groups = toWx(key);
    groups.Replace("/", "%2F");
    groups.Replace("\\", "/");
    while (groups.EndsWith("/"))
        groups.RemoveLast();
    wxString name = toWx(value);
    name.Replace("/", "%2F");
    return "/" + groups + "/" + name;
}

}  // namespace

// wxLogNull: otherwise the toolkit shows a message box when the file cannot be read or written.

Settings::Settings(std::string file) : file_(std::move(file)) {
    const wxLogNull quiet;
    store_ = std::make_unique<wxFileConfig>(wxString(), wxString(), toWx(file_), wxString(),
                                            wxCONFIG_USE_LOCAL_FILE);
    store_->SetExpandEnvVars(false);
}

Settings::~Settings() {
    const wxLogNull quiet;
    store_.reset();  // writes values that could not be written before
}

std::optional<std::string> Settings::read(std::string_view key, std::string_view value) {
    const wxLogNull quiet;
    wxString text;
    if (!store_->Read(path(key, value), &text)) return {};
    return fromWx(text);
}

void Settings::write(std::string_view key, std::string_view value, std::string_view text) {
    const wxLogNull quiet;
    wxFileName(toWx(file_)).Mkdir(wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    if (store_->Write(path(key, value), toWx(text))) store_->Flush();
}

#endif

}  // namespace tsln::desktop
