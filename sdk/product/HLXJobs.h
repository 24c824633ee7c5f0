// SPDX-License-Identifier: Apache-2.0
// Jobs: under what name, where and how an analysis case is written out and run. A job stands in the
// job container of a case; its alias is its name.
#pragma once

#include "VEXAnalysisModel.h"

/// Names of ours: all.
class HLXIJob : public VEXBaseUnknown
{
public:
    /// Whether the job's input file is to have one part only (not 0), or each part of the assembly
    /// (0, the default).
    /// @return S_OK; E_FAIL when the job is gone
    virtual HRESULT SetSinglePart(unsigned char flag) = 0;
    virtual HRESULT GetSinglePart(unsigned char& flag) const = 0;

    /// The analysis case that the job writes.
    /// @param analysisCase  a case of the job's document; empty: none
    /// @return S_OK; E_INVALIDARG for another object; E_FAIL when the job is gone
    virtual HRESULT SetAnalysisCase(const VEXISpecObject_var& analysisCase) = 0;
    /// Gives the analysis case.
    /// @param analysisCase  receives it; empty when there is none
    virtual HRESULT GetAnalysisCase(VEXISpecObject_var& analysisCase) const = 0;

    /// The folder of what the job writes, and that of its unfinished work; both empty by default:
    /// the current folder. They are not looked for.
    /// @return S_OK; E_INVALIDARG for a text that is not valid UTF-8; E_FAIL when the job is gone
    virtual HRESULT SetResultsDirectory(const VEXUnicodeString& folder) = 0;
    virtual HRESULT SetScratchDirectory(const VEXUnicodeString& folder) = 0;
    virtual HRESULT GetResultsDirectory(VEXUnicodeString& folder) const = 0;
    virtual HRESULT GetScratchDirectory(VEXUnicodeString& folder) const = 0;
};

VEX_INTERFACE(HLXIJob);

/// Factory of jobs; the job container of a case is one. Names of ours: CreateJob.
class HLXIJobFactory : public VEXBaseUnknown
{
public:
    /// Makes a job at the end of the container, without an alias and an analysis case.
    /// @param document  the document of the container
    /// @param job       receives the job; left as it is on failure
    /// @return S_OK; E_INVALIDARG for another document; E_FAIL when the container is gone
    virtual HRESULT CreateJob(VEXDocument* document, HLXIJob_var& job) = 0;
};

VEX_INTERFACE(HLXIJobFactory);
