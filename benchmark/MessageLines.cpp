#include <algorithm>
#include <filesystem>
#include <fstream>

#include "automation/FilePath.h"
#include "benchmark/Lines.h"
#include "benchmark/PreparedHost.h"
#include "benchmark/contest/BareList.h"
#include "benchmark/contest/Contest.h"
#include "benchmark/contest/SampleRows.h"
#include "bridge/Library.h"
#include "doubles/QuietDesktop.h"
#include "doubles/TempFolder.h"
#include "maintenance/ListRows.h"
#include "messages/SentMessages.h"
#include "shared/modSharedStrings.h"

namespace tsln::bench {
namespace {

using messages::SentMessages;
using messages::sentMessagesList;

constexpr double mostToOpen = 1.3, mostToFilter = 2, mostToSave = 2;
constexpr std::size_t bodyBytes = 2'000;

/// The body of a message: sentences about people and towns.
std::string body(std::size_t row) {
    std::string text = "Dear " + personName(row) + ",&#13;&#10;";
    for (std::size_t i = 0; text.size() < bodyBytes; ++i)
        text += "the fitter for " + townName(row + i) + " brings what was ordered on " + std::to_string(i) +
                " May. ";
    return text;
}

/// The result of a query of sent messages.
std::string messagesResult(std::size_t rows) {
    std::string text = "<Records>";
    for (std::size_t row = 0; row < rows; ++row) {
        const std::string person = personName(row);
        text += "<Record><ID>" + std::to_string(row + 1) +
                "</ID><SentOn>2024-03-04T10:" + std::to_string(10 + row % 50) + ":30</SentOn><SentBy>" +
                personName(row % 7) +
                "</SentBy><FromAddress>office@lanternlight.example</FromAddress><ToAddress>" + person +
                "</ToAddress><Subject>Your order " + std::to_string(row) + "</Subject><BodyText>" +
                body(row) + "</BodyText></Record>";
    }
    return text + "</Records>";
}

/// A desktop whose user saves every file under one name.
class SavingDesktop : public test::QuietDesktop {
  public:
    std::string file;
    std::optional<std::string> saveFile(Screen&, std::string_view, std::span<const FileFilter>,
                                        std::string_view) override {
        return file;
    }
};

std::filesystem::path fastestFolder() {
    const std::filesystem::path inMemory = "/dev/shm";
    return std::filesystem::is_directory(inMemory) ? inMemory : std::filesystem::temp_directory_path();
}

std::string contentsOf(const std::string& file) {
    std::ifstream stream(pathOf(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A screen of sent messages whose steps can be called and timed.
struct Stage {
    explicit Stage(std::size_t rows) : result(messagesResult(rows)) {
        library->Initialize(ObjectPtr(host));
        desktop.file = folder.file("messages.txt");
    }
    void prepare() { host->text = result; }
    void open() { screen->loadList(); }

    const std::string result;
    test::TempFolder folder{"tessaline-bench-", fastestFolder()};
    SavingDesktop desktop;
    std::shared_ptr<PreparedHost> host = std::make_shared<PreparedHost>();
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
    std::unique_ptr<SentMessages> screen = [this] {
        auto made = std::make_unique<SentMessages>(*library, sentMessagesList);
        made->load();
        return made;
    }();
};

void measureOpening(Report& report, Stage& stage) {
    BareList bare(sentMessagesList.columns);
    std::string copy;
    const Contest contest(
        {{"screen", [&] { stage.open(); }, [&] { stage.prepare(); }},
         {"list",
          [&] {
              bare.report.setRecords(readListRows(std::move(copy), sentMessagesList.columns).records);
              bare.report.populate();
          },
          [&] { copy = stage.result; }}},
        {.seconds = 20, .leastRounds = 7, .mostRounds = 21});
    report.add(Line{"opening the sent messages", "text to list", contest.ratio(0, 1), Line::Goal::AtMost,
                    mostToOpen});
}

void measureFilter(Report& report, Stage& stage) {
    const ReportControl& list = stage.screen->rptItems;
    std::vector<std::string> texts;
    for (std::size_t record = 0; record < list.recordCount(); ++record) {
        std::string text;
        for (std::size_t column = 0; column < list.columns.size(); ++column)
            text += modSharedStrings::foldCase(list.cell(record, column));
        texts.push_back(std::move(text));
    }
    const std::string rare = "your order 4711";
    TextBox& box = stage.screen->txtFilter;
    const Contest contest(
        {{"filter", [&] { box.userType(rare); }, [&] { box.userType("Your order 47"); }},
         {"pass",
          [&] {
              use(static_cast<std::size_t>(std::ranges::count_if(
                  texts, [&](const std::string& text) { return text.find(rare) != text.npos; })));
          }}},
        {.seconds = 12, .leastRounds = 7, .mostRounds = 21});
    box.userType("");
    report.add(Line{"a key in the filter of the sent messages",
                    "looking for it in every row's text, folded already", contest.ratio(0, 1),
                    Line::Goal::AtMost, mostToFilter});
}

void measureSaving(Report& report, Stage& stage) {
    stage.screen->saveAll();
    const std::string bytes = contentsOf(stage.desktop.file);
    const std::string other = stage.folder.file("bytes.txt");
    const Contest contest({{"save", [&] { stage.screen->saveAll(); }},
                           {"write",
                            [&] {
                                std::ofstream file(pathOf(other), std::ios::binary);
                                file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
                            }}},
                          {.seconds = 12, .leastRounds = 7, .mostRounds = 21});
    if (contentsOf(stage.desktop.file) != bytes)
        throw std::runtime_error("The messages were saved differently.");
    report.add(Line{"saving all sent messages", "writing the same bytes", contest.ratio(0, 1),
                    Line::Goal::AtMost, mostToSave});
}

}  // namespace

void measureMessages(const Settings& settings, Report& report) {
    Stage stage(settings.rows);
    measureOpening(report, stage);
    stage.prepare();
    stage.open();
    measureFilter(report, stage);
    measureSaving(report, stage);
}

}  // namespace tsln::bench
