#include "workbench/host/RecordsetObject.h"

namespace tsln::workbench {
namespace {

/// The platform's codes of errors of database objects.
constexpr std::int32_t noCurrentRow = static_cast<std::int32_t>(0x800A0BCD);
constexpr std::int32_t noSuchField = static_cast<std::int32_t>(0x800A0CC1);
constexpr std::int32_t isClosed = static_cast<std::int32_t>(0x800A0E78);

/// The rows and the current position, shared with the recordset's fields.
class Cursor {
  public:
    explicit Cursor(SqlResult result) : result_(std::move(result)), open_(result_.isQuery) {}

    bool open() const noexcept { return open_; }
    const std::vector<std::string>& columns() const {
        requireOpen();
        return result_.columns;
    }
    std::int32_t count() const {
        requireOpen();
        return static_cast<std::int32_t>(result_.rows.size());
    }
    bool atBegin() const { return count() == 0 || at_ < 0; }
    bool atEnd() const { return count() == 0 || at_ >= count(); }

    void moveTo(std::int64_t row) {
        if (count() == 0) raiseNoRow();
        at_ = row;
    }
    /// Moves one row forward or back, at most to the positions before the first and after the last row.
    void step(int by) {
        if (by > 0 ? atEnd() : atBegin()) raiseNoRow();
        at_ += by;
    }
    void close() {
        requireOpen();
        open_ = false;
        result_ = {};
    }
    const Variant& value(std::size_t column) const {
        if (atBegin() || atEnd()) raiseNoRow();
        return result_.rows[static_cast<std::size_t>(at_)][column];
    }

  private:
    void requireOpen() const {
        if (!open_)
            throw HostError(isClosed, "Recordset", "Operation is not allowed when the object is closed.");
    }
    [[noreturn]] static void raiseNoRow() {
        throw HostError(
            noCurrentRow, "Recordset",
            "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record.");
    }

    SqlResult result_;
    bool open_;
    std::int64_t at_ = 0;
};
using CursorPtr = std::shared_ptr<Cursor>;

class Field : public Object {
  public:
    Field(CursorPtr cursor, std::size_t column) : cursor_(std::move(cursor)), column_(column) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Field> members[] = {
            {"Name", [](Field& self, Arguments) { return Variant(self.cursor_->columns()[self.column_]); }},
            {"Value", [](Field& self, Arguments) { return self.cursor_->value(self.column_); }},
        };
        return invokeMember<Field>(*this, "Field", members, member, access, arguments);
    }

  private:
    CursorPtr cursor_;
    std::size_t column_;
};

ObjectPtr makeField(const CursorPtr& cursor, const Variant& which) {
    const std::vector<std::string>& columns = cursor->columns();
    std::size_t column = columns.size();
    if (which.isText()) {
        const std::string name = which.toText();
        for (std::size_t i = columns.size(); i-- > 0;) {
            if (sameName(columns[i], name)) column = i;  // the first of several columns with this name
        }
    } else if (const std::int32_t index = which.toLong(); index >= 0) {
        column = static_cast<std::size_t>(index);
    }
    if (column >= columns.size()) {
        throw HostError(
            noSuchField, "Recordset",
            "Item cannot be found in the collection corresponding to the requested name or ordinal: " +
                which.toText() + ".");
    }
    return std::make_shared<Field>(cursor, column);
}

class Fields : public Object {
  public:
    explicit Fields(CursorPtr cursor) : cursor_(std::move(cursor)) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Fields> members[] = {
            {"Count",
             [](Fields& self, Arguments) {
                 return Variant(static_cast<std::int32_t>(self.cursor_->columns().size()));
             }},
            {"Item",
             [](Fields& self, Arguments a) {
                 a.require(1, 1);
                 return Variant(makeField(self.cursor_, a[0]));
             }},
        };
        return invokeMember<Fields>(*this, "Fields", members, member, access, arguments);
    }

  private:
    CursorPtr cursor_;
};

class Recordset : public Object {
  public:
    explicit Recordset(SqlResult result) : cursor_(std::make_shared<Cursor>(std::move(result))) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        using Self = Recordset;
        static constexpr Member<Self> members[] = {
            {"EOF", [](Self& self, Arguments) { return Variant(self.cursor_->atEnd()); }},
            {"BOF", [](Self& self, Arguments) { return Variant(self.cursor_->atBegin()); }},
            {"RecordCount", [](Self& self, Arguments) { return Variant(self.cursor_->count()); }},
            {"State", [](Self& self, Arguments) { return Variant(self.cursor_->open() ? 1 : 0); }},
            {"MoveFirst",
             [](Self& self, Arguments) {
                 self.cursor_->moveTo(0);
                 return Variant();
             }},
            {"MoveLast",
             [](Self& self, Arguments) {
                 self.cursor_->moveTo(self.cursor_->count() - 1);
                 return Variant();
             }},
            {"MoveNext",
             [](Self& self, Arguments) {
                 self.cursor_->step(1);
                 return Variant();
             }},
            {"MovePrevious",
             [](Self& self, Arguments) {
                 self.cursor_->step(-1);
                 return Variant();
             }},
            // Callers write both Fields(which) and Fields.Item(which).
            {"Fields",
             [](Self& self, Arguments a) {
                 a.require(0, 1);
                 if (a.has(0)) return Variant(makeField(self.cursor_, a[0]));
                 return Variant(std::make_shared<Fields>(self.cursor_));
             }},
            {"Close",
             [](Self& self, Arguments) {
                 self.cursor_->close();
                 return Variant();
             }},
        };
        return invokeMember<Self>(*this, "Recordset", members, member, access, arguments);
    }

  private:
    CursorPtr cursor_;
};

}  // namespace

ObjectPtr makeRecordset(SqlResult result) {
    return std::make_shared<Recordset>(std::move(result));
}

}  // namespace tsln::workbench
