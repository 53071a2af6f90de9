#include "workbench/app/OperationPanel.h"

#include "desktop/NativeWindow.h"
#include "workbench/tour/OperationGroups.h"

namespace tsln::workbench {
namespace {

wxString text(std::string_view utf8) {
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

wxString describe(const Variant& value) {
    if (value.isObject()) return value.toObject() ? "an object" : "nothing";
    if (value.isEmpty()) return "done";
    return text(value.toText());
}

}  // namespace

OperationPanel::OperationPanel(wxWindow* parent, ObjectPtr library, ObjectPtr sharedCode)
    : wxPanel(parent), library_(std::move(library)), sharedCode_(std::move(sharedCode)) {
    name_ = new wxStaticText(this, wxID_ANY, "");
    name_->SetFont(name_->GetFont().Bold().Scaled(1.35F));
    signature_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_ELLIPSIZE_END);
    signature_->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    fields_ = new wxFlexGridSizer(2, FromDIP(wxSize(10, 6)));
    open_ = new wxButton(this, wxID_ANY, "&Open");
    open_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { run(); });
    browse_ = new wxButton(this, wxID_ANY, "&Browse...");
    browse_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onBrowse(operation_->operation); });
    result_ = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                             wxTE_READONLY | wxTE_MULTILINE | wxBORDER_NONE);
    result_->SetMinSize(wxSize(-1, 2 * GetCharHeight()));
    result_->SetBackgroundColour(GetBackgroundColour());
    desktop::setAccessibleName(*result_, "Result");

    auto* column = new wxBoxSizer(wxVERTICAL);
    const int gap = FromDIP(8);
    column->Add(name_);
    column->Add(signature_, wxSizerFlags().Expand().Border(wxTOP, gap / 2));
    column->Add(fields_, wxSizerFlags().Border(wxTOP, gap));
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    line->Add(open_, wxSizerFlags().CenterVertical());
    line->Add(browse_, wxSizerFlags().CenterVertical().Border(wxLEFT, gap));
    column->Add(line, wxSizerFlags().Expand().Border(wxTOP, gap));
    column->Add(result_, wxSizerFlags(1).Expand().Border(wxTOP, gap));
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(column, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(12)));
    SetSizer(margin);
}

void OperationPanel::show(Operation operation) {
    operation_ = &info(operation);
    name_->SetLabelText(text(operation_->name));
    signature_->SetLabelText(text(signature(*operation_)));
    fields_->Clear(true);
    arguments_.clear();
    for (const OperationArgument& argument : operation_->arguments()) {
        const bool given = argument.type == ValueType::Object;
        auto* label = new wxStaticText(this, wxID_ANY, text(argument.name) + ":");
        auto* field = new wxTextCtrl(this, wxID_ANY, given ? "(the host's shared-code object)" : "",
                                     wxDefaultPosition, FromDIP(wxSize(220, -1)), wxTE_PROCESS_ENTER);
        field->Enable(!given);
        field->SetHint(text(typeCaption(argument.type)));
        desktop::setAccessibleName(*field, text(argument.name));
        field->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { run(); });
        fields_->Add(label, wxSizerFlags().CenterVertical());
        fields_->Add(field);
        arguments_.push_back(field);
    }
    const bool offered = operation_->visibility == Visibility::Public;
    open_->Enable(offered);
    browse_->Show(canBrowse && canBrowse(operation));
    showResult(offered ? "" : "Hosts cannot call this operation.", false);
}

/// Converts the field's text to an argument. An empty field is an empty text, 0 or false, by the argument's type.
Argument OperationPanel::argument(std::size_t i) const {
    const ValueType type = operation_->argumentRow[i].type;
    if (type == ValueType::Object) return Argument(sharedCode_);
    const std::string typed = arguments_[i]->GetValue().utf8_string();
    if (typed.empty() && type != ValueType::String) return Argument(Variant());
    return Argument(typed);
}

void OperationPanel::run() {
    if (!operation_ || !open_->IsEnabled()) return;
    std::vector<Argument> arguments;
    for (std::size_t i = 0; i < operation_->argumentCount; ++i)
        arguments.push_back(argument(i));
    try {
        showResult(describe(library_->invoke(operation_->name, Access::Call, Arguments(arguments))), false);
    } catch (const std::exception& error) {
        showResult(text(error.what()), true);
    }
}

void OperationPanel::showResult(const wxString& shown, bool failed) {
    result_->SetForegroundColour(failed ? desktop::failureColour()
                                        : wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
    result_->ChangeValue(shown);
    result_->Show(!shown.empty());
    Layout();
}

}  // namespace tsln::workbench
