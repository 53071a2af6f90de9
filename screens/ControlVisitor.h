#pragma once

namespace tsln {

class Button;
class CheckBox;
class CheckList;
class ColorBox;
class ComboBox;
class CommandBars;
class DateBox;
class Frame;
class Label;
class MarkupLabel;
class OptionButton;
class Picture;
class ProgressBar;
class PropertyGrid;
class ReportControl;
class Splitter;
class TabControl;
class TextBox;

/// Has one function for each kind of control. None has a default, so a front end that lacks a kind does not
/// compile.
class ControlVisitor {
  public:
    virtual void visit(Button& button) = 0;
    virtual void visit(CheckBox& box) = 0;
    virtual void visit(CheckList& list) = 0;
    virtual void visit(ColorBox& box) = 0;
    virtual void visit(ComboBox& box) = 0;
    virtual void visit(CommandBars& bars) = 0;
    virtual void visit(DateBox& box) = 0;
    virtual void visit(Frame& frame) = 0;
    virtual void visit(Label& label) = 0;
    virtual void visit(MarkupLabel& label) = 0;
    virtual void visit(OptionButton& button) = 0;
    virtual void visit(Picture& picture) = 0;
    virtual void visit(ProgressBar& bar) = 0;
    virtual void visit(PropertyGrid& grid) = 0;
    virtual void visit(ReportControl& report) = 0;
    virtual void visit(Splitter& splitter) = 0;
    virtual void visit(TabControl& tabs) = 0;
    virtual void visit(TextBox& box) = 0;

  protected:
    ~ControlVisitor() = default;
};

}  // namespace tsln
