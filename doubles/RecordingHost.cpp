#include "doubles/RecordingHost.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "automation/NumericText.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedXML.h"

namespace tsln::test {
namespace {

class Document : public Object {
  public:
    explicit Document(std::string xml) : xml_(std::move(xml)) {}
    Variant invoke(std::string_view member, Access, Arguments) override {
        if (!sameName(member, "xml")) raiseUnknownMember("Document", member);
        return xml_;
    }

  private:
    std::string xml_;
};

/// The rows of a query, as a connection returns them.
class Rows : public Object {
  public:
    explicit Rows(const std::string& xml) : rows_(modSharedXML::Records::parse(xml)), at_(rows_.begin()) {}
    Variant invoke(std::string_view member, Access, Arguments) override {
        if (sameName(member, "State")) return 1;
        if (sameName(member, "EOF")) return at_ == rows_.end();
        if (sameName(member, "MoveNext")) return ++at_, Variant();
        if (sameName(member, "Close")) return {};
        if (sameName(member, "Fields")) return std::make_shared<Fields>(*at_);
        raiseUnknownMember("Recordset", member);
    }

  private:
    class Fields : public Object {
      public:
        explicit Fields(modSharedXML::Record row) : row_(row) {}
        Variant invoke(std::string_view member, Access, Arguments a) override {
            if (sameName(member, "Name")) return name_;
            if (sameName(member, "Value")) return value_;
            const auto columns = row_.node().children();
            if (sameName(member, "Count"))
                return static_cast<std::int32_t>(std::distance(columns.begin(), columns.end()));
            if (!sameName(member, "Item")) raiseUnknownMember("Fields", member);
            const auto field = std::make_shared<Fields>(row_);
            const std::string name =
                a[0].isText() ? a[0].toText() : std::next(columns.begin(), a[0].toLong())->name();
            field->name_ = name;
            if (!row_.node().child(name.c_str())) {
                field->value_ = Null();
            } else {
                field->value_ = modSharedXML::readText(name, row_);
            }
            return field;
        }

      private:
        modSharedXML::Record row_;
        std::string name_;
        Variant value_;
    };
    modSharedXML::Records rows_;
    modSharedXML::Records::Iterator at_;
};

/// The errors collection of a connection, and one error of it.
class Errors : public Object {
  public:
    explicit Errors(std::vector<std::string> texts) : texts_(std::move(texts)) {}
    Variant invoke(std::string_view member, Access, Arguments a) override {
        if (sameName(member, "Count")) return static_cast<std::int32_t>(texts_.size());
        if (sameName(member, "Description")) return texts_.front();
        if (!sameName(member, "Item")) raiseUnknownMember("Errors", member);
        return std::make_shared<Errors>(std::vector{texts_.at(static_cast<std::size_t>(a[0].toLong()))});
    }

  private:
    std::vector<std::string> texts_;
};

/// Fills a combo box from a query, like the host.
void fillCombo(Object& combo, const std::string& xml, Arguments a) {
    const auto rows = modSharedXML::Records::parse(xml);
    combo.call("Clear");
    if (a[4].toBoolean()) combo.call("AddItem", "");
    for (const modSharedXML::Record row : rows) {
        combo.call("AddItem", modSharedXML::readText(a[2].toText(), row));
        combo.put("ItemData", combo.get("NewIndex"), modSharedXML::readLong(a[3].toText(), row));
    }
}

/// Joins the parts of an address, one per line.
std::string joinLines(Arguments parts) {
    std::string text;
    for (const Argument& part : parts.all()) {
        const std::string line = part.value().toText();
        text += (text.empty() || line.empty() ? "" : "\r\n") + line;
    }
    return text;
}

const std::set<std::string> subObjects{
    "Database", "Common",   "Security",           "Options", "Messages",
    "Activity", "Profiles", "CurrentCompanyConn", "TSLNSQL", "tslncmgr5.Library.PSD"};

std::string describe(const Variant& value) {
    return value.isObject() ? "object" : value.toText();
}

/// Corrects the number in a text box. The arguments are the box, minimum, maximum and default.
void correctNumber(Arguments arguments, bool whole) {
    Object& box = arguments[0].object();
    double number = parseNumber(box.get("Text").toText()).value_or(arguments[3].toDouble());
    if (whole) number = std::nearbyint(number);
    box.put("Text", numberText(std::clamp(number, arguments[1].toDouble(), arguments[2].toDouble())));
}

}  // namespace

class RecordingHost::Part : public Object {
  public:
    Part(std::weak_ptr<RecordingHost> host, std::string prefix)
        : host_(std::move(host)), prefix_(std::move(prefix)) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        const auto host = host_.lock();
        if (!host) throw HostError(code::fail, "RecordingHost", "used after its end");
        return host->answer(prefix_ + std::string(member), access, arguments);
    }

  private:
    std::weak_ptr<RecordingHost> host_;
    std::string prefix_;
};

std::shared_ptr<RecordingHost> RecordingHost::make() {
    return std::make_shared<RecordingHost>();
}

ObjectPtr RecordingHost::sharedCode() {
    return part("");
}

ObjectPtr RecordingHost::component(std::string_view programId) {
    return part(std::string(programId) + ".");
}

