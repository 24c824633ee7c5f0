// SPDX-License-Identifier: Apache-2.0
// Analysis cases to set up with steps, amplitudes and jobs, and what then stands in the document,
// told by the platform.
#pragma once

#include "HLXJobs.h"
#include "VEXComponents.h"
#include "library/StaticSteps.h"

namespace hlxtest::statics {

using Lines = std::vector<std::string>;

/// A document with two analysis cases.
class AnalysisSetUp : public StaticSteps
{
protected:
    AnalysisSetUp() { hlxtest::AddCase(analysis.Get()); }

    /// @param number  position of the case in the document, from 1
    VEXISamAnalysisCase_var Case(int number)
    {
        VEXListValVEXBaseUnknown_var cases;
        EXPECT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
        return cases[number];
    }

    /// A case without a simulation history and a job container.
    VEXISamAnalysisCase_var BareCase() { return Add(Model(), "HLXHacAnalysisCaseLT", "Bare"); }

    static std::string TypeOf(const VEXISpecObject_var& feature)
    {
        return feature ? std::string(feature->GetType().View()) : "(none)";
    }

    /// The steps of a case behind its initial one, each as "late type: name".
    static Lines StepsOf(const VEXISamAnalysisCase_var& analysisCase)
    {
        VEXListValVEXBaseUnknown_var sets;
        EXPECT_EQ(analysisCase->GetAnalysisSets(sets), S_OK);
        EXPECT_EQ(TypeOf(sets[1]), "HLXHacInitialStepLT");
        Lines lines;
        for (int i = 2; i <= sets.Size(); ++i) {
            lines.push_back(TypeOf(sets[i]) + ": " + AliasOf(sets[i]));
        }
        return lines;
    }

    /// The jobs of a case, each as "name", "name of each part" with its case in brackets.
    static Lines JobsOf(const VEXISamAnalysisCase_var& analysisCase)
    {
        VEXListValVEXBaseUnknown_var cases;
        cases.Append(analysisCase);
        VEXListValVEXBaseUnknown_var jobs;
        EXPECT_EQ(HLXAnalysisDocUtils::GetJobs(cases, jobs), S_OK);
        Lines lines;
        for (int i = 1; i <= jobs.Size(); ++i) {
            const HLXIJob_var job = jobs[i];
            unsigned char singlePart = 77;
            VEXISpecObject_var written;
            EXPECT_EQ(job->GetSinglePart(singlePart), S_OK);
            EXPECT_EQ(job->GetAnalysisCase(written), S_OK);
            lines.push_back(AliasOf(job) +
                            (singlePart == 0 ? ", each part of " : ", one part of ") +
                            AliasOf(written));
        }
        return lines;
    }

    /// References to the process-wide factory of that name besides the one taken here.
    template <class Factory>
    static unsigned long FactoryReferences(const char* name)
    {
        return References(*FactoryOf<Factory>(name).Get()) - 1;
    }

    /// Gives back references to a factory that an operation keeps.
    template <class Factory>
    static void ReleaseFactory(const char* name, unsigned long count)
    {
        const auto factory = FactoryOf<Factory>(name);
        for (unsigned long i = 0; i < count; ++i) {
            factory->Release();
        }
    }

private:
    template <class Factory>
    static VEXVar<Factory> FactoryOf(const char* name)
    {
        void* object = nullptr;
        EXPECT_EQ(VEXInstantiateComponent(name, VEXInterfaceTraits<Factory>::Id, &object), S_OK);
        return VEXAdopt(static_cast<Factory*>(object));
    }
};

/// The calls of `operation` whose name begins with one of `prefixes`, as CallsOf; what it writes is
/// not looked at.
template <class Operation>
Lines QuietCallsOf(Operation operation, const Lines& prefixes = {}, std::string_view faults = "")
{
    Lines calls;
    RunWith(faults, [&] { calls = CallsOf([&] { operation(); }, prefixes); });
    return calls;
}

}  // namespace hlxtest::statics
