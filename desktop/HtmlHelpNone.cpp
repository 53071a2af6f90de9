#ifndef _WIN32
#include "desktop/HtmlHelp.h"

namespace tsln::desktop {

bool showHtmlHelp(wxWindow*, const wxString&, unsigned) {
    return false;
}

void closeHtmlHelp() {}

}  // namespace tsln::desktop
#endif
