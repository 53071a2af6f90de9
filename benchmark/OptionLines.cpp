#include <algorithm>
#include <fstream>

#include <pugixml.hpp>

#include "automation/FilePath.h"
#include "benchmark/Lines.h"
#include "benchmark/PreparedHost.h"
#include "benchmark/contest/BenchCompany.h"
#include "bridge/Library.h"
#include "doubles/QuietDesktop.h"
#include "options/DetailSettings.h"
#include "options/ScanProducts.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::bench {
namespace {

using options::DetailList;
using options::DetailSettings;

constexpr double mostToScan = 1.3, mostToFilter = 2;
constexpr std::size_t optionsOfProduct = 50;

// Scanning --------------------------------------------------------------------------------------------

std::string product() {
    std::string text =
        "<?xml version=\"1.0\"?>\n<Product>\n  <Styles>\n    <Style Name=\"Standard\">\n      <Options>\n";
    for (std::size_t i = 0; i < optionsOfProduct; ++i) {
        const std::string n = std::to_string(i);
        text += "        <Option Name=\"Option " + n +
                "\" ShowInDescription=\"True\" DescriptionPrefix=\"Prefix " + n + "\" ShowInDescription2=\"" +
                (i % 5 == 0 ? "True" : "False") + "\" DescriptionPrefix2=\"\" Sequence=\"" + n + "\"/>\n";
    }
    return text + "      </Options>\n    </Style>\n  </Styles>\n</Product>\n";
}

/// A desktop with the components of a company's host.
class HostDesktop : public test::QuietDesktop {
  public:
    explicit HostDesktop(workbench::CompanySession& session) : session_(session) {}
    ObjectPtr createObject(std::string_view programId) override { return session_.createObject(programId); }

  private:
    workbench::CompanySession& session_;
};

/// A scan whose steps can be called and timed.
struct Scan : options::ScanProducts {
    using ScanProducts::opened;
    using ScanProducts::ScanProducts;
};

/// Parses the files and runs the statements of a scan, without more.
void scanBare(workbench::Company& company, const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        pugi::xml_document document;
        document.load_file(pathOf(file).c_str());
        for (const pugi::xpath_node& hit : document.select_nodes("//Product/Styles/Style/Options/Option")) {
            for (const char* location : {"0", "1"}) {
                const bool second = *location == '1';
                const pugi::xml_node option = hit.node();
                if (!option.attribute(second ? "ShowInDescription2" : "ShowInDescription").as_bool())
                    continue;
                const std::string name = option.attribute("Name").value();
                if (company
                        .scalar("SELECT COUNT(*) AS theCount FROM OptionDetailSettings WHERE Location = " +
                                std::string(location) + " AND OptionName = '" + name + "'")
                        .toLong() > 0) {
                    continue;
                }
                company.execute(
                    "INSERT INTO OptionDetailSettings (Location,Show,OptionName,Prefix,Sequence) VALUES(" +
                    std::string(location) + ",1,'" + name + "','" +
                    option.attribute(second ? "DescriptionPrefix2" : "DescriptionPrefix").value() + "'," +
                    option.attribute("Sequence").value() + ")");
            }
        }
    }
}

void measureScan(Report& report, std::size_t products) {
    BenchCompany bench{0, 0};
    workbench::Company& company = bench.session().company();
    company.execute("DELETE FROM Products");
    const test::TempFolder folder("tessaline-bench-");
    std::vector<std::string> files;
    for (std::size_t i = 0; i < products; ++i) {
        files.push_back(folder.file(std::to_string(i) + ".xml"));
        std::ofstream(pathOf(files.back()), std::ios::binary) << product();
    }
    insertRows(company, "Products (Product, ProductFile)", products, [&](std::size_t row) {
        return "'Product " + std::to_string(row) + "', '" + files[row] + "'";
    });
    HostDesktop desktop(bench.session());
    const auto library = std::make_shared<Library>(desktop);
    library->Initialize(bench.session().sharedCode());
    const auto clear = [&] { company.execute("DELETE FROM OptionDetailSettings"); };
    const Contest contest({{"scan",
                            [&] {
                                Scan scan(*library);
                                if (!scan.prepare())
                                    throw std::runtime_error("The products cannot be scanned.");
                                scan.opened();
                            },
                            clear},
                           {"bare", [&] { scanBare(company, files); }, clear}},
                          {.seconds = 20, .leastRounds = 3, .mostRounds = 9});
    constexpr std::int32_t added = optionsOfProduct + optionsOfProduct / 5;
    if (company.scalar("SELECT COUNT(*) FROM OptionDetailSettings").toLong() != added)
        throw std::runtime_error("The scan did not add the options.");
    report.add(Line{"scanning " + std::to_string(products) + " products of " +
                        std::to_string(optionsOfProduct) + " options",
                    "parsing the files and running the statements", contest.ratio(0, 1), Line::Goal::AtMost,
                    mostToScan});
}

