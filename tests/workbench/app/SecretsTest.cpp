// No password, nor what it is stored as, gets into anything that the workbench writes but the company file.

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <gmock/gmock.h>

#include "automation/UnicodeText.h"
#include "entities/EmployeeEditor.h"
#include "tests/workbench/app/RunWorkbench.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/app/SignIn.h"
#include "workbench/host/Sha2.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;
using entities::EmailSettingsDialog;
using entities::EmployeeEditor;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr std::int32_t owen = 4;

/// The text in the platform's two-byte encoding.
std::string inTwoBytes(std::string_view text, bool highFirst) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const auto c = static_cast<char16_t>(nextCodePoint(text, at));  // of the first 65,536
        const char pair[] = {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
        bytes += pair[highFirst ? 1 : 0];
        bytes += pair[highFirst ? 0 : 1];
    }
    return bytes;
}

/// True when the bytes contain the text in any encoding, ignoring the case of ASCII letters.
bool holds(std::string bytes, std::string text) {
    const auto lower = [](std::string& in) {
        std::ranges::transform(in, in.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    };
    lower(bytes);
    lower(text);
    return bytes.find(text) != bytes.npos || bytes.find(inTwoBytes(text, false)) != bytes.npos ||
           bytes.find(inTwoBytes(text, true)) != bytes.npos;
}

/// The environment variable of this name for as long as it exists.
struct Environment {
    Environment(const char* variable, const std::string& value) : name(variable) {
        setenv(name, value.c_str(), 1);
    }
    ~Environment() { unsetenv(name); }
    const char* name;
};

TEST(Secrets, NothingOfAPasswordIsWrittenOutsideTheCompanyFile) {
    const std::string login =
                          "t0p s\xC3\xA9"
                          "cret-42",
                      mail = "m4il'p\xC3\xA4ss-77";
    const TestFolder temporary;
    const Environment folderOfTemporaryFiles("TMPDIR", temporary.path());
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    ModuleStage stage;
    const std::string company = stage.folder.file("test.company");
    std::string written;
    stage.session->tracer()->observe([&](const TraceEntry& entry) {
        written += entry.member + "(" + entry.arguments + ")" + entry.statement + " = " + entry.result + "\n";
    });

    // Refused passwords, a save that the database refuses, and one that succeeds.
    stage.desktop.user<EmployeeEditor>("frmEditEmployee", [&](EmployeeEditor& editor) {
        for (const auto& [password, confirmed] :
             {std::pair{login.substr(0, 3), login.substr(0, 3)}, std::pair{login, login + "x"}}) {
            editor.txtPassword.userType(password);
            editor.txtConfirm.userType(confirmed);
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown());
        }
        editor.txtConfirm.userType(login);
        editor.comboBox("cboEmailMethod").userChoose(1);
        stage.desktop.user<EmailSettingsDialog>("frmEmailSettings", [&](EmailSettingsDialog& dialog) {
            dialog.txtServer.userType("mail");
            dialog.chkAuth.userCheck(true);
            dialog.txtPassword.userType(mail);
            dialog.cmdOK.userPress();
        });
        editor.cmdEmailSettings.userPress();
        {
            Company other(company);
            other.begin();
            editor.cmdOK.userPress();
            EXPECT_TRUE(editor.shown()) << "the company was locked";
            other.rollback();
        }
        editor.cmdOK.userPress();
        EXPECT_FALSE(editor.shown());
    });
    ASSERT_EQ(stage.library->ShowEditEmployee(owen), owen);

    // Statements about passwords that fail, on every way to the database.
    const std::string digest = stage.value("SELECT PasswordHash FROM Employees WHERE ID = 4");
    const std::string sealed = stage.value("SELECT EmailSMTPPassword FROM Employees WHERE ID = 4");
    ASSERT_TRUE(sameName(digest, sha2(login, 256)));
    for (const std::string& wrong :
         {"SELECT PasswordHash FROM Employees WHERE PasswordHash = [" + digest + "]",
          "UPDATE Employees SET EmailSMTPPassword = " + sealed,
          "UPDATE Employees SET PasswordHash = '" + login}) {
        for (const auto& [object, member] :
             {std::pair{"Database", "ExecuteScaler"}, std::pair{"Database", "ExecuteNonQuery"},
              std::pair{"CurrentCompanyConn", "Execute"}, std::pair{"TSLNSQL", "ExecuteScaler"}}) {
            try {
                stage.part(object)->call(member, wrong);
            } catch (const HostError&) {
                // Expected. What the caller gets is the caller's; the trace must not have it.
            }
        }
    }
    for (const Message& message : stage.ui.shown)
        written += message.text + "\n" + message.advice + "\n" + message.detail + "\n";
    for (const auto& box : stage.desktop.boxes)
        written += box.text + "\n";
    written += stage.value("SELECT COUNT(*) FROM EventLog") + " events\n";
    for (int event = 1; event < 20; ++event)
        written += stage.value("SELECT EventText FROM EventLog WHERE ID = " + std::to_string(event)) + "\n";
    for (const char* table : {"EmployeeActivity", "CompanyOptions", "UserOptions", "SentMessages"})
        written += stage.session->company().read(std::string("SELECT * FROM ") + table);

    // The program, with a wrong and with the right password.
    for (const std::string& password : {login + "?", login}) {
        const Environment variable("TSLN_PASSWORD", password);
        const Ended ended = runWorkbench("--company '" + company + "' --user owen");
        EXPECT_EQ(ended.exitCode, password == login ? 5 : 4) << ended.output;
        written += ended.output;
    }
    written += testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();

    std::size_t files = 0;
    for (const std::string& folder : {stage.folder.path(), temporary.path()}) {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (!entry.is_regular_file()) continue;
            ++files;
            const std::string name = utf8Of(entry.path());
            for (const std::string& secret : {login, mail, digest, sealed}) {
                const bool storedForm = name == company && (secret == digest || secret == sealed);
                EXPECT_EQ(holds(textOfFile(name), secret), storedForm) << secret << " in " << name;
            }
        }
    }
    EXPECT_GE(files, 1U);
    for (const char* expected : {"PasswordHash = '(hidden)'", "The company is in use by another program."})
        EXPECT_NE(written.find(expected), written.npos) << expected;
    for (const std::string& secret : {login, mail, digest, sealed}) {
        EXPECT_FALSE(holds(written, secret)) << secret;
        EXPECT_FALSE(holds(written, secret.substr(0, 12))) << "the beginning of " << secret;
        for (const std::string& planted : {secret, inTwoBytes(secret, true), inTwoBytes(secret, false)})
            EXPECT_TRUE(holds("a" + planted + "b", secret));
    }
}

TEST(Secrets, TheEnvironmentForgetsThePasswordBeforeProgramsAreStarted) {
    HostStage stage;
    stage.run("UPDATE Employees SET PasswordHash = '" + sha2("top secret", 256) +
              "' WHERE Username = 'priya'");
    for (const char* password : {"top secret", "wrong"}) {
        const CompanySession priya(stage.folder.file("test.company"), "priya", stage.ui);
        setenv("TSLN_PASSWORD", password, 1);
        try {
            EXPECT_TRUE(signInUnasked(priya));
            EXPECT_STREQ(password, "top secret");
        } catch (const SignInError& error) {
            EXPECT_THAT(error.what(), Not(HasSubstr(password == std::string("wrong") ? "wrong" : "top")));
        }
        EXPECT_EQ(std::getenv("TSLN_PASSWORD"), nullptr);
    }
    setenv("TSLN_PASSWORD", "top secret", 1);
    EXPECT_TRUE(signInUnasked(*stage.session)) << "admin has no password";
    EXPECT_EQ(std::getenv("TSLN_PASSWORD"), nullptr);
}

}  // namespace
}  // namespace tsln::workbench
