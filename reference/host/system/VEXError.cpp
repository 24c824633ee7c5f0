// SPDX-License-Identifier: Apache-2.0
// The error state of the calling thread.
#include "VEXError.h"

#include "host/system/Probe.h"
#include "host/system/Probes.h"

#include <deque>

namespace {

constexpr std::size_t kRecordsKept = 1000;

struct ErrorState
{
    HRESULT pending = S_OK;
    std::deque<vex::probe::ErrorRecord> records;

    HRESULT Take()
    {
        const HRESULT taken = pending;
        pending = S_OK;
        return taken;
    }
};

ErrorState& StateOfThread()
{
    thread_local ErrorState state;
    return state;
}

void Record(int status, const char* source, int line)
{
    auto& records = StateOfThread().records;
    if (records.size() == kRecordsKept) {
        records.pop_front();
    }
    records.push_back({status, source == nullptr ? "" : source, line});
}

/// A result as an argument: its name.
struct ResultArgument
{
    HRESULT result;
};

std::string TextOf(const ResultArgument& argument)
{
    return vex::probe::TextOfResult(argument.result);
}

}  // namespace

HRESULT VEXError::GetReturn(int status, VEXBaseUnknown** error, const VEXBaseUnknown* object,
                            const char* source, int line)
{
    // Before the probe: a fault in this call is no reason not to tell that it was made.
    Record(status, source, line);
    return vex::Probe<"VEXError::GetReturn">(
        [&] {
            if (error != nullptr) {
                *error = nullptr;
            }
            switch (status) {
                case 0:
                    StateOfThread().Take();
                    return E_FAIL;
                case 1:
                    return StateOfThread().Take();
                default:
                    return E_INVALIDARG;
            }
        },
        vex::In(status), vex::OutAt(error), vex::In(object), vex::In(source), vex::In(line));
}

void VEXError::SetPending(HRESULT error)
{
    vex::Probe<"VEXError::SetPending">(
        [&] {
            if (FAILED(error)) {
                StateOfThread().pending = error;
            }
        },
        vex::In(ResultArgument{error}));
}

namespace vex::probe {

std::vector<ErrorRecord> ErrorRecords()
{
    const auto& records = StateOfThread().records;
    return {records.begin(), records.end()};
}

void ClearErrorRecords()
{
    StateOfThread().records.clear();
}

}  // namespace vex::probe
