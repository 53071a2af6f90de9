#include "workbench/host/Components.h"

#include "workbench/host/CompanyManager42.h"
#include "workbench/host/ExpressionEngine.h"
#include "workbench/host/FileManager.h"
#include "workbench/host/ImportExportEngine.h"
#include "workbench/host/NumericFieldChecker.h"
#include "workbench/host/ProductFileEngine.h"

namespace tsln::workbench {
namespace {

using ContextPtr = std::shared_ptr<HostContext>;

struct Component {
    std::string_view programId;
    ObjectPtr (*create)(const ContextPtr& context);
};
constexpr Component components[] = {
    {"tslnnum5.Checker",
     [](const ContextPtr&) -> ObjectPtr { return std::make_shared<NumericFieldChecker>(); }},
    {"tslnfe5.Engine",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<ExpressionEngine>(context); }},
    {"tslniee5.Engine",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<ImportExportEngine>(context); }},
    {"tslnfm5.Library",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<FileManager>(context); }},
    {"catalog5engine.Engine",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<ProductFileEngine>(context); }},
    {"tslncmgr5.Library",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<CompanyManager42>(context); }},
    {"tslnsql5.Engine",
     [](const ContextPtr& context) -> ObjectPtr { return std::make_shared<SqlEngine42>(context); }},
};

}  // namespace

ObjectPtr createComponent(std::string_view programId, const ContextPtr& context) {
    for (const Component& component : components) {
        if (sameName(component.programId, programId)) return component.create(context);
    }
    throw HostError(code::classNotRegistered, "Workbench",
                    "There is no component '" + std::string(programId) + "' in this program.");
}

}  // namespace tsln::workbench
