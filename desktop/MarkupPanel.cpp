#include "desktop/MarkupPanel.h"

#include <algorithm>

#include <wx/dcclient.h>
#include <wx/hyperlink.h>
#include <wx/settings.h>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

constexpr int widestLine = 480;  // pixels at 96 per inch; limits the best size of text that wraps

/// The words of a text, each with the blanks that follow it.
std::vector<wxString> wordsOf(const wxString& text) {
    std::vector<wxString> words;
    bool afterBlank = true;
    for (const wxUniChar c : text) {
        if (words.empty() || (afterBlank && c != ' ')) words.emplace_back();
        words.back() += c;
        afterBlank = c == ' ';
    }
    return words;
}

}  // namespace

MarkupPanel::MarkupPanel(wxWindow* parent) : wxPanel(parent) {
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { paint(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        flow(GetClientSize().x);
        Refresh();
    });
}

void MarkupPanel::setRuns(const std::vector<MarkupRun>& runs) {
    links_.clear();
    lines_.clear();
    DestroyChildren();
    wxString spoken;
    wraps_ = false;
    lines_.emplace_back();
    for (const MarkupRun& run : runs) {
        if (run.lineBreak) {
            spoken += " ";
            lines_.back().blankHeight = GetCharHeight();
            lines_.emplace_back();
            continue;
        }
        lines_.back().block = run.block;
        wraps_ = wraps_ || run.block.wraps;
        if (run.operation.empty()) {
            addText(lines_.back(), run);
        } else {
            addLink(lines_.back(), run);
        }
        spoken += toWx(run.text);
    }
    naturalWidth_ = 0;
    for (const Line& line : lines_) {
        int width = 0;
        for (const Piece& piece : line.pieces)
            width += piece.size.x;
        naturalWidth_ = std::max(naturalWidth_, width);
    }
    setAccessibleName(*this, spoken);
    InvalidateBestSize();
    SetMinSize(DoGetBestClientSize());
    flow(GetClientSize().x);
    Refresh();
}

wxFont MarkupPanel::fontOf(const MarkupRun& run) const {
    wxFont font = GetFont();
    if (run.bold) font.MakeBold();
    constexpr double pointsPerUnit = 72.0 / 96.0;
    if (run.block.fontSize > 0) font.SetFractionalPointSize(run.block.fontSize * pointsPerUnit);
    return font;
}

void MarkupPanel::addText(Line& line, const MarkupRun& run) {
    const wxFont font = fontOf(run);
    for (const wxString& word : wordsOf(toWx(run.text))) {
        Piece piece{.text = word, .font = font};
        GetTextExtent(word, &piece.size.x, &piece.size.y, nullptr, nullptr, &font);
        line.pieces.push_back(std::move(piece));
    }
}

void MarkupPanel::addLink(Line& line, const MarkupRun& run) {
    auto* link = new wxHyperlinkCtrl(this, wxID_ANY, toWx(run.text), "", wxDefaultPosition, wxDefaultSize,
                                     wxBORDER_NONE | wxHL_ALIGN_LEFT);
    link->SetFont(fontOf(run));
    link->SetVisitedColour(link->GetNormalColour());
    link->SetToolTip("");
    // The event is not skipped: the toolkit would open the operation's name as an address.
    link->Bind(wxEVT_HYPERLINK, [this, operation = run.operation](wxHyperlinkEvent&) {
        if (onLink) onLink(operation);
    });
    links_.push_back({link, run.operation});
    line.pieces.push_back({.link = link, .size = link->GetBestSize()});
}

std::string MarkupPanel::focusedLink() const {
    for (const Link& link : links_) {
        if (hasKeyboard(*link.window)) return link.operation;
    }
    return {};
}

wxSize MarkupPanel::DoGetBestClientSize() const {
    const int width = wraps_ ? std::min(naturalWidth_, FromDIP(widestLine)) : naturalWidth_;
    return {width, const_cast<MarkupPanel*>(this)->flow(width).y};
}

wxSize MarkupPanel::flow(int width) {
    wxSize taken;
    for (Line& line : lines_) {
        auto begin = line.pieces.begin();
        if (begin == line.pieces.end()) taken.y += line.blankHeight;
        while (begin != line.pieces.end()) {
            wxSize row;
            auto end = begin;
            while (end != line.pieces.end() &&
                   (end == begin || !line.block.wraps || row.x + end->size.x <= width)) {
                row.x += end->size.x;
                row.y = std::max(row.y, end->size.y);
                ++end;
            }
            const int room = std::max(0, width - row.x);
            int x = line.block.alignment == MarkupBlock::Alignment::Right    ? room
                    : line.block.alignment == MarkupBlock::Alignment::Center ? room / 2
                                                                             : 0;
            for (; begin != end; ++begin) {
                begin->place = {x, taken.y + (row.y - begin->size.y) / 2};
                if (begin->link) begin->link->SetSize(wxRect(begin->place, begin->size));
                x += begin->size.x;
            }
            taken.x = std::max(taken.x, row.x);
            taken.y += row.y;
        }
    }
    return taken;
}

void MarkupPanel::paint() {
    wxPaintDC dc(this);
    dc.SetTextForeground(IsEnabled() ? GetForegroundColour()
                                     : wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    for (const Line& line : lines_) {
        for (const Piece& piece : line.pieces) {
            if (piece.link) continue;
            dc.SetFont(piece.font);
            dc.DrawText(piece.text, piece.place);
        }
    }
}

}  // namespace tsln::desktop
