#include "lists/Lists.h"

namespace tsln::lists {
namespace {


constexpr std::int32_t measurementArea = 109;
// The items' list shows this message too (deliberate).
constexpr std::string_view roomsNotDeleted = "There was a problem deleting one or more room(s).";

}  // namespace

const ListDescription measurementRoomsList{
    .open = Operation::ShowMeasurementRooms,
    .edit = Operation::ShowEditMeasurementRoom,
    .screenName = "frmMeasurementRooms",
    .caption = "Measurement Rooms",
    .table = "MeasurementRooms",
    .orderBy = "Room",
    .columns = {{"Room", 280, "Room"}},
    .securityArea = measurementArea,
    .listKind = 33,
    .defaults =
        DefaultSet{"Would you like to install the default measurement rooms?", "TSLN50_MeasurementRooms"},
    .deleteFailure = roomsNotDeleted,
    .busyState = true,
    .dialog = {
        .newCaption = "New Room",
        .editCaption = "Edit Room",
        // The message names a manufacturer instead of a room (deliberate).
        .fields = {fields::name("txtRoom", "&Room:", "Room", "<r>", "You must enter a valid Manufacturer.", "Room already exists.")},
        .saveFailure = "There was a problem saving this room.",
    }};

const ListDescription measurementItemsList{
    .open = Operation::ShowMeasurementItems,
    .edit = Operation::ShowEditMeasurementItem,
    .screenName = "frmMeasurementItems",
    .caption = "Measurement Items",
    .table = "MeasurementItems",
    .orderBy = "ItemName",
    .columns = {{"Item", 280, "ItemName"}},
    .securityArea = measurementArea,
    .listKind = 34,
    .defaults =
        DefaultSet{"Would you like to install the default measurement items?", "TSLN50_MeasurementItems"},
    .deleteFailure = roomsNotDeleted,
    .busyState = true,
    .dialog = {
        .newCaption = "New Item",
        .editCaption = "Edit Item",
        .fields = {fields::name("txtItemName", "&Item:", "ItemName", "<r>", "You must enter a valid item name.", "Item already exists.")},
        .saveFailure = "There was a problem saving this item.",
    }};

const ListDescription measurementMountsList{
    .open = Operation::ShowMeasurementMounts,
    .edit = Operation::ShowEditMeasurementMount,
    .screenName = "frmMeasurementMounts",
    .caption = "Measurement Mounts",
    .table = "MeasurementMounts",
    .orderBy = "Mount",
    .columns = {{"Mount", 280, "Mount"}},
    .securityArea = measurementArea,
    .listKind = 35,
    .defaults =
        DefaultSet{"Would you like to install the default measurement mounts?", "TSLN50_MeasurementMounts"},
    .deleteFailure = "There was a problem deleting one or more mount(s).",
    .busyState = true,
    .dialog = {
        .newCaption = "New Mount",
        .editCaption = "Edit Mount",
        .fields = {fields::name("txtMount", "&Mount:", "Mount", "<r>", "You must enter a valid mount.", "Mount already exists.")},
        .saveFailure = "There was a problem saving this mount.",
    }};

}  // namespace tsln::lists
