#include "migration/OldCompany.h"

namespace tsln::migration {
namespace {

// The login of every 4.2 company, and the text by which its company manager knows a program of the family. Neither
// protects anything.
constexpr std::string_view login = "sa";
constexpr std::string_view familyMark = "tsln";

}  // namespace

bool CompanyManager::load(const std::string& path) const {
    Variant source(path);
    return manager_->get("PSD")
        .object()
        .call("Load", Argument::byReference(source), login, familyMark)
        .toBoolean();
}

std::optional<std::string> CompanyManager::connectionString() const {
    try {
        std::string connection =
            textOf(manager_->get("PSD").object().get("ConnectionString"), "ConnectionString");
        if (manager_->call("CanOpenCompany2", connection).toBoolean()) return connection;
    } catch (const HostError&) {
        // A company that the manager cannot check is as good as one that it cannot open.
    }
    return std::nullopt;
}

bool OldCompany::connect(std::string_view connectionString) const noexcept {
    try {
        const Variant result = engine_->call("Initialize", connectionString);
        return result.isEmpty() ||
               result.toBoolean();  // a procedure, or a function that tells of its success
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace tsln::migration
