// SPDX-License-Identifier: Apache-2.0
// The frame of a test case: its life, its command line, its load factory.
#include "HLXBaseTestCase.h"

#include "HLXClassRecord.h"
#include "HLXConsole.h"
#include "HLXEntityCreation.h"
#include "HLXPath.h"
#include "VEXDocumentServices.h"

HLX_CLASS_RECORD(HLXBaseTestCase, VEXBaseUnknown);

HLXBaseTestCase::HLXBaseTestCase() = default;

// Owned pointers are shared without a reference more; kept.
HLXBaseTestCase::HLXBaseTestCase(const HLXBaseTestCase& other) = default;
HLXBaseTestCase& HLXBaseTestCase::operator=(const HLXBaseTestCase& other) = default;

HLXBaseTestCase::~HLXBaseTestCase()
{
    if (_PartDocContainer != nullptr) _PartDocContainer->Release();
    if (_LoadFactory != nullptr) _LoadFactory->Release();
    _AnalysisCases.RemoveAll();
    InitializeClassMembers();
}

void HLXBaseTestCase::InitializeClassMembers()
{
    // What the case owned is dropped without a release; kept.
    _PartIndex = 1;
    _Document = nullptr;
    _LoadFactory = nullptr;
    _PartDocContainer = nullptr;
}

long HLXBaseTestCase::PreProcess(int argc, char** const argv, FileMode mode)
{
    HLXConsole::Print("\n In HLXBaseTestCase::PreProcess() \n");
    // A refused command line has printed its usage; what follows goes on regardless, and is kept
    // so.
    ProcessArguments(argc, argv);
    switch (mode) {
        case OpenExisting:
            return OpenDocument();
        case CreateNew:
            return NewDocument();
        default:
            return S_OK;
    }
}

long HLXBaseTestCase::PostProcess()
{
    HLXConsole::Print("\n In HLXBaseTestCase::PostProcess() \n");
    if (_Document == nullptr) return S_OK;
    const long rc = VEXDocumentServices::Remove(*_Document, 1);
    if (FAILED(rc)) HLXConsole::Print("Failure removing the document.");
    _Document = nullptr;
    return rc;
}

unsigned char HLXBaseTestCase::ProcessArguments(int argc, char** const argv)
{
    if (VerifyArguments(argc) == 0) return 0;
    // Fewer or more are accepted too, without a path; kept.
    if (argc < 3 || argc > 9 || argv == nullptr) return 1;

    const auto take = [](const char* directory, const char* name, VEXUnicodeString& directoryMember,
                         VEXUnicodeString& nameMember, VEXUnicodeString& path, const char* label) {
        if (directory == nullptr || name == nullptr) return;
        nameMember = name;
        directoryMember = directory;
        path = HLXPath::Join(directoryMember, nameMember);
        HLXConsole::Print(label, path, "\n");
    };
    if (argc >= 6) {
        take(argv[3], argv[5], _OutputDirectory, _HollexFile2Name, _HollexFile2Path,
             "**********HOLLEX file 2 name: ");
    }
    if (argc >= 5) {
        take(argv[3], argv[4], _OutputDirectory, _HollexFile1Name, _HollexFile1Path,
             "**********HOLLEX file 1 name: ");
        take(argv[3], argv[2], _OutputDirectory, _InputFileName, _IntermediateInputFilePath,
             "**********Intermediate Input file name :");
    }
    // Four arguments give no path; kept.
    if (argc != 4) {
        take(argv[1], argv[2], _InputDirectory, _InputFileName, _InputFilePath,
             "**********Input file name : ");
    }
    return 1;
}

VEXBaseUnknown* HLXBaseTestCase::GetLoadFactory()
{
    return _LoadFactory;
}

long HLXBaseTestCase::InitializeLoadFactory()
{
    if (_LoadFactory != nullptr) return S_OK;
    HLXILoadFact* factory = nullptr;
    const long rc = HLXEntityCreation::MakeLoadFactory(factory);
    if (SUCCEEDED(rc) && factory != nullptr) {
        _LoadFactory = factory;
        return rc;
    }
    _LoadFactory = nullptr;
    HLXConsole::Print(HLXEntityCreation::noLoadFactory);
    // Success when only the pointer was missing; kept.
    return rc;
}

long HLXBaseTestCase::LogError(const char* text)
{
    HLXConsole::Print(text);
    return E_FAIL;
}
