#include <algorithm>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workbench/tour/OperationGroups.h"

namespace tsln::workbench {
namespace {

std::vector<std::string_view> found(std::string_view search) {
    std::vector<std::string_view> names;
    for (const OperationGroup& group : findOperations(search)) {
        for (const auto& [operation, caption] : group.operations)
            names.push_back(info(operation).name);
    }
    return names;
}

TEST(OperationGroups, TheGroupsContainEveryOperationOnce) {
    std::map<Operation, int> count;
    for (const OperationGroup& group : operationGroups()) {
        for (const auto& [operation, caption] : group.operations)
            ++count[operation];
    }
    for (const OperationInfo& row : operations)
        EXPECT_EQ(count[row.operation], 1) << row.name;
    EXPECT_EQ(found("").size(), operations.size());
}

TEST(OperationGroups, ASearchMatchesAllWordsInNameAndGroup) {
    EXPECT_THAT(found("showterms"), testing::ElementsAre("ShowTerms"));
    EXPECT_THAT(found(" TERMS dialogs "), testing::ElementsAre("ShowEditTerms"));
    EXPECT_THAT(found("no such thing"), testing::IsEmpty());
    EXPECT_EQ(found("showGroups").front(), "ShowGroups") << "listed before other names that contain the word";
    EXPECT_EQ(found("ShowEditTerms").front(), "ShowEditTerms");
}

TEST(OperationGroups, SignaturesShowTypesAndNames) {
    const auto signatureOf = [](Operation operation) { return signature(info(operation)); };
    EXPECT_EQ(signatureOf(Operation::ShowTerms), "ShowTerms() As Boolean");
    EXPECT_EQ(signatureOf(Operation::ShowMoveReferences),
              "ShowMoveReferences(listCode As Integer, ID As Long) As Boolean");
    EXPECT_EQ(signatureOf(Operation::ShowOptionCallouts), "ShowOptionCallouts(ByVal productID As Long)");
}

}  // namespace
}  // namespace tsln::workbench
