#include "measurements/MeasurementsList.h"

#include "maintenance/FieldDescription.h"
#include "shared/modSharedSQL.h"

namespace tsln::measurements {
namespace {

constexpr Choice usualLocations[] = {{0, "House"}, {0, "Office"}};

constexpr ChoiceQuery rooms{"SELECT Room FROM MeasurementRooms ORDER BY Room", "Room"};
constexpr ChoiceQuery items{"SELECT ItemName FROM MeasurementItems ORDER BY ItemName", "ItemName"};
constexpr ChoiceQuery mounts{"SELECT Mount FROM MeasurementMounts ORDER BY Mount", "Mount"};

constexpr int sizeWidth = 14;  // characters

std::vector<ListColumn> allColumns() {
    std::vector<ListColumn> columns(std::begin(sizeColumns), std::end(sizeColumns));
    columns.push_back({"Remarks", 200, "Remarks"});
    return columns;
}

}  // namespace

// Sizes are texts: what the user or the laser meter typed is stored, and nothing is read from it.
const ListDescription measurementsList{
    .open = Operation::ShowCustomerMeasurements,
    .edit = Operation::ShowEditCustomerMeasurement,
    .screenName = "frmCustomerMeasurements",
    .caption = "Customer Measurements",
    .table = "CustomerMeasurements",
    .orderBy = "Location,AddedOn",
    .columns = allColumns(),
    .securityArea = 300,
    .listKind = 28,
    .deleteFailure = "There was a problem deleting one or more customer measurements",
    .busyState = true,
    .dialog = {
        .newCaption = "New Customer Measurement",
        .editCaption = "Edit Customer Measurement",
        .fields = {fields::suggested("cboLocation", "&Location:", "Location", "<location>", usualLocations),
                   fields::suggested("cboRoom", "&Room:", "Room", "<room>", rooms),
                   fields::suggested("cboItem", "&Item:", "Item", "<item>", items),
                   fields::suggested("cboMount", "&Mount:", "Mount", "<mount>", mounts),
                   fields::text("txtWidth", "&Width:", "Width", "<width>").wide(sizeWidth),
                   fields::text("txtHeight", "&Height:", "Length", "<length>").wide(sizeWidth),
                   fields::lines("txtNote", "&Note:", "Remarks", "<remarks>")},
        .saveFailure = "There was a problem saving this customer measurement.",
        .filledBeforeShown = true,
        .insert = "INSERT INTO CustomerMeasurements (CustomerID,Location,Room,[Item],Mount,Width,Length,Remarks) "
                  "VALUES(<cid>,'<location>','<room>','<item>','<mount>','<width>','<length>','<remarks>')",
        .update = "UPDATE CustomerMeasurements SET Location = '<location>', Room = '<room>', [Item] =  '<item>', "
                  "Mount = '<mount>', Width = '<width>', Length = '<length>', Remarks = '<remarks>' WHERE ID = <id>",
    },
    .contextMenu = true,
};

/// The list as its dialog sees it: "ShowSaved" with the key of a measurement shows that measurement at once.
class MeasurementsList::Owner : public Object {
  public:
    explicit Owner(MeasurementsList& list) : list_(&list) {}
    void forget() { list_ = nullptr; }

    Variant invoke(std::string_view member, Access, Arguments arguments) override {
        if (!sameName(member, "ShowSaved")) raiseUnknownMember("CustomerMeasurements", member);
        arguments.require(1, 1);
        const std::int32_t ID = arguments[0].toLong();
        if (!list_) return {};
        list_->handle([&] { list_->showChanged(ID); });
        list_->desktop().yield();  // draws the list, which waits for its dialog
        return {};
    }

  private:
    MeasurementsList* list_;
};

MeasurementsList::MeasurementsList(Library& library, const ListDescription& description, std::int32_t customerID)
    : ListScreen(library, description), customerID_(customerID), owner_(std::make_shared<Owner>(*this)) {}

MeasurementsList::~MeasurementsList() {
    owner_->forget();
}

std::string MeasurementsList::loadStatement() const {
    return modSharedSQL::format("SELECT * FROM {0} WHERE CustomerID = {1} ORDER BY {2}", description().table,
                                customerID_, description().orderBy);
}

void MeasurementsList::listLoaded() {
    if (named_) return;
    named_ = true;
    setCaption(caption() + " - " + host().common().GetCustomerName(customerID_));
}

void MeasurementsList::cmdNew_Click() {
    // The dialog may have added several measurements; all but the last one are shown already, and that one may be.
    if (const std::int32_t ID = edit(0); ID > 0) showChanged(ID);
}

std::vector<Variant> MeasurementsList::furtherArguments() const {
    return {customerID_, ObjectPtr(owner_)};
}

}  // namespace tsln::measurements
