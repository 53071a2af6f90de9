#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bridge/Library.h"
#include "doubles/ScriptedDesktop.h"
#include "doubles/TempFolder.h"
#include "module/Module.h"
#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/host/CompanySession.h"
#include "workbench/host/RecordLists.h"

namespace tsln::workbench {

/// Records the host's messages and answers as the test says.
class RecordingUi : public HostUi {
  public:
    std::vector<Message> shown;
    std::deque<Reply> replies;  ///< Ok when none is left
    std::vector<ExpressionEdit> edits;
    std::optional<std::string> edited;  ///< the user's text for an expression; empty: cancelled
    std::vector<RecordSearch> searches;
    std::optional<std::int32_t> searched;  ///< the record that the user chooses; empty: cancelled
    std::optional<std::string> folder;     ///< the folder that the user chooses; empty: cancelled
    bool sends = false;                    ///< the user sends every e-mail as it is shown, or cancels it

    Reply showMessage(const Message& message) override {
        shown.push_back(message);
        if (replies.empty()) return {};
        const Reply reply = replies.front();
        replies.pop_front();
        return reply;
    }
    std::optional<std::string> editExpression(const ExpressionEdit& edit) override {
        edits.push_back(edit);
        return edited;
    }
    std::optional<std::int32_t> searchRecord(const RecordSearch& search) override {
        searches.push_back(search);
        return searched;
    }
    std::optional<Email> editEmail(const Email& email) override {
        if (!sends) return std::nullopt;
        return email;
    }
    std::optional<std::string> chooseFolder(const std::string&) override { return folder; }
};

/// A temporary folder and its files.
class TestFolder : public test::TempFolder {
  public:
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(file(name), std::ios::binary) << text;
        return file(name);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(path()))
            result.push_back(entry.path().filename().string());
        return result;
    }
};

inline std::string textOfFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// An open demonstration company without terms, or a copy of another company, with an empty event log and the named
/// user.
struct HostStage {
    explicit HostStage(std::string_view login = "admin", OpenMode mode = OpenMode::Create,
                       const std::string& copyOf = "") {
        if (!copyOf.empty()) std::filesystem::copy_file(copyOf, folder.file("test.company"));
        Company(folder.file("test.company")).execute("DELETE FROM EventLog");
        if (copyOf.empty()) forgetTerms(folder.file("test.company"));
        session = std::make_unique<CompanySession>(folder.file("test.company"), login, ui, mode);
    }

    TestFolder folder;
    RecordingUi ui;
    std::unique_ptr<CompanySession> session;

    ObjectPtr part(std::string_view name) const { return session->sharedCode()->get(name).toObject(); }
    Object& shared() const { return *session->sharedCode(); }
    /// Returns the first value of a query as text; "-" for none.
    std::string value(std::string_view sql) const {
        const Variant found = session->company().scalar(sql);
        return found.isEmpty() || found.isNull() ? "-" : found.toText();
    }
    /// Returns the rows of a query, each as its values.
    std::vector<std::string> rows(std::string_view sql) const {
        std::vector<std::string> all;
        for (const auto& row : session->company().run(sql).rows) {
            std::string& text = all.emplace_back();
            for (const Variant& value : row)
                text += (text.empty() ? "" : "|") + (value.isNull() ? std::string("-") : value.toText());
        }
        return all;
    }
    void run(std::string_view sql) const { session->company().execute(sql); }
    std::vector<std::string> events() const { return rows("SELECT EventText FROM EventLog ORDER BY ID"); }
    /// The texts in the history of a record that this operation edits, the last one first.
    std::vector<std::string> history(Operation editor, std::int32_t ID) const {
        std::vector<std::string> texts;
        for (const HistoryEntry& entry : historyOf(session->company(), *recordKindOf(editor), ID))
            texts.push_back(entry.text);
        return texts;
    }
    /// From now on the database refuses a change: "UPDATE ON Vendors", "UPDATE ON Vendors WHEN ...".
    void refuse(const std::string& change) const {
        SQLite::Database(folder.file("test.company"), SQLite::OPEN_READWRITE)
            .exec("CREATE TRIGGER \"" + change + "\" BEFORE " + change +
                  " BEGIN SELECT RAISE(ABORT, 'Refused'); END");
    }
    std::string lastEvent() const { return value("SELECT TOP 1 EventText FROM EventLog ORDER BY ID DESC"); }
};

/// A company with its host and the module, on a scripted desktop.
struct ModuleStage : HostStage {
    explicit ModuleStage(std::string_view login = "admin", OpenMode mode = OpenMode::Create)
        : HostStage(login, mode) {
        plugInModule(*library);
        desktop.components = [this](std::string_view programId) { return session->createObject(programId); };
        library->Initialize(session->sharedCode());
    }

    test::ScriptedDesktop desktop;
    std::shared_ptr<Library> library = std::make_shared<Library>(desktop);
};

}  // namespace tsln::workbench
