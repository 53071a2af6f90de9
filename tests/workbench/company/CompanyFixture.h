#pragma once

#include <filesystem>
#include <string>

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "doubles/TempFolder.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// A temporary folder that can count its files.
class TemporaryFolder : public test::TempFolder {
  public:
    std::size_t size() const {
        return std::size_t(std::distance(std::filesystem::directory_iterator(pathOf(path())),
                                         std::filesystem::directory_iterator()));
    }
};

/// Deletes the demonstration's terms and resets their keys.
inline void forgetTerms(const std::string& path) {
    SQLite::Database(path, SQLite::OPEN_READWRITE)
        .exec("DELETE FROM Terms; DELETE FROM sqlite_sequence WHERE name = 'Terms'");
}

/// A test with a company whose terms are empty at first.
class CompanyTest : public testing::Test {
  public:
    /// Returns the rows in one line: columns separated by "|", rows by ";". NULL columns are left out.
    static std::string rows(Company& company, const std::string& sql) {
        pugi::xml_document document;
        std::string xml = company.read(sql);
        EXPECT_TRUE(document.load_string(xml.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single))
            << xml;
        std::string result;
        for (pugi::xml_node record : document.child("Records").children("Record")) {
            if (!result.empty()) result += ";";
            bool first = true;
            for (pugi::xml_node column : record.children()) {
                if (!first) result += "|";
                first = false;
                result += column.child_value();
            }
        }
        return result;
    }

  protected:
    CompanyTest() { forgetTerms(company_.path()); }
    std::string rows(const std::string& sql) { return rows(company_, sql); }
    /// Returns the error text of a statement.
    std::string failure(const std::string& sql) {
        try {
            company_.execute(sql);
            return "no failure";
        } catch (const SqlError& error) {
            return error.what();
        }
    }

    TemporaryFolder folder_;
    Company company_{folder_.file("test.company")};
};

}  // namespace tsln::workbench
