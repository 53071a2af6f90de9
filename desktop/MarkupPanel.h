#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/panel.h>

#include "shared/Markup.h"

class wxHyperlinkCtrl;

namespace tsln::desktop {

/// Shows markup: flows its words over lines and puts a window on the place of every link.
class MarkupPanel : public wxPanel {
  public:
    explicit MarkupPanel(wxWindow* parent);

    void setRuns(const std::vector<MarkupRun>& runs);
    /// The user follows a link.
    std::function<void(const std::string& operation)> onLink;
    /// The operation of the link that has the keyboard; empty when none has.
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
        int blankHeight = 0;  ///< of a line without text
    };
    struct Link {
        wxHyperlinkCtrl* window;
        std::string operation;
    };

    wxFont fontOf(const MarkupRun& run) const;
    void addText(Line& line, const MarkupRun& run);
    void addLink(Line& line, const MarkupRun& run);
    /// Places everything within the width and returns the room taken.
    wxSize flow(int width);
    void paint();

    std::vector<Line> lines_;
    std::vector<Link> links_;
    int naturalWidth_ = 0;
    bool wraps_ = false;
};

}  // namespace tsln::desktop
