#pragma once

#include <filesystem>
#include <string>

namespace tsln::workbench {

/// The files of companies that are made, worked in and made anew hundreds of times.

std::string contentOf(const std::string& path);
void write(const std::string& path, const std::string& content);
/// A folder for such files: in memory where the system has such a folder, because every save waits for the disk.
std::filesystem::path fastFolder();
/// The content of a new company file with the demonstration data.
const std::string& demonstrationFile();
/// Runs statements, separated by ";". Throws SqlError.
void prepare(const std::string& path, std::string_view statements);
/// What is wrong with a company file; empty for nothing.
std::string faultsOf(const std::string& path);

}  // namespace tsln::workbench