ObjectPtr RecordingHost::part(std::string prefix) {
    const auto made = std::make_shared<Part>(weak_from_this(), std::move(prefix));
    parts_.push_back(made);
    return made;
}

int RecordingHost::liveObjects() const {
    return static_cast<int>(std::ranges::count_if(parts_, [](const auto& part) { return !part.expired(); }));
}

Variant RecordingHost::answer(const std::string& path, Access access, Arguments arguments) {
    const bool fetch = subObjects.contains(path);
    if (!fetch) {
        std::string call = path + (access == Access::Put ? "=(" : "(");
        for (std::size_t i = 0; i < arguments.count(); ++i) {
            call += (i > 0 ? ", " : "") + describe(arguments[i]);
        }
        calls.push_back(call + ")");
    }
    if (const int number = callCount_++; fault_ && fault_->number == number) return wrongAnswer(fault_->fault);
    if (const auto own = answers_.find(path); own != answers_.end()) return own->second(arguments);
    return fetch ? part(path + ".") : usualAnswer(path, arguments);
}

Variant RecordingHost::usualAnswer(const std::string& path, Arguments arguments) {
    const auto rowsOf = [&](const std::string& sql) {
        const auto found = rows_.find(sql);
        return found == rows_.end() ? "<Records/>" : found->second;
    };
    if (path == "Database.ExecuteRead") return makeDocument(rowsOf(arguments[0].toText()));
    if (path == "CurrentCompanyConn.Execute" && arguments[0].toText() == failStatement) {
        throw HostError(code::fail, "Connection", "The statement failed.");
    }
    if (path == "CurrentCompanyConn.Execute") return std::make_shared<Rows>(rowsOf(arguments[0].toText()));
    if (path == "CurrentCompanyConn.Errors") return std::make_shared<Errors>(connectionErrors);
    if (path == "Common.LoadComboFromQuery") {
        fillCombo(arguments[0].object(), rowsOf(arguments[1].toText()), arguments);
        return {};
    }
    // The default is the last argument; the section before it is optional.
    if (path == "Options.GetUserOption" || path == "Options.GetCompanyOption")
        return arguments[arguments.count() - 1];
    if (path == "tslnnum5.Checker.CheckInteger" || path == "tslnnum5.Checker.CheckDecimal") {
        correctNumber(arguments, path.ends_with("Integer"));
        return {};
    }
    if (path == "Database.ExecuteScaler") return 0;
    if (path == "Database.ExecuteNonQuery") return true;
    if (path == "Database.ExecuteNonQueryWithID") return 1;
    if (path == "Database.LastSQLErrorDescription") return "the database's own words";
    if (path == "Common.RecordExists") return false;
    if (path == "Security.CanDo") return true;
    if (path == "Security.CompanyFeatureEnabled") return true;
    if (path == "GetSHA2") return "0123456789abcdef";
    if (path == "TSLNSQL.ExecuteScaler") return 0;
    if (path == "TSLNSQL.ExecuteNonQuery") return true;
    if (path == "FixDateForSQLInsert") return arguments[0].toText();
    if (path == "FixForSQLInsert") return modSharedSQL::doubleQuotes(arguments[0].toText());
    if (path == "CombineAddress") return joinLines(arguments);
    if (path == "ParseAddress") return arguments.assign(1, arguments[0]), true;  // all in the first line
    if (path == "Common.ComplexEncrypt") return "encrypted";
    if (path == "Common.CreateGUID") return "0123ABCD";
    if (path == "Common.FormatAsGUID") return "{" + arguments[0].toText() + "}";
    if (path == "PSDFile") return "/psd/company.psd";
    if (path == "tslncmgr5.Library.PSD.Load" || path == "tslncmgr5.Library.CanOpenCompany2") return true;
    if (path == "tslncmgr5.Library.PSD.ConnectionString") return "the old company";
    if (path == "tslnsql5.Engine.ExecuteRead") return makeDocument(rowsOf(arguments[0].toText()));
    if (path == "tslniee5.Engine.ImportFile" || path == "tslniee5.Engine.DoExport") return true;
    return {};
}

std::vector<std::string> RecordingHost::callsOf(std::string_view path) const {
    std::vector<std::string> found;
    const std::string start = std::string(path) + "(";
    for (const std::string& call : calls) {
        if (call.starts_with(start))
            found.push_back(call.substr(start.size(), call.size() - start.size() - 1));
    }
    return found;
}

void RecordingHost::forget() {
    calls.clear();
    std::erase_if(parts_, [](const auto& part) { return part.expired(); });
}

bool RecordingHost::told() const {
    return std::ranges::any_of(calls, [](const std::string& call) { return call.starts_with("Show"); });
}

Variant wrongAnswer(Fault fault) {
    switch (fault) {
        case Fault::Raise:
            throw HostError(code::fail, "Host", "The host raised an error.");
        case Fault::False:
            return false;
        case Fault::Nothing:
            return ObjectPtr();
        case Fault::WrongType:
            return "neither fish nor fowl";
        case Fault::Empty:
            break;
    }
    return {};
}

ObjectPtr makeDocument(std::string xml) {
    return std::make_shared<Document>(std::move(xml));
}

}  // namespace tsln::test
