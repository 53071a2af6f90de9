#pragma once

#include <string>
#include <vector>

#include "bridge/Operations.h"

namespace tsln::test {

/// What the user and the database see of a lookup list, as it was agreed: statements with their values,
/// messages, captions. Written out here, so that a slip in a description shows.
struct Member {
    struct Check {
        std::string statement, message, advice;  ///< for row 7 with three references
    };
    std::string screen;
    Operation open, edit;
    std::string load;
    std::string table;
    std::string view = {};  ///< where the list reads, if not in the table
    int area = 0;           ///< 0: no rights are checked
    int moveCode = 0;
    std::string listName, exportQuery;  ///< empty: import and export do nothing
    std::vector<std::string> columns;
    std::string row;                 ///< the columns of row 7, named Seven
    std::vector<std::string> cells;  ///< as the list shows them
    std::string question, package;
    std::vector<Check> checks;
    std::string deleteFailure;  ///< empty: the list deletes in a way of its own

    struct Entry {
        std::string control, text;
    };
    std::string newCaption, editCaption;
    std::vector<Entry> typed;  ///< into the empty dialog; the first is the name
    std::string required, duplicate, duplicateColumn, saveFailure;
    std::string insert;          ///< of what was typed
    std::string update;          ///< of row 7, saved as it was loaded
    std::string toldOfNew = {};  ///< what the list tells when a row has been added
};

/// Every list whose dialog saves one row.
extern const std::vector<Member> catalogue;

}  // namespace tsln::test
