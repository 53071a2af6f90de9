#include "workbench/host/ConnectionObject.h"

#include "automation/FilePath.h"
#include "workbench/company/CompanyFile.h"
#include "workbench/host/RecordsetObject.h"

namespace tsln::workbench {
namespace {

/// The platform's code for a statement that failed.
constexpr std::int32_t statementFailed = static_cast<std::int32_t>(0x80040E14);
constexpr std::int32_t noSuchItem = static_cast<std::int32_t>(0x800A0CC1);
constexpr std::int32_t stateOpen = 1;
constexpr std::string_view source = "Company database";

class Error : public Object {
  public:
    explicit Error(const SqlError& error) : code_(error.code()), text_(error.what()) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Error> members[] = {
            {"Number", [](Error&, Arguments) { return Variant(statementFailed); }},
            {"Description", [](Error& self, Arguments) { return Variant(self.text_); }},
            {"Source", [](Error&, Arguments) { return Variant(source); }},
            {"NativeError",
             [](Error& self, Arguments) { return Variant(static_cast<std::int32_t>(self.code_)); }},
        };
        return invokeMember<Error>(*this, "Error", members, member, access, arguments);
    }

  private:
    int code_;
    std::string text_;
};

}  // namespace

class ConnectionObject::Errors : public Object {
  public:
    void setTo(const SqlError& error) { errors_ = {std::make_shared<Error>(error)}; }

    Variant item(const Variant& which) const {
        const std::int32_t index = which.toLong();
        if (index < 0 || static_cast<std::size_t>(index) >= errors_.size()) {
            throw HostError(noSuchItem, "Errors", "There is no error " + which.toText() + ".");
        }
        return errors_[static_cast<std::size_t>(index)];
    }

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Errors> members[] = {
            {"Count",
             [](Errors& self, Arguments) { return Variant(static_cast<std::int32_t>(self.errors_.size())); }},
            {"Item",
             [](Errors& self, Arguments a) {
                 a.require(1, 1);
                 return self.item(a[0]);
             }},
            {"Clear",
             [](Errors& self, Arguments) {
                 self.errors_.clear();
                 return Variant();
             }},
        };
        return invokeMember<Errors>(*this, "Errors", members, member, access, arguments);
    }

  private:
    std::vector<ObjectPtr> errors_;
};

ConnectionObject::ConnectionObject(std::shared_ptr<HostContext> context)
    : HostObject(std::move(context)), errors_(std::make_shared<Errors>()) {}

template <class Work>
Variant ConnectionObject::keepingErrors(const Work& work) {
    try {
        return work();
    } catch (const SqlError& error) {
        errors_->setTo(error);
        throw HostError(statementFailed, std::string(source), error.what());
    }
}

Variant ConnectionObject::Execute(Arguments a) {
    a.require(1, 3);
    return keepingErrors([&] {
        SqlResult result = context().company.run(a[0].toText());
        constexpr std::int32_t ofAQuery = -1;
        a.assign(1, result.isQuery ? ofAQuery : static_cast<std::int32_t>(result.changed));
        return Variant(makeRecordset(std::move(result)));
    });
}

Variant ConnectionObject::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = ConnectionObject;
    static constexpr Member<Self> members[] = {
        {"Execute", [](Self& self, Arguments a) { return self.Execute(a); }},
        {"BeginTrans",
         [](Self& self, Arguments) {
             return self.keepingErrors([&] {
                 self.context().company.begin();
                 return Variant(1);  // the nesting depth of the transactions
             });
         }},
        {"CommitTrans",
         [](Self& self, Arguments) {
             return self.keepingErrors([&] {
                 self.context().company.commit();
                 return Variant();
             });
         }},
        {"RollbackTrans",
         [](Self& self, Arguments) {
             return self.keepingErrors([&] {
                 Company& company = self.context().company;
                 if (!company.inTransaction()) throw SqlError(-1, "No transaction is open.");
                 company.rollback();
                 return Variant();
             });
         }},
        {"DefaultDatabase",
         [](Self& self, Arguments) {
             return Variant(utf8Of(pathOf(self.context().company.path()).filename()));
         }},
        {"ConnectionTimeout", [](Self&, Arguments) { return Variant(busySeconds); }},
        {"CommandTimeout", [](Self&, Arguments) { return Variant(busySeconds); }},
        {"State", [](Self&, Arguments) { return Variant(stateOpen); }},
        {"Errors",
         [](Self& self, Arguments a) {
             a.require(0, 1);
             return a.has(0) ? self.errors_->item(a[0]) : Variant(self.errors_);
         }},
    };
    return invokeMember<Self>(*this, "Connection", members, member, access, arguments);
}

}  // namespace tsln::workbench
