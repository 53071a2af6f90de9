#include "workbench/tour/Gallery.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <wx/app.h>
#include <wx/dataview.h>
#include <wx/toplevel.h>

#include "automation/FilePath.h"
#include "automation/HostError.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/tour/AccessibilityFaults.h"
#include "workbench/tour/DrawingFaults.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds timeToDraw{300};
constexpr milliseconds timeForAProcess{4000};
constexpr int customersSeenAtWork = 20'000;
constexpr int mostWindows = 12;  ///< the most windows that one stop opens in sequence

/// A call of an operation. It is made from the event loop, because it returns only after its windows are closed.
struct Call {
    bool returned = false;
    bool notBuilt = false;
    std::string error;
};

std::shared_ptr<Call> begin(const ObjectPtr& library, const GalleryStop& stop) {
    auto call = std::make_shared<Call>();
    wxTheApp->CallAfter([call, library, stop] {
        std::vector<Argument> arguments(stop.arguments.begin(), stop.arguments.end());
        try {
            library->invoke(info(stop.operation).name, Access::Call, Arguments(arguments));
        } catch (const HostError& error) {
            call->notBuilt = error.code() == code::notImplemented;
            call->error = error.what();
        } catch (const std::exception& error) {
            call->error = error.what();
        }
        call->returned = true;
    });
    return call;
}

/// Waits until the call has returned, or the front window has been open long enough to be drawn.
Script::Wait settled(const std::shared_ptr<Call>& call, milliseconds time = timeToDraw) {
    const void* front = nullptr;
    auto since = std::chrono::steady_clock::now();
    return until("a window has stayed in front", [call, time, front, since]() mutable {
        if (call && call->returned) return true;
        const auto now = std::chrono::steady_clock::now();
        if (const void* inFront = frontWindow(); inFront != front || !inFront) {
            front = inFront;
            since = now;
        }
        return now - since >= time;
    });
}

std::string escaped(const std::string& text) {
    std::string html;
    for (const char c : text)
        html += c == '&' ? "&amp;" : c == '<' ? "&lt;" : std::string(1, c);
    return html;
}

/// The pictures, the page that shows them, and the faults that were found.
class Album {
  public:
    explicit Album(std::string folder) : folder_(std::move(folder)) {}

    void take(const std::string& name, const wxTopLevelWindow* except) {
        const std::string path = folder_ + "/" + name + ".png";
        if (!saveWindows(path, except)) throw ScriptFailure("The picture " + path + " could not be saved.");
        pictures_.push_back({name, activeWindowTitle()});
        std::printf("  %-34s %s\n", (name + ".png").c_str(), pictures_.back().shows.c_str());
        std::fflush(stdout);
        for (const std::string& fault : drawingFaults(except))
            addFault(name, fault);
        for (const std::string& fault : accessibilityFaults(except))
            addFault(name, fault);
    }
    void addFault(const std::string& where, const std::string& what) {
        const std::string fault = where + ": " + what;
        if (std::ranges::find(faults_, fault) == faults_.end()) faults_.push_back(fault);
    }
    void passOver(const std::string& name) { passedOver_.push_back(name); }

    void writeIndex() const {
        std::ofstream page(folder_ + "/index.html");
        page << "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>Tessaline screens</title>\n"
                "<style>body { font-family: sans-serif } figure { display: inline-block; margin: 1em; "
                "vertical-align: top } img { border: 1px solid #ccc }</style>\n";
        for (const Picture& picture : pictures_) {
            page << "<figure><img src=\"" << picture.name << ".png\" alt=\"\"><figcaption>" << picture.name
                 << ": " << escaped(picture.shows) << "</figcaption></figure>\n";
        }
        if (!page.flush()) throw ScriptFailure("The page " + folder_ + "/index.html could not be written.");
    }
    void tellEnd() const {
        for (const std::string& name : passedOver_)
            std::printf("  not built yet: %s\n", name.c_str());
        std::printf("%zu pictures, %zu operations not built yet.\n", pictures_.size(), passedOver_.size());
        if (faults_.empty()) return;
        std::string all = std::to_string(faults_.size()) + " faults:";
        for (const std::string& fault : faults_)
            all += "\n  " + fault;
        throw ScriptFailure(all);
    }

