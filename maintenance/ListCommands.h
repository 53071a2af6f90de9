#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "bridge/Security.h"

namespace tsln {

class ListScreen;

/// The identifiers of the commands and popups that all lists share.
namespace command {
inline constexpr int import = 28001;
inline constexpr int exportList = 28003;
inline constexpr int more = 28200;
inline constexpr int print = 28201;
inline constexpr int save = 28202;
inline constexpr int moveReferences = 28250;
inline constexpr int installDefaults = 28251;
inline constexpr int noItems = 28300;
inline constexpr int oneItem = 28301;
inline constexpr int newItem = 28305;
inline constexpr int editItem = 28306;
inline constexpr int deleteItem = 28307;
}  // namespace command

/// A set of rights that are all required, as bits of Right.
using Rights = std::uint32_t;
constexpr Rights rights(std::initializer_list<Right> all) {
    Rights set = 0;
    for (const Right right : all)
        set |= static_cast<Rights>(right);
    return set;
}

/// The rows that a command requires. Group rows do not count.
enum class Needs {
    Nothing,
    FocusedRow,    ///< one row has the focus, and the selection is not empty
    OneRow,        ///< one row has the focus and is the only selected one
    SelectedRows,  ///< at least one row is selected
};

/// The popups that contain a command, as a set of bits.
enum Popups : unsigned {
    inNone = 0,
    inMore = 1,     ///< "More List Commands"
    inNoItems = 2,  ///< the context popup while no row is selected
    inOneItem = 4,  ///< the context popup while rows are selected
};

/// A command of a list: its captions, when it applies and what it does. Its button, popup entries and keys all run
/// it.
struct ListCommand {
    int id = 0;
    std::string_view caption = {};  ///< in popups
    Needs needs = Needs::Nothing;
    Rights rights = 0;
    unsigned popups = inNone;
    void (*run)(ListScreen& list) = nullptr;
    bool beginsGroup = false;      ///< a separator precedes it in popups
    std::string_view button = {};  ///< the name of its button, "cmdCopy"; empty: no button
    std::string_view buttonCaption = {};
};

}  // namespace tsln
