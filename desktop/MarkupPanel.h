#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/panel.h>

#include "shared/Markup.h"

class wxHyperlinkCtrl;

namespace tsln::desktop {

/// Shows markup: flows its words over lines and places a child window for each link.
class MarkupPanel : public wxPanel {
  public:
    explicit MarkupPanel(wxWindow* parent);

    void setRuns(const std::vector<MarkupRun>& runs);
    /// Runs when the user follows a link.
    std::function<void(const std::string& operation)> onLink;
    /// The operation of the focused link; empty when no link has the focus.
    std::string focusedLink() const;
    bool hasLinks() const noexcept { return !links_.empty(); }

    bool AcceptsFocus() const override { return hasLinks() && wxPanel::AcceptsFocus(); }

  protected:
    wxSize DoGetBestClientSize() const override;

  private:
    struct Piece {
        wxString text;
        wxFont font;
        wxHyperlinkCtrl* link = nullptr;
        wxSize size;
        wxPoint place;
    };
    struct Line {
        std::vector<Piece> pieces;
        MarkupBlock block;
        int blankHeight = 0;  ///< height of a line without text
    };
    struct Link {
        wxHyperlinkCtrl* window;
        std::string operation;
    };

    wxFont fontOf(const MarkupRun& run) const;
    void addText(Line& line, const MarkupRun& run);
    void addLink(Line& line, const MarkupRun& run);
    /// Places all words and links within the width and returns the size they take.
    wxSize flow(int width);
    void paint();

    std::vector<Line> lines_;
    std::vector<Link> links_;
    int naturalWidth_ = 0;
    bool wraps_ = false;
};

}  // namespace tsln::desktop
