#include "bridge/HostPart.h"

#include "bridge/Library.h"

namespace tsln {

ObjectPtr sharedCodeOf(Library& library) {
    if (ObjectPtr sharedCode = library.SharedCodeLibrary()) return sharedCode;
    throw HostError(code::objectNotSet, "Library", "The library has not been initialized.");
}

std::string textOf(const Variant& result, std::string_view member) {
    if (result.isText()) return result.toText();
    if (result.isEmpty() || result.isNull()) return {};
    throw HostError(code::typeMismatch, std::string(member), std::string(member) + " answered with no text.");
}

ObjectPtr HostPart::fetch() const {
    if (ObjectPtr part = sharedCodeOf(library_)->get(name_).toObject()) return part;
    throw HostError(code::objectNotSet, "Library", "The host offers no " + std::string(name_) + " object.");
}

}  // namespace tsln
