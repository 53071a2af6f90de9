#pragma once

#include <string>

namespace tsln::workbench {

/// How the writer's acts look in the company, for whoever checks them.
namespace acts {
inline constexpr int termsPerImport = 25;
inline constexpr int customers = 40;           ///< that a bulk change is for
inline constexpr int firstCustomer = 900'001;  ///< the identifier of the first of them
inline constexpr int oldCustomers = 30;  ///< of the company of version 4.2 that is migrated
inline constexpr const char* street = " Quay Rd";
}  // namespace acts

/// Opens the company, made when it does not exist, and works in it through the module's screens without an end: adds and
/// changes vendors ("v"), imports terms ("i"), changes customers in bulk ("b"), migrates a company of version 4.2 ("m"), in the order of `kinds`. Each act has a
/// number, from `first` on. A company that another program holds is opened when it is free.
///
/// Writes a line to the standard output when the company is open ("open"), before each act ("begin KIND NUMBER") and
/// behind it ("done KIND NUMBER", or "refused KIND NUMBER" with the reason that was shown).
void writeWithoutEnd(const std::string& path, int first, const std::string& kinds);

/// Opens a transaction in the company, writes "holding", and commits it `seconds` later.
void holdCompany(const std::string& path, int seconds);

}  // namespace tsln::workbench
