#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "bridge/Connection.h"
#include "bridge/Database.h"

namespace tsln {

/// The row that a dialog shows, read from either source. A NULL and a missing column read as the empty text, 0 or
/// false.
class Row {
  public:
    virtual ~Row() = default;
    virtual std::string text(std::string_view column) const = 0;
    virtual std::int32_t number(std::string_view column) const = 0;
    virtual float single(std::string_view column) const = 0;
    virtual bool boolean(std::string_view column) const = 0;
    /// Returns nothing for a NULL and for text that is no date.
    virtual std::optional<Date> date(std::string_view column) const = 0;
};

/// A row of a query result.
class RecordRow : public Row {
  public:
    /// The records that contain `record` must outlive the row.
    explicit RecordRow(Record record) : record_(record) {}

    std::string text(std::string_view column) const override {
        return modSharedXML::readText(column, record_);
    }
    std::int32_t number(std::string_view column) const override {
        return modSharedXML::readLong(column, record_);
    }
    float single(std::string_view column) const override { return modSharedXML::readSingle(column, record_); }
    bool boolean(std::string_view column) const override {
        return modSharedXML::readBoolean(column, record_);
    }
    std::optional<Date> date(std::string_view column) const override {
        return modSharedXML::toDate(modSharedXML::readText(column, record_));
    }

  private:
    Record record_;
};

/// The current row of a recordset. Every call may raise HostError.
class RecordsetRow : public Row {
  public:
    /// The recordset must outlive the row.
    explicit RecordsetRow(const Recordset& rows) : rows_(rows) {}

    std::string text(std::string_view column) const override { return rows_.text(column); }
    std::int32_t number(std::string_view column) const override { return rows_.number(column); }
    float single(std::string_view column) const override { return rows_.single(column); }
    bool boolean(std::string_view column) const override { return rows_.number(column) != 0; }
    std::optional<Date> date(std::string_view column) const override {
        return modSharedXML::toDate(rows_.text(column));
    }

  private:
    const Recordset& rows_;
};

}  // namespace tsln
