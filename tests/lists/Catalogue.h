#pragma once

#include <string>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::test {

/// The agreed behaviour of a lookup list: statements with their values, messages, captions. Statements are given as they
/// stand; what else is not given follows from the table and its name column, as it does for most lists.
struct Member {
    struct Check {
        std::string statement, message, advice;  ///< for row 7 with three references
    };
    struct Names {
        std::string table;
        std::string name;          ///< the name column
        std::string caption = {};  ///< of the dialog, behind "New" or "Edit"
    };
    Names of;
    std::string view = {};  ///< that the list reads; empty: the table
    std::string screen = {};
    struct Operations {
        Operation open, edit;
    };
    Operations operations;
    int area = 0;  ///< 0: no rights are checked
    int moveCode = 0;
    std::string load = {};
    bool exports = true;  ///< otherwise import and export do nothing
    std::string listName = {}, exportQuery = {};
    std::vector<std::string> columns;
    std::string row = {};                 ///< the columns of row 7, which is named Seven
    std::vector<std::string> cells = {};  ///< the shown cells
    std::string question = {}, package = {};
    std::vector<Check> checks = {};
    std::string deleteFailure = {};  ///< empty: the list has its own deletion

    struct Entry {
        std::string control, text;
    };
    std::string newCaption = {}, editCaption = {};
    std::vector<Entry> typed = {};  ///< typed into the empty dialog; the first is the name
    std::string required, duplicate = {}, saveFailure;
    std::string insert = {};     ///< the expected INSERT of the typed values
    std::string update = {};     ///< the expected UPDATE when row 7 is saved unchanged
    std::string toldOfNew = {};  ///< the message after a row was added
};

/// All lists whose dialog saves one row.
extern const std::vector<Member> catalogue;

}  // namespace tsln::test
