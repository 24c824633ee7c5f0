// SPDX-License-Identifier: Apache-2.0
// The frame of a test case: command line, document, way to the analysis model, timing log, dumps,
// input files.
//
// A test case derives from HLXBaseTestCase, gives Process and VerifyArguments, is registered with a
// HLXTestCaseDriver and run by it: PreProcess (paths from the command line, document opened),
// Process (the test), PostProcess (document removed).
//
// The test program owns its cases. A case owns its texts, its handles, the load factory and the
// part document's container; its destructor releases them. The document belongs to the session:
// PostProcess removes it, the destructor does not. Results are negative on failure, and a failing
// platform call's own result is passed up. All messages go to standard output, some without an end
// of line. Nothing throws. Nothing is re-entrant: the timers are one for the whole library.
#pragma once

#include "HLXAmplitudes.h"
#include "HLXIAnalysisCase.h"
#include "VEXMechanicalPart.h"
#include "VEXMetaClass.h"

#include <cstdio>

class VEX_EXPORT HLXBaseTestCase : public VEXBaseUnknown
{
public:
    /// What PreProcess does for a document. With any other value it touches none.
    enum FileMode : int {
        OpenExisting = 0,  ///< open the document that the command line names
        CreateNew = 1,     ///< make a new one; the path's file ending is its type
    };

    HLXBaseTestCase();

    /// Copies share the load factory, the part document's container and the log file, without a
    /// reference of their own: only one of them may be destroyed, unless InitializeClassMembers
    /// makes the other forget what it shares. What an assignment replaces is not released.
    HLXBaseTestCase(const HLXBaseTestCase& other);
    HLXBaseTestCase& operator=(const HLXBaseTestCase& other);

    /// Releases what the case owns. Neither removes the document nor closes a timing log.
    ~HLXBaseTestCase() override;

    /// Reads the command line, whatever ProcessArguments answers, then opens or makes the document.
    /// @return result of OpenDocument or NewDocument; S_OK for a mode that is neither
    virtual long PreProcess(int argc, char** const argv, FileMode mode);

    /// The test itself. @return negative on failure; the driver does not look at it
    virtual long Process() = 0;

    /// Removes the document from the session and forgets it, also when that failed ("Failure
    /// removing the document."). May be called again: without a document it only prints its banner.
    /// @return result of the removal; S_OK without a document
    virtual long PostProcess();

protected:
    // --- Command line -------------------------------------------------------------------------

    /// Fills the path members and prints the paths. argv[1] input directory, argv[2] document,
    /// argv[3] output directory, argv[4] first and argv[5] second solver input file; an entry may
    /// be null, what needs it is then left out.
    /// @param argc  3: the document's path only; 4: no path at all; 5 to 9: all paths that the
    ///         entries give; other counts: none
    /// @return 0 when VerifyArguments refuses the count (nothing is changed), else 1
    virtual unsigned char ProcessArguments(int argc, char** const argv);

    /// Whether the count of arguments is right. @return non-zero when it is; 0 after printing how
    /// to call the program
    virtual unsigned char VerifyArguments(int argc) = 0;

    // --- Load factory -------------------------------------------------------------------------

    /// The factory made by InitializeLoadFactory, not counted; null before it or after its failure.
    virtual VEXBaseUnknown* GetLoadFactory();

    /// Makes the case's load factory; a second call keeps the first one.
    /// @return S_OK; otherwise, after "********** Could not create HLXLoadFact" without an end of
    ///         line, the result of making it, which is no failure when only the pointer was missing
    virtual long InitializeLoadFactory();

    // --- Document and model -------------------------------------------------------------------

    /// The children of the root product that are products: a new list that the caller deletes; null
    /// without a root product.
    virtual VEXListValVEXBaseUnknown_var* GetChildren();

    /// Makes the first analysis model the root of the feature-tree dump.
    /// @return result of listing the models; E_FAIL after "Navigate Object not found", without an
    ///         end of line, when there is none
    virtual long InitializeNavigateObject(VEXISamAnalysisManager_var manager);