  private:
    struct Picture {
        std::string name, shows;
    };
    const std::string folder_;
    std::vector<Picture> pictures_;
    std::vector<std::string> faults_, passedOver_;
};

/// The windows opened by a stop. Each is photographed once.
class Windows {
  public:
    Windows(Album& album, std::string stop, const wxTopLevelWindow& workbench)
        : album_(album), stop_(std::move(stop)), workbench_(workbench) {}

    bool isFrontNew() {
        const std::vector<const void*> open = openWindows();
        std::erase_if(seen_,
                      [&](const void* window) { return std::ranges::find(open, window) == open.end(); });
        const void* front = frontWindow();
        return front && !seen_.contains(front);
    }
    void takeFront() {
        seen_.insert(frontWindow());
        take();
    }
    void take() { album_.take(++count_ == 1 ? stop_ : stop_ + "-" + std::to_string(count_), &workbench_); }

  private:
    Album& album_;
    const std::string stop_;
    const wxTopLevelWindow& workbench_;
    std::set<const void*> seen_;
    int count_ = 0;
};

void prepare(Company& company, std::string_view statements) {
    std::istringstream lines{std::string(statements)};
    for (std::string statement; std::getline(lines, statement, ';');)
        company.execute(statement);
}

/// Makes the company of version 4.2 that an argument of the stop stands for.
GalleryStop withOldCompany(GalleryStop stop, const std::string& folder) {
    const auto argument = std::ranges::find(stop.arguments, oldCompanyArgument);
    if (argument == stop.arguments.end()) return stop;
    *argument = folder + "/version42.company";
    std::error_code ignored;
    std::filesystem::remove(pathOf(*argument), ignored);
    makeCompany42(*argument, customersSeenAtWork);
    return stop;
}

bool listHasKeyboard() {
    for (const wxWindow* window = wxWindow::FindFocus(); window; window = window->GetParent()) {
        if (dynamic_cast<const wxDataViewCtrl*>(window)) return true;
    }
    return false;
}

/// Returns the steps of a stop: a look at the opened window, the stop's own keys, then Esc until all windows are
/// closed.
std::vector<Keystroke> strokesAt(const GalleryStop& stop) {
    std::vector<Keystroke> strokes{{.kind = Keystroke::Kind::Look}};
    std::ranges::move(readKeys(stop.keys), std::back_inserter(strokes));
    strokes.insert(strokes.end(), mostWindows, {.key = WXK_ESCAPE});
    return strokes;
}

void act(const Keystroke& stroke) {
    if (stroke.kind == Keystroke::Kind::Press) press(stroke.key, stroke.modifiers);
    if (stroke.kind == Keystroke::Kind::Type) type(stroke.text);
}

}  // namespace

Script galleryRound(ObjectPtr library, Company& company, wxTopLevelWindow& workbench,
                    std::vector<GalleryStop> stops, std::string folder) {
    Album album(folder);
    co_await settled(nullptr);
    album.take("workbench", nullptr);
    workbench.Hide();

    for (const GalleryStop& stop : stops) {
        prepare(company, stop.prepare);
        Windows windows(album, stop.name, workbench);
        const std::shared_ptr<Call> call = begin(library, withOldCompany(stop, folder));
        for (const Keystroke& stroke : strokesAt(stop)) {
            act(stroke);
            co_await settled(call, stroke.kind == Keystroke::Kind::Wait ? timeForAProcess : timeToDraw);
            if (call->returned) break;
            if (stroke.kind == Keystroke::Kind::Picture) {
                windows.take();
            } else if (windows.isFrontNew()) {
                if (listHasKeyboard()) {  // a list shows more with a row selected
                    press(WXK_HOME);
                    co_await settled(call);
                }
                windows.takeFront();
            }
        }
        if (!call->returned) throw ScriptFailure(stop.name + ": Esc does not close its windows.");
        if (call->notBuilt) {
            album.passOver(stop.name);
        } else if (!call->error.empty()) {
            album.addFault(stop.name, call->error);
        }
    }
    workbench.Show();
    album.writeIndex();
    album.tellEnd();
}

}  // namespace tsln::workbench
