#include "bridge/Connection.h"

#include <algorithm>

namespace tsln {
namespace {

constexpr std::int32_t stateOpen = 1;

}  // namespace

Recordset::~Recordset() {
    if (!rows_) return;
    try {
        rows_->call("Close");
    } catch (const std::exception&) {
        // All rows that were needed have been read.
    }
}

bool Recordset::isOpen() const {
    return rows_ && (rows_->get("State").toLong() & stateOpen) != 0;
}

bool Recordset::atEnd() const {
    return !rows_ || rows_->get("EOF").toBoolean();
}

void Recordset::next() const {
    rows_->call("MoveNext");
}

ObjectPtr Recordset::field(const Variant& which) const {
    return rows_->get("Fields").object().get("Item", which).toObject();
}

Variant Recordset::value(std::string_view name) const {
    return Variant(field(name)).object().get("Value");
}

Variant Recordset::value(std::int32_t place) const {
    return Variant(field(place)).object().get("Value");
}

std::string Recordset::name(std::int32_t place) const {
    return Variant(field(place)).object().get("Name").toText();
}

std::int32_t Recordset::fieldCount() const {
    return rows_->get("Fields").object().get("Count").toLong();
}

std::string Recordset::text(std::string_view field) const {
    const Variant held = value(field);
    return held.isNull() ? std::string() : held.toText();
}

std::int32_t Recordset::number(std::string_view field) const {
    const Variant held = value(field);
    return held.isNull() ? 0 : held.toLong();
}

float Recordset::single(std::string_view field) const {
    const Variant held = value(field);
    return held.isNull() ? 0 : held.toSingle();
}

void Connection::Execute(std::string_view sql) const {
    connection_->call("Execute", sql);
}

std::optional<std::int32_t> Connection::ExecuteCounting(std::string_view sql) const {
    Variant changed;
    try {
        connection_->call("Execute", sql, Argument::byReference(changed));
    } catch (const HostError& error) {
        // A connection that a script stands in for may take the statement alone. It has not run yet.
        if (error.code() != code::badParamCount) throw;
        Execute(sql);
    }
    if (changed.isEmpty() || !changed.isNumeric()) return std::nullopt;
    return changed.toLong();
}

Recordset Connection::read(std::string_view sql) const {
    return Recordset(connection_->call("Execute", sql).toObject());
}

Variant Connection::property(std::string_view name) const {
    return connection_->get(name);
}

std::vector<std::string> Connection::errors() const {
    std::vector<std::string> descriptions;
    const ObjectPtr errors = connection_->get("Errors").toObject();
    const std::int32_t count = errors ? std::max(errors->get("Count").toLong(), 0) : 0;
    descriptions.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i)
        descriptions.push_back(errors->get("Item", i).object().get("Description").toText());
    return descriptions;
}

}  // namespace tsln