    /// Opens the document of the input path and prints "Open Document ... OK" or "ERROR in opening
    /// document".
    /// @return the platform's result, success also when it gave no document; E_FAIL, silently, for
    ///         an empty path
    long OpenDocument();

    /// Makes a new document whose type is the input path's. Prints "**********create doc ok", or an
    /// error with the result.
    /// @return the platform's result
    long NewDocument();

    /// Makes `path` the input path and opens it. The former document is forgotten, not removed; the
    /// other members keep what they have of it, so call the Initialize... operations again, those
    /// of the part from InitializeContainerOfPartDocument on.
    /// @return as OpenDocument
    long SetCurrentDocument(const char* path);

    /// Finds the analysis manager of the document; `_AnalysisContainer` is set on the way. Messages
    /// have no end of line.
    /// @param manager  receives it
    /// @return the platform's result; E_FAIL when the document is no analysis document or has no
    ///         analysis container
    long GetAnalysisManager(VEXISamAnalysisManager_var& manager);

    /// Finds the current analysis model.
    /// @param model  receives it
    /// @return the platform's result; E_FAIL after "No current analysis model found", without an
    ///         end of line
    long GetAnalysisModel(VEXISamAnalysisModel_var& model);

    /// Replaces `_AnalysisCases` by the cases of the document's first analysis model.
    /// @return result of listing the models; E_FAIL with a message when there is no model or no
    ///         case: `_AnalysisCases` is then kept
    long InitializeAnalysisCaseFromDocument();

    /// Finds an analysis case of the document by its name.
    /// @param analysisCase  receives the case; left as it is when no case has the name, so test it
    /// @return S_OK, also when no case has the name; E_FAIL, silently, without cases or at one that
    ///         cannot have a name
    long GetSpecificAnalysisCase(VEXUnicodeString& name, VEXISamAnalysisCase_var& analysisCase);

    /// Makes an analysis case in the document and appends it to `_AnalysisCases`.
    /// @param withElementBehavior  exactly 1 to give it an element behavior as well
    /// @param type                 kind of analysis
    /// @return result of making the case, with an element behavior that of finding its factory;
    ///         E_NOINTERFACE, silently, without a factory of cases; a failure prints "Failed to get
    ///         the Analysis case"
    long AddAnalysisCase(unsigned char withElementBehavior,
                         HLXIAnalysisCase::analysisTypeEnum type);

    // --- Steps and amplitudes -----------------------------------------------------------------

    /// Makes a step in the first case of `_AnalysisCases`. No message.
    /// @param stepType  kind of step, such as "HLXGeneralStaticStepLT"
    /// @param stepName  its name; whether it was taken is not looked at
    /// @param step      receives the step with a reference added that the caller releases; left as
    ///                  it is without a factory or a case
    /// @return the factory's result; E_FAIL without a factory or a case
    HRESULT CreateStep(const VEXUnicodeString& stepType, const VEXUnicodeString& stepName,
                       VEXISamAnalysisSet*& step);

    /// Makes a tabular amplitude without rows: `_AmplitudeFeature`. Messages have no end of line:
    /// "Could not instanciate the Amplitude factory", "Could not create tabular amplitude.", "Could
    /// not get interface Tabular Amplitude".
    /// @param amplitude  receives its interface with a reference added that the caller releases;
    ///                   left as it is when there is no amplitude
    /// @return the query's result; E_FAIL
    HRESULT CreateTabularAmplitude(HLXITabularAmplitude*& amplitude);

    // --- Part, body and cells: no message has an end of line ----------------------------------
    //
    // Each operation calls the one before it when what it needs is missing: any may come first once
    // the root product is known.

    /// Finds the product that the document is linked to: `_RootProduct`, empty when the first
    /// linked document is a part.
    /// @return the platform's result; E_FAIL when there is no linked document, the first one cannot
    ///         be opened or has no root object
    long InitializeRootProduct(VEXISamAnalysisManager_var manager);

