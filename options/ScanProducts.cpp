#include "options/ScanProducts.h"

#include <algorithm>

#include "automation/UnicodeText.h"
#include "bridge/SqlEngine.h"
#include "options/ProductReader.h"
#include "options/Sequence.h"
#include "screens/Job.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::options {
namespace {

using modSharedSQL::doubleQuotes;
using modSharedSQL::fillTags;
using modSharedSQL::format;

constexpr std::string_view screenName = "frmOptionDetailSettings_ScanProducts";
constexpr int width = 440;                 // pixels at 96 per inch
constexpr std::size_t longestPrefix = 16;  // characters

/// Options with these beginnings hold a product's own workings, not choices of a customer.
constexpr std::string_view innerOptions[] = {"C_H_", "C_R_", "C_T_", "visualize"};

/// What a description takes from an option, and its statements.
struct Location {
    const char* show;
    const char* prefix;
    std::string_view count, insert;
};
constexpr Location locations[] = {
    {"ShowInDescription", "DescriptionPrefix",
     "SELECT COUNT(*) AS theCount FROM OptionDetailSettings WHERE Location = 0 AND OptionName = '{{0}}'",
     "INSERT INTO OptionDetailSettings (Location,Show,OptionName,Prefix,Sequence) VALUES(0,1,'{{0}}','{{1}}',{2})"},
    {"ShowInDescription2", "DescriptionPrefix2",
     "SELECT COUNT(*) AS theCount FROM OptionDetailSettings WHERE Location = 1 AND OptionName = '{{0}}'",
     "INSERT INTO OptionDetailSettings (Location,Show,OptionName,Prefix,Sequence) VALUES(1,1,'{{0}}','{{1}}',{2})"},
};

bool isInner(std::string_view name) {
    return std::ranges::any_of(innerOptions, [&](std::string_view begin) {
        return name.size() >= begin.size() && sameName(name.substr(0, begin.size()), begin);
    });
}

bool isTooLong(std::string_view prefix) {
    std::size_t characters = 0;
    for (std::size_t at = 0; at < prefix.size() && characters <= longestPrefix; ++characters)
        nextCodePoint(prefix, at);
    return characters > longestPrefix;
}

}  // namespace

struct ScanProducts::Means {
    explicit Means(const HostScreen& screen) : sql(screen.host()), reader(screen) {}
    SqlEngine sql;
    ProductReader reader;
};

ScanProducts::ScanProducts(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Scanning Products");
    placement.width = width;
    ProgressBar1.accessibleName = "Progress";
}

ScanProducts::~ScanProducts() = default;

Layout ScanProducts::layout() {
    using namespace tsln::layout;
    return column({item(lblProduct), item(ProgressBar1), row({spring(), item(cmdCancel)})});
}

bool ScanProducts::prepare() {
    const bool ready = handle([this] {
        means_ = std::make_unique<Means>(*this);
        const std::int32_t count =
            host()
                .database()
                .ExecuteScaler("SELECT COUNT(*) AS theCount FROM Products WHERE Active <> 0")
                .toLong();
        products_ = static_cast<std::size_t>(std::max(count, 0));
    });
    if (!ready || products_ == 0) means_.reset();
    return means_ != nullptr;
}

void ScanProducts::opened() {
    handle([this] { scan(); });
    means_.reset();
    accept();
}

void ScanProducts::scan() {
    const Records products =
        host().database().ExecuteRead("SELECT ID, Product FROM Products WHERE Active <> 0 ORDER BY Product");
    Job job(*this, products_, &ProgressBar1, &cmdCancel);
    for (const Record product : products) {
        const std::string name = modSharedXML::readText("Product", product);
        lblProduct.setCaption(modSharedStrings::asCaption(name));
        try {
            scanProduct(modSharedXML::readLong("ID", product), name);
        } catch (const HostError& error) {
            log(format("The product '{0}' was not scanned completely: {1}", name, error.text()));
        }
        if (!job.step()) return;
    }
}

void ScanProducts::scanProduct(std::int32_t productID, const std::string& name) {
    // "becuase" is deliberate.
    switch (means_->reader.open(productID)) {
        case ProductReader::Opening::NoFile:
            return log(format(
                "The product '{0}' won't be scanned for product detail settings becuase it does not exist.",
                name));
        case ProductReader::Opening::NotPermitted:
            return log(format(
                "The product '{0}' won't be scanned for product detail settings becuase you don't have permission to use this product.",
                name));
        case ProductReader::Opening::Unreadable:
            return log(format(
                "The product '{0}' won't be scanned for product detail settings becuase the system cannot identify product information in the product.",
                name));
        case ProductReader::Opening::Opened:
            return addOptions();
    }
}

void ScanProducts::addOptions() {
    for (const ProductReader::Option& option : means_->reader.options()) {
        const std::string_view name = option.name();
        if (name.empty() || isInner(name)) continue;
        for (const Location& location : locations) {
            if (!modSharedXML::toBoolean(option.text(location.show), true)) continue;
            const modSharedSQL::Tag optionTag{"{{0}}", doubleQuotes(name)};
            if (countOf(means_->sql.ExecuteScaler(fillTags(location.count, {optionTag}))) > 0) continue;
            const std::string_view prefix = option.text(location.prefix);
            if (isTooLong(prefix)) {
                log(format(
                    "The option '{0}' will not be added to Option Detail Settings because it's prefix, '{1}', is too long.",
                    name, prefix));
                continue;
            }
            // An option without a number is not placed in the sequence yet.
            const std::int32_t sequence = readSequence(option.text("Sequence")).value_or(notPlaced);
            if (!means_->sql.ExecuteNonQuery(fillTags(
                    location.insert, {{"{2}", sequence}, {"{{1}}", doubleQuotes(prefix)}, optionTag}))) {
                log(format("The option '{0}' could not be added to Option Detail Settings.", name));
            }
        }
    }
}

void ScanProducts::log(std::string_view text) const {
    try {
        host().RecordEvent(text);
    } catch (const HostError&) {
        // The scan must go on with the other products.
    }
}

void scanProducts(Library& library) {
    library.screens().show(
        screenName, [&] { return std::make_shared<ScanProducts>(library); },
        [](ScanProducts& screen) { return screen.prepare(); });
}

}  // namespace tsln::options