// The settings ----------------------------------------------------------------------------------------

std::string settingsResult(std::size_t rows) {
    std::string text = "<Records>";
    for (std::size_t row = 0; row < rows; ++row) {
        const std::string n = std::to_string(row);
        text += "<Record><ID>" + std::to_string(row + 1) + "</ID><Sequence>" + n +
                "</Sequence><Show>1</Show><OptionName>Option " + n + "</OptionName><Prefix>Prefix " + n +
                "</Prefix><isBold>0</isBold></Record>";
    }
    return text + "</Records>";
}

/// The settings, whose second tab is empty.
class OpenSettings : public DetailSettings {
  public:
    using DetailSettings::DetailSettings;
    void open() { opened(); }
};

struct SettingsStage {
    explicit SettingsStage(std::size_t rows) {
        library->Initialize(ObjectPtr(host));
        host->text = settingsResult(rows);
        screen = std::make_unique<OpenSettings>(*library);
        screen->open();
        if (screen->current().rptItems.rowCount() != rows)
            throw std::runtime_error("The settings were not read.");
    }
    void run(std::string_view caption) {
        for (const Command& command : screen->cbContext.popups.front().commands) {
            std::string plain = command.caption;
            std::erase(plain, '&');
            if (plain == caption) screen->cbContext.execute(screen->cbContext.popups.front(), command.id);
        }
    }

    test::QuietDesktop desktop;
    std::shared_ptr<PreparedHost> host = std::make_shared<PreparedHost>();
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
    std::unique_ptr<OpenSettings> screen;
};

void measureFilter(Report& report, std::size_t rows) {
    SettingsStage stage(rows);
    const ReportControl& list = stage.screen->current().rptItems;
    std::vector<std::string> texts;
    for (std::size_t record = 0; record < list.recordCount(); ++record) {
        texts.push_back(modSharedStrings::foldCase(std::string(list.cell(record, DetailList::Name)) +
                                                   std::string(list.cell(record, DetailList::Prefix)) +
                                                   std::string(list.cell(record, DetailList::Sequence))));
    }
    const std::string rare = "prefix 4711";
    TextBox& box = stage.screen->txtFilter;
    const Contest contest(
        {{"filter", [&] { box.userType(rare); }, [&] { box.userType("Prefix 47"); }},
         {"pass",
          [&] {
              use(static_cast<std::size_t>(std::ranges::count_if(
                  texts, [&](const std::string& text) { return text.find(rare) != text.npos; })));
          }}},
        {.seconds = 6, .leastRounds = 7, .mostRounds = 41});
    report.add(Line{"a key in the filter of " + std::to_string(rows) + " option settings",
                    "looking for it in every row's text, folded already", contest.ratio(0, 1),
                    Line::Goal::AtMost, mostToFilter});
}

/// Runs a command on all rows, each time after another one that undoes it.
void measureCommand(const Settings& settings, Report& report, std::string_view command,
                    std::string_view undo) {
    measureGrowth(settings, report, "\"" + std::string(command) + "\" of option settings", settings.rows,
                  [&](std::size_t rows) {
                      const auto stage = std::make_shared<SettingsStage>(rows);
                      return Contestant{std::string(command), [stage, command] { stage->run(command); },
                                        [stage, undo] { stage->run(undo); }};
                  });
}

}  // namespace

void measureOptions(const Settings& settings, Report& report) {
    measureScan(report, settings.rows / 100);
    measureFilter(report, settings.rows);
    measureCommand(settings, report, "Uncheck All", "Check All");
    measureCommand(settings, report, "Convert Prefixes to Lowercase", "Convert Prefixes to Uppercase");
    measureCommand(settings, report, "Convert Prefixes to Uppercase", "Convert Prefixes to Lowercase");
}

}  // namespace tsln::bench
