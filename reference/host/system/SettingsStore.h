// SPDX-License-Identifier: Apache-2.0
// The settings repository: texts by key, kept in one file of the user's.
#pragma once

#include "VEXTypes.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vex::system {

/// The settings of one repository file, as read from it and changed since. A file that does not
/// exist holds no settings. Not for use by several threads at once; several processes may use one
/// file.
///
/// A file that is damaged in any way (empty, cut off, changed in a place that holds settings or
/// leads to them), that a newer program wrote or that is none of settings is refused by Load and by
/// Commit, with its path, the reason and the remedy, and stays byte for byte as it is: settings are
/// never silently lost nor changed. Once it is restored or taken away, Commit goes on with what was
/// set. Only bytes that mean nothing may change unnoticed; the next Commit writes them anew.
class VEX_EXPORT SettingsStore
{
public:
    using Settings = std::map<std::string, std::string, std::less<>>;

    /// Keeps the settings in `path`; nothing is read yet.
    explicit SettingsStore(std::string path) : _path(std::move(path)) {}

    /// Where the user's settings are: the environment's VEX_SETTINGS, else
    /// $XDG_CONFIG_HOME/HLX/settings.VEXSettings (an absolute folder only), else
    /// ~/.config/HLX/settings.VEXSettings. An empty variable counts as none. Empty with a message
    /// in `error` when none of them is set.
    static std::string DefaultPath(std::string& error);

    const std::string& Path() const { return _path; }

    /// Reads the file; changes not committed are dropped. False with a message when it cannot be
    /// read or is damaged; there are then no settings here, and the file is as it was.
    bool Load(std::string& error);

    /// The value of `key`; none when it has none. The text lives until the setting changes.
    std::optional<std::string_view> Get(std::string_view key) const;

    /// Gives `key` a value, until Commit only here. False with a message, nothing changed, when the
    /// key is empty or either text is not valid UTF-8 or holds a NUL.
    bool Set(std::string_view key, std::string_view value, std::string& error);

    /// Writes what was set since the last Load or Commit into the file, which keeps whatever other
    /// processes have set meanwhile; the folder is made when missing. The file is replaced as a
    /// whole. Afterwards this object holds all its settings. False with a message: the file is as
    /// it was, with the exception that AtomicFile::Commit names, and a later Commit tries again.
    bool Commit(std::string& error);

private:
    bool WriteChanges(std::string& error);

    std::string _path;
    Settings _settings;
    Settings _changes;  // set, not yet committed
};

}  // namespace vex::system