    /// Takes the child of the root product at `_PartIndex` as `_PartLink` and finds the document
    /// of the first object below it that can be linked to: the part.
    /// @param partDocument  receives it, not counted; null when that object has no document, else
    ///                      left as it is on failure
    /// @return S_OK; E_FAIL without a root product, without children or a part
    long GetPartDocument(VEXDocument*& partDocument);

    /// Finds the containers of the part's document: `_PartDocContainer`; a former one is released.
    /// @return the platform's result, or that of GetPartDocument
    long InitializeContainerOfPartDocument();

    /// Finds the mechanical part feature: `_MechanicalPart`. Goes on after a failure, so that
    /// several messages may appear.
    /// @return negative after a failure on the way, also when `_MechanicalPart` was there already;
    ///         E_FAIL without it
    long InitializeMechanicalPart();

    /// Finds the feature that carries the shape of the part's main body.
    /// @param element  receives it
    /// @return S_OK; that of InitializeMechanicalPart; E_FAIL
    long GetGeometricalElement(VEXIGeometricalElement_var& element);

    /// Finds the container of B-rep accesses of the part's document.
    /// @param container  receives it with a reference added that the caller releases
    /// @return the platform's result, or that of GetPartDocument
    long GetBRepContainer(VEXIContainer*& container);

    /// Finds the part's body: `_Body`.
    /// @return S_OK; that of GetGeometricalElement; E_FAIL without a body: `_Body` is then empty
    long InitializeBody();

    /// Append all faces, edges or vertices of `_Body`, which owns them; without a body nothing, so
    /// call InitializeBody first.
    void GetFaceList(VEXListPtrVEXCell& cells);
    void GetEdgeList(VEXListPtrVEXCell& cells);
    void GetVertexList(VEXListPtrVEXCell& cells);

    /// Append the first `count` faces of the body's first volume, edges of its first face, or
    /// vertices of that face's first edge: fewer where there are fewer, one for a count below 1.
    /// A body is found when there is none yet. What cannot be had is told, and nothing is appended.
    void InitializeFaceSupportByIteration(VEXListPtrVEXCell& cells, int count);
    void InitializeEdgeSupportByIteration(VEXListPtrVEXCell& cells, int count);
    void InitializeVertexSupportByIteration(VEXListPtrVEXCell& cells, int count);

    // --- Timing log: CreateTimeLoggingFile, StartTimer, StopTimer, once a log -----------------

    /// Opens NAME_SYSTEM_DAY_MONTH_YEAR.txt in the output directory, writes its head and prints its
    /// path. A file that cannot be opened is not reported; the timers then write nothing. A log
    /// still open is not closed.
    /// @param name  first part of the file name, null for none; the first three '/' of the whole
    ///         name become '_'
    void CreateTimeLoggingFile(char* name);

    /// Writes the label of a section and starts the clock.
    /// @param label  used as a printf format without arguments: no '%' in it; nothing is added;
    ///         null for none
    void StartTimer(const char* label);

    /// Writes the processor seconds since StartTimer and closes the log. Neither timer may be
    /// called again before the next CreateTimeLoggingFile.
    void StopTimer();

    // --- Dumps and saved documents: failures are not reported ---------------------------------

    /// Names the file, in the output directory, and the heading of the feature-tree dump.
    void SetDumpTreeParameters(const char* fileName, const char* title);

    /// Writes heading and feature tree below `_NavigateObject`. Call SetDumpTreeParameters and
    /// InitializeNavigateObject first.
    /// @param openMode  as for fopen, for example "w"
    void DumpFeatTree(char* openMode);

    /// Saves a document in the output directory, over an existing file. Null saves nothing. The
    /// document's StorageName tells whether it was saved.
    /// @param name  file name
    void SaveAsDocument(VEXDocument* document, VEXUnicodeString name);

    // --- Input files: no message has an end of line -------------------------------------------

