#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "maintenance/RecordDialog.h"
#include "messages/TemplateTypes.h"
#include "screens/CommandBars.h"
#include "screens/MarkupLabel.h"
#include "screens/ReportControl.h"

namespace tsln::messages {

/// Edits an e-mail template and sends a test of it, as it is shown, to a record that the user names.
class TemplateEditor : public RecordDialog {
  public:
    explicit TemplateEditor(Library& library);

    MarkupLabel lblFields{*this, "lblFields", ""};  ///< shows and hides the merge fields
    ReportControl rptFields{*this, "rptFields"};
    CommandBars cbContext{*this, "cbContext"};
    Frame grpTest{*this, "grpTest", "Test"};
    ComboBox cboTest{*this, "cboTest"};
    TextBox txtTestNumber{*this, "txtTestNumber"};
    Button cmdTest{*this, "cmdTest", ""};

  protected:
    Layout content() override;
    void filled() override;
    void Form_Unload() override;
    bool validate() override;
    bool save() override;
    void reportSaveFailure() override;

  private:
    const TemplateType* type();
    void typeChosen();
    void showTestCaption();
    void loadMergeFields();
    void showMergeFields(bool shown);
    void insertField(std::size_t row);
    void runBodyCommand(int id);
    void cmdTest_Click();
    std::optional<std::string> findStatement(const TemplateType& chosen);

    bool testNumberRead_ = false;
};

/// Edits a template (0: a new one). Returns its key, 0 when nothing was saved.
std::int32_t editTemplate(Library& library, std::int32_t ID);

}  // namespace tsln::messages
