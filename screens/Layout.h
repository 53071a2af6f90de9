#pragma once

#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// How a screen arranges its controls in rows, columns and labelled fields. The front end turns it into
/// sizers; there are no pixel positions. The order of the controls is their tab order.
struct Layout {
    enum class Kind { Item, Row, Column, Form, Field, Spring, Tabs, Split };
    Kind kind = Kind::Item;
    Control* control = nullptr;    ///< Item, Field: the control; Row, Column: the Frame around it, if any;
                                   ///< Tabs: the TabControl; Split: the Splitter
    std::string caption;           ///< Field: the label before the control
    std::vector<Layout> children;  ///< Row, Column, Form; Tabs: the layout of each page, in their order;
                                   ///< Split: the layouts of the two panes
    bool stretches = false;        ///< takes the remaining space in the direction of its parent
};

namespace layout {

/// One control in its natural size.
inline Layout item(Control& control) {
    return {.kind = Layout::Kind::Item, .control = &control};
}
/// One control that takes the remaining space.
inline Layout fill(Control& control) {
    return {.kind = Layout::Kind::Item, .control = &control, .stretches = true};
}
/// Layouts side by side.
inline Layout row(std::vector<Layout> children) {
    return {.kind = Layout::Kind::Row, .children = std::move(children)};
}
/// Layouts one below the other.
inline Layout column(std::vector<Layout> children) {
    return {.kind = Layout::Kind::Column, .children = std::move(children)};
}
/// Labels on the left, their controls on the right. A child that is not a field spans both.
inline Layout form(std::vector<Layout> fields) {
    return {.kind = Layout::Kind::Form, .children = std::move(fields)};
}
/// A control with its label. The label's "&" marks the control's mnemonic.
inline Layout field(std::string caption, Control& control) {
    return {.kind = Layout::Kind::Field, .control = &control, .caption = std::move(caption)};
}
/// The pages of a tab control: a layout for each.
inline Layout tabs(Control& tabControl, std::vector<Layout> pages) {
    return {.kind = Layout::Kind::Tabs, .control = &tabControl, .children = std::move(pages)};
}
/// The two panes of a splitter.
inline Layout split(Control& splitter, Layout first, Layout second) {
    return {
        .kind = Layout::Kind::Split, .control = &splitter, .children = {std::move(first), std::move(second)}};
}
/// Empty space that grows.
inline Layout spring() {
    return {.kind = Layout::Kind::Spring, .stretches = true};
}
/// Lets a row, column or form take the remaining space.
inline Layout stretch(Layout inner) {
    inner.stretches = true;
    return inner;
}
/// A frame around a row or column.
inline Layout framed(Control& frame, Layout inner) {
    inner.control = &frame;
    return inner;
}

}  // namespace layout
}  // namespace tsln