    /// Writes the solver input file of one analysis case, structured whatever the user's option
    /// says.
    /// @param inputFilePath  full path, its ending included; null for the path made from argv[4]
    /// @return the writer's result; E_FAIL, silently, for an empty case; E_FAIL or the query's
    ///         result when the writer cannot be had. All failures but the silent one end with
    ///         "Input file writing failed"
    HRESULT WriteInputFileForAnalysisCase(const VEXISamAnalysisCase_var& analysisCase,
                                          const char* inputFilePath);

    /// As above.
    /// @param caseIndex  position in `_AnalysisCases`, from 1
    /// @return also E_FAIL, silently, for an index outside the list
    HRESULT WriteInputFileForAnalysisCase(int caseIndex, const char* inputFilePath);

    // --- Members and messages -----------------------------------------------------------------

    /// Prints a text without an end of line; null prints nothing. @return E_FAIL
    long LogError(const char* text);

    /// Sets `_PartIndex` to 1 and forgets `_Document`, `_LoadFactory` and `_PartDocContainer`
    /// without releasing them.
    void InitializeClassMembers();

    VEXUnicodeString _InputDirectory;  ///< argv[1]
    /// argv[1] and argv[2] joined: the document to open; its ending is the type to make.
    VEXUnicodeString _InputFilePath;
    VEXUnicodeString _OutputDirectory;   ///< argv[3]: where every file goes that the library writes
    VEXUnicodeString _HollexFile1Path;   ///< argv[3] and argv[4] joined: first solver input file
    VEXUnicodeString _HollexFile2Path;   ///< argv[3] and argv[5] joined: second solver input file
    VEXUnicodeString _DumpTreeTitle;     ///< heading of the feature-tree dump
    VEXUnicodeString _DumpTreeFileName;  ///< its file name in the output directory
    VEXUnicodeString _TimeLogFilePath;   ///< path of the timing log
    VEXUnicodeString _HollexFile1Name;   ///< argv[4]
    VEXUnicodeString _HollexFile2Name;   ///< argv[5]
    /// argv[3] and argv[2] joined: place for an intermediate copy of the input document.
    VEXUnicodeString _IntermediateInputFilePath;
    VEXUnicodeString _InputFileName;  ///< argv[2]
    int _PartIndex = 1;               ///< which part of the product is taken, from 1
    /// The analysis document. Not counted: it dangles once somebody else removes it from the
    /// session, and no operation may be called then.
    VEXDocument* _Document = nullptr;
    VEXListValVEXBaseUnknown_var _AnalysisCases;  ///< analysis cases of the document
    VEXIProduct_var _RootProduct;                 ///< root product that the document is linked to
    VEXBody_var _Body;                            ///< body of the part
    VEXBaseUnknown* _LoadFactory = nullptr;       ///< owned
    VEXIContainerOfDocument* _PartDocContainer = nullptr;  ///< owned; of the part document
    VEXINavigateObject_var _NavigateObject;                ///< root of the feature-tree dump
    VEXISpecObject_var _MechanicalPart;                    ///< mechanical part feature of the part
    VEXILinkableObject_var _PartLink;                      ///< the chosen child of the root product
    VEXISamAnalysisContainer_var _AnalysisContainer;       ///< analysis container of the document
    VEXISpecObject_var _AmplitudeFeature;                  ///< amplitude made last
    /// Open from CreateTimeLoggingFile to StopTimer, dangling after it.
    std::FILE* _TimeLogFile = nullptr;

public:
    /// The run-time class "HLXBaseTestCase", based on VEXBaseUnknown.
    static VEXMetaClass* MetaObject();
    VEXMetaClass* GetMetaObject() const override;
    static const GUID& ClassId();
    static const char* ClassName();
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    /// Always null: the framework's factory makes no test case.
    static VEXBaseUnknown* CreateItself();

private:
    long FindPartDocContainer(const VEXDocument& partDocument);
    void GetCellsOfDimension(VEXListPtrVEXCell& cells, int count, int dimension);
    void GetLowerCell(VEXListPtrVEXCell& cells, VEXCell*& cell, int count, int level);

    static VEXMetaClass* meta_object;
};
