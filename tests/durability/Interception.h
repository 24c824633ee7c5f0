// SPDX-License-Identifier: Apache-2.0
// Being asked before each file operation of a save.
#pragma once

#include "reference/store/StoreFixture.h"

#include <functional>
#include <string_view>

namespace durabilitytest {

/// While it lives, `before` is called ahead of each file operation of this process with its name in
/// FileOperations (both ways to rename are one). 0 lets it happen; another answer is the
/// operation's.
class Interception
{
public:
    using Before = std::function<int(std::string_view operation)>;

    explicit Interception(const Before& before)
    {
        vex::system::FileOperations& now = vex::system::CurrentFileOperations();
        Wrap("create", now.create, before);
        Wrap("write", now.write, before);
        Wrap("synchronize", now.synchronize, before);
        Wrap("rename", now.rename, before);
        Wrap("rename", now.renameToNew, before);
        Wrap("link", now.link, before);
        Wrap("synchronizeFolder", now.synchronizeFolder, before);
        Wrap("remove", now.remove, before);
    }

private:
    template <class... Arguments>
    static void Wrap(const char* name, std::function<int(Arguments...)>& operation,
                     const Before& before)
    {
        operation = [name, before, real = operation](Arguments... arguments) {
            const int code = before(name);
            return code != 0 ? code : real(arguments...);
        };
    }

    vex::store::test::OperationsGuard _guard;
};

}  // namespace durabilitytest
