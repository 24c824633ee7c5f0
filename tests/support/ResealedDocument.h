// SPDX-License-Identifier: Apache-2.0
// Documents whose rows were changed from outside and that bear the right digest again: what meets
// the change then is not the digest but the checks behind it. Needs no test framework.
#pragma once

#include <string>

namespace hlxtest {

/// Runs SQL statements on the database at `path`, made when it is not there, with the function
/// digest_of(bytes) beside those of SQLite: the digest of a geometry blob. False with the reason in
/// `error`; what ran before the faulty statement stays.
bool ChangeBySql(const std::string& path, const std::string& sql, std::string& error);

/// Gives the document at `path` the counts and the digest of the rows that it has now, whatever
/// these hold. The digests of its geometry blobs stay as they are. False with the reason in `error`
/// when its tables cannot be read.
bool Reseal(const std::string& path, std::string& error);

/// Both.
bool ChangeAndReseal(const std::string& path, const std::string& sql, std::string& error);

}  // namespace hlxtest
