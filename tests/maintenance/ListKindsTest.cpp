#include "doubles/Stage.h"
#include "maintenance/ListKinds.h"
#include "maintenance/ListScreen.h"

namespace tsln::test {
namespace {

/// Opens the terms list and runs commands of its "More" popup.
void runCommands(Stage& stage, std::deque<int> commands, std::deque<std::string> files,
                 const ListDescription& list = lists::termsList) {
    const auto count = commands.size();
    stage.desktop.popupChoices = std::move(commands);
    stage.desktop.files = std::move(files);
    stage.desktop.user<ListScreen>("frmTerms", [count](ListScreen& screen) {
        for (std::size_t i = 0; i < count; ++i)
            screen.cmdMore.userPress();
    });
    showList(*stage.library, list);
}

void fillList(Stage& stage) {
    stage.host->rows("SELECT * FROM Terms ORDER BY Terms",
                     "<Records><Record><ID>1</ID><Terms>COD</Terms></Record></Records>");
}

TEST(ListKinds, NamesAndExportQueries) {
    EXPECT_EQ(findListKind(1).exportQuery, "SELECT * FROM vwExportingManufacturers");
    EXPECT_EQ(findListKind(9).displayName, "Deposit Criteria");
    EXPECT_EQ(findListKind(26).exportQuery,
              "SELECT * FROM vwExporting_AdditionalCharges WHERE ChargeType = 256");
    for (const std::int16_t none : {0, 19, 37, -1}) {
        EXPECT_EQ(findListKind(none).listName, "");
        EXPECT_EQ(findListKind(none).exportQuery, "");
    }
    int known = 0;
    for (std::int16_t kind = 1; kind <= 36; ++kind)
        known += findListKind(kind).listName.empty() ? 0 : 1;
    EXPECT_EQ(known, 35);
}

TEST(ListKinds, ImportPassesTheFileToTheEngineAndReloads) {
    Stage stage;
    fillList(stage);
    runCommands(stage, {28001, 28001}, {"/in/terms.xml"});
    const auto& calls = stage.host->calls;
    const auto engine = std::ranges::find_if(calls, [](auto& c) { return c.starts_with("tslniee5"); });
    ASSERT_NE(engine, calls.end());
    EXPECT_THAT(
        std::vector(engine, engine + 3),
        ElementsAre("tslniee5.Engine.Initialize(object)", "tslniee5.Engine.ImportFile(/in/terms.xml, Terms)",
                    "tslniee5.Engine.PreTerminate()"));
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(information("The terms were imported.")));
    EXPECT_EQ(stage.desktop.fileDialogs.at(0).title, "Open");
    EXPECT_THAT(stage.desktop.fileDialogs.at(0).filters,
                ElementsAre("XML Files|*.xml", "Text Files|*.txt", "All Files|*.*"));
    EXPECT_EQ(stage.read().size(), 3U) << "the list is loaded again after each";
}

TEST(ListKinds, ExportPassesTheQueryToTheEngine) {
    for (const char* portable : {"1", "0", "", "nonsense"}) {
        Stage stage;
        fillList(stage);
        if (*portable) stage.desktop.settings["Software\\Kestrane\\Tessaline\\5.0|PortableExport"] = portable;
        runCommands(stage, {28003, 28003}, {"/out/terms {0}.xml"});
        const auto& calls = stage.host->calls;
        const auto engine = std::ranges::find_if(calls, [](auto& c) { return c.starts_with("tslniee5"); });
        ASSERT_NE(engine, calls.end());
        EXPECT_THAT(
            std::vector(engine, engine + 5),
            ElementsAre(
                "tslniee5.Engine.Initialize(object)",
                "tslniee5.Engine.SimpleExport=(" + std::string(*portable == '1' ? "True" : "False") + ")",
                "tslniee5.Engine.AddToExport(Terms, SELECT * FROM vwExporting_Terms)",
                "tslniee5.Engine.DoExport(/out/terms {0}.xml)", "tslniee5.Engine.PreTerminate()"));
        EXPECT_THAT(stage.desktop.boxes,
                    ElementsAre(information("The terms were exported to '/out/terms {0}.xml'")));
        EXPECT_EQ(stage.desktop.fileDialogs.at(0).title, "Save As");
    }
}

TEST(ListKinds, FailuresAreReportedAndTheEngineIsTerminated) {
    for (const std::string member : {"ImportFile", "DoExport", "Initialize"}) {
        for (const bool raise : {true, false}) {
            Stage stage;
            fillList(stage);
            if (member == "Initialize" && !raise) {
                stage.desktop.components = nullptr;  // no engine at all
            } else if (raise) {
                stage.host->on("tslniee5.Engine." + member, raises());
            } else {
                stage.host->on("tslniee5.Engine." + member, Variant(false));
            }
            const bool importing = member != "DoExport";
            runCommands(stage, {importing ? 28001 : 28003}, {"/some/file"});
            EXPECT_THAT(stage.desktop.boxes, ElementsAre(Box{importing ? "The terms could not be imported."
                                                                       : "The terms could not be exported.",
                                                             MessageButtons::Ok, MessageIcon::Exclamation}));
            if (member != "Initialize") {
                EXPECT_EQ(stage.host->callsOf("tslniee5.Engine.PreTerminate").size(), 1U);
            }
        }
    }
}

TEST(ListKinds, AnUnknownListKindNeitherAsksNorReports) {
    ListDescription quoteApproval = lists::termsList;
    quoteApproval.listKind = 19;
    Stage stage;
    fillList(stage);
    runCommands(stage, {28001, 28003}, {"/a", "/b"}, quoteApproval);
    EXPECT_THAT(stage.desktop.fileDialogs, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
}

}  // namespace
}  // namespace tsln::test
