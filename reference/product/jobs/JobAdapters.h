// SPDX-License-Identifier: Apache-2.0
// Jobs through their interface, and the container of a case's jobs as their factory.
#pragma once

#include "HLXJobs.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

namespace hlx {

class JobAdapter final : public vex::Adapter<HLXIJob, vex::Feature>
{
public:
    using Adapter::Adapter;
    HRESULT SetSinglePart(unsigned char flag) override;
    HRESULT GetSinglePart(unsigned char& flag) const override;
    HRESULT SetAnalysisCase(const VEXISpecObject_var& analysisCase) override;
    HRESULT GetAnalysisCase(VEXISpecObject_var& analysisCase) const override;
    HRESULT SetResultsDirectory(const VEXUnicodeString& folder) override;
    HRESULT SetScratchDirectory(const VEXUnicodeString& folder) override;
    HRESULT GetResultsDirectory(VEXUnicodeString& folder) const override;
    HRESULT GetScratchDirectory(VEXUnicodeString& folder) const override;
};

class JobFactory final : public vex::Adapter<HLXIJobFactory, vex::Feature>
{
public:
    using Adapter::Adapter;
    HRESULT CreateJob(VEXDocument* document, HLXIJob_var& job) override;
};

}  // namespace hlx
