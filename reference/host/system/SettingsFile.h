// SPDX-License-Identifier: Apache-2.0
// The settings file: an SQLite database as settings.sql describes it.
#pragma once

#include <map>
#include <string>

namespace vex::system {

/// Reads the settings of `path` into `settings`; none when there is no such file. False with a
/// message when it cannot be read, is no settings file, is newer or damaged; `settings` is then
/// empty. What it answers is what was written: all settings are checked against their digest.
bool ReadSettings(const std::string& path,
                  std::map<std::string, std::string, std::less<>>& settings, std::string& error);

/// Replaces `path` by a file with these settings. False with a message; the old file is untouched
/// with the exception that AtomicFile::Commit names.
bool WriteSettings(const std::string& path,
                   const std::map<std::string, std::string, std::less<>>& settings,
                   std::string& error);

}  // namespace vex::system
