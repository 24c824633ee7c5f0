// SPDX-License-Identifier: Apache-2.0
// Static utilities for analysis documents, usable without a test case. Grouped by subject; the
// sources have the same order. Nothing is kept between calls. Messages go to standard output where
// nothing else is said.
#pragma once

#include "HLXJobs.h"
#include "VEXEntities.h"
#include "VEXMechanicalPart.h"

class VEX_EXPORT HLXAnalysisTestUtils
{
public:
    // --- Navigation: each message ends a line -------------------------------------------------

    /// From an analysis document to the product that it is linked to and to its first analysis
    /// model.
    /// @param document  an open analysis document; not changed
    /// @param product   receives the root product of the first linked document, empty when that is
    ///                  no product
    /// @param model     receives the model, also when what follows fails
    /// @return S_OK when `product` is set, also when it was before; else E_FAIL
    static HRESULT GetProductDocFromAnalysisDoc(VEXDocument*& document, VEXIProduct_var& product,
                                                VEXISamAnalysisModel_var& model);

    /// From a product to the mechanical part of its first child.
    /// @param partFeature    receives the mechanical part
    /// @param partLinkable   receives the part as the target of links
    /// @param partContainer  receives the part document's container of B-rep accesses with a
    ///                       reference added that the caller releases, also when what follows fails
    /// @return S_OK; the query's result when the part's document has no containers; else E_FAIL
    static HRESULT GetMechPartFeatFromProductDoc(VEXIProduct_var& product,
                                                 VEXISpecObject_var& partFeature,
                                                 VEXILinkableObject_var& partLinkable,
                                                 VEXIContainer*& partContainer);

    /// Appends the faces, edges and vertices of the part's main body to the lists; the body owns
    /// them.
    /// @param body  receives the body: hold it as long as the cells are used
    /// @return S_OK, also without a body or cells; E_FAIL, without a message when the main body
    ///         is none that has results
    static HRESULT GetSupportDataFromPartFeat(VEXISpecObject_var& partFeature,
                                              VEXListPtrVEXFace& faces, VEXListPtrVEXEdge& edges,
                                              VEXListPtrVEXVertex& vertices, VEXBody_var& body);

    /// Finds a container of a step. Those of output requests
    /// ("HLXHistoryOutputRequestContainerLT", "HLXFieldOutputRequestContainerLT") are made when
    /// they are not there. No message.
    /// @param step       an empty one gives nothing
    /// @param container  receives the container; left as it is when there is none
    /// @return S_OK, also when there is none; the query's result when the step makes no containers
    static HRESULT GetFeatContainer(VEXUnicodeString lateType, VEXISpecObject_var step,
                                    VEXBaseUnknown_var& container);

    /// Finds the first feature of a late type and a name in the sets of a document, such as its
    /// steps. Prints each name that it looks at, a line each.
    /// @param setLateType  late type of the sets
    /// @param feature      receives it; left as it is when there is none
    /// @return S_OK; 1 when there is no such set; E_FAIL when no feature has the name; the
    ///         platform's result when the sets cannot be listed
    static HRESULT GetFeatureByName(VEXUnicodeString lateType, VEXUnicodeString setLateType,
                                    VEXUnicodeString name, VEXISpecObject_var& feature,
                                    VEXDocument* document);

    // --- Steps: each message ends a line and is flushed ---------------------------------------

    /// Makes a step for each code of a list; its name is a prefix and the code's place in the list.
    ///
    ///     GSS   General_Static_Step_       HLXGeneralStaticStepLT
    ///     SPS   Staic_Perturbation_Step_   HLXStaticLPStepLT
    ///     RS    Riks_Step_                 HLXRiksStepLT
    ///     HTS   Heat_Transfer_Step_        HLXHeatTransferStepLT
    ///     EDS   Explicit_Dynamic_Step_     HLXExplicitDynamicLT
    ///
    /// Prints each entry, and for a code "Adding ... step succeeded !" or "Add Step failed !". A
    /// second call begins again with 1: names may repeat.
    /// @param stepCodes     what is no code takes a number and makes no step
    /// @param analysisCase  the case to make them in; null: the first code fails
    /// @param steps         the steps are appended, each with a reference added that the caller
    ///                      releases (VEXAdopt), also those made before a failure
    /// @return S_OK; E_FAIL at the first step that could not be made
    static HRESULT CreateSteps(VEXListValVEXUnicodeString& stepCodes,
                               VEXISamAnalysisCase* analysisCase, VEXListPtrVEXBaseUnknown& steps);

    // --- Amplitudes: no message ---------------------------------------------------------------

    /// Makes an amplitude of ten rows (time, value): (0, 0), (1, 2), (2, 4), ... (9, 18).
    /// @param document   an open analysis document
    /// @param setOption  not 0: its times count from the start of the first step, else of the step
    ///                   that uses it
    /// @param amplitude  receives the amplitude, also when it could not be filled
    /// @return S_OK; the platform's result when the factory or the amplitude could not be made or
    ///         refused the table; E_FAIL without an amplitude, or when it has not the interface of
    ///         its kind
    static HRESULT CreateTabularAmplitude(VEXDocument* document, unsigned char setOption,
                                          VEXISpecObject_var& amplitude);
    /// As above, with values that go smoothly from row to row.
    static HRESULT CreateSmoothStepAmplitude(VEXDocument* document, unsigned char setOption,
                                             VEXISpecObject_var& amplitude);

    // --- Jobs: no message ---------------------------------------------------------------------

    /// Makes a job without a name in the job container of a case, to write that case.
    /// @param job  receives the job. One that is in it before is taken for the new one when none
    ///             could be made.
    /// @return S_OK; E_FAIL without a job container or a job
    static HRESULT CreateJob(VEXDocument* document, VEXISamAnalysisCase_var& analysisCase,
                             HLXIJob_var& job);

    /// Makes the two jobs of the tests that write input files: `jobName`, and one that writes one
    /// part only, such as "Job-1" and "Job-1_SinglePart"; HLXAnalysisDocUtils::GetJobs lists them.
    /// Whether they took their names is not looked at.
    /// @return what the platform's error service makes of it: S_OK, or an error that came up on the
    ///         way; E_FAIL when a job could not be made or cannot have a name. The first one stays
    ///         when the second fails; it is taken for the second one, and named so, when the
    ///         container could not be asked for that.
    static HRESULT AddJobsForWritingInputFiles(VEXDocument* document,
                                               VEXISamAnalysisCase_var analysisCase,
                                               const VEXUnicodeString& jobName);

    // --- Loads: each message of theirs ends a line and is flushed ------------------------------
    //
    // Each creates a load in a step, gives it values and a new tabular amplitude
    // (CreateTabularAmplitude) that it uses, and puts it on geometry of the part that the document
    // is linked to. The operations that find it (GetProductDocFromAnalysisDoc,
    // GetMechPartFeatFromProductDoc, and for all but gravity GetSupportDataFromPartFeat) may print
    // messages of their own. All but gravity want a part with faces, edges and vertices, whatever
    // they are put on.
    //
    // Arguments: the open analysis document; the load's name; the load, received; the step.
    // Results: S_OK, or E_FAIL: with a message where one is named, silently when there is no
    // amplitude, part, body or cell, and when gravity or concentrated force refuses the amplitude
    // or the film condition a value. Whether a load took its other values, its flags and its name
    // is not looked at: "Could not valuate" tells that there was no parameter to valuate. Nothing
    // is undone on failure: a load that was created stays in the step.

    /// Gravity of -9.81 in Z, on the main body. "********** Could not create HLXLoadFact",
    /// "********** could not create gravity entity!", "********** Could not valuate gravity",
    /// "Could not add support to gravity load".
    /// @param name     given to what `gravity` holds before; the new load gets no name
    /// @param gravity  receives the load on success, else left as it is
    static HRESULT CreateGravity(VEXDocument* document, VEXUnicodeString name,
                                 VEXISpecObject_var& gravity, VEXISamAnalysisSet_var& step);

    /// Pressure of 1.25 on the first face. The load is made to follow the mesh ("subscription to
    /// MeshNegociator OK"); whether it does is no matter. "********** Could not create
    /// HLXLoadFact",
    /// "********** could not create pressure entity!", "********** could not access interface
    /// HLXIPressureLoad !", "********** could not access pressure parameter !", "********** Could
    /// not set user sub attribute" for an amplitude refused, "Could not add support to Pressure".
    /// @param pressure  receives the load as soon as it is there; a load that was in it before is
    ///                  taken for the new one when the platform succeeds without making one
    static HRESULT CreatePressureLoad(VEXDocument*& document, VEXUnicodeString name,
                                      VEXISpecObject_var& pressure, VEXISamAnalysisSet_var& step);

    /// Rotational body force of velocity 1.73205 and acceleration 5.25, on the main body, about the
    /// first edge; whether it took the edge is not looked at. "********** Could not create
    /// HLXLoadFact", "********** could not create centrifugal load entity!", "********** Could not
    /// valuate RBF velocity", "********** Could not set user sub attribute" for an amplitude
    /// refused, "Could not add support to gravity load".
    /// @param name       given to what `bodyForce` holds before; the new load gets no name
    /// @param bodyForce  receives the load on success, else left as it is
    static HRESULT CreateRBF(VEXDocument* document, VEXUnicodeString name,
                             VEXISpecObject_var& bodyForce, VEXISamAnalysisSet_var& step);

    /// Concentrated force of 1 in X at the first vertex. "********** Could not create HLXLoadFact",
    /// "********** could not create conc force entity!"; on standard error " Failed to add support
    /// 1".
    /// @param force  receives the load on success, else left as it is
    static HRESULT CreatedConcForce(VEXDocument* document, VEXUnicodeString name,
                                    VEXISpecObject_var& force, VEXISamAnalysisSet_var& step);

    /// Concentrated heat flux of 4.6589, changed by a user's subroutine, at the first vertex;
    /// whether it took the amplitude is not looked at. "could not create Concentrated Heat Flux
    /// entity!", also without a factory; on standard error " Failed to add support 1".
    /// @param flux  receives the load as soon as it is there
    static HRESULT CreateConcHTFlux(VEXDocument* document, VEXUnicodeString name,
                                    VEXISpecObject_var& flux, VEXISamAnalysisSet_var& step);

    /// Film condition of temperature 51 on the first face. It also gets a film amplitude of its own
    /// and film coefficients 1.2, 2.4, 3.5 at 10, 20, 30, which are not switched on; whether it
    /// took either amplitude is not looked at. "could not create Film Condition entity!", also
    /// without a factory, "Could not add support to Film Condition".
    /// @param film  receives the load as soon as it is there
    static HRESULT CreateFilmCondition(VEXDocument* document, VEXUnicodeString name,
                                       VEXISpecObject_var& film, VEXISamAnalysisSet_var& step);

    // --- Boundary conditions -------------------------------------------------------------------
    //
    // Each creates a condition in a step, switches an amplitude on without giving one (not for the
    // clamp), and puts it on the first face of the part that the document is linked to, as loads
    // are. Each message ends a line; two of them flush it.
    //
    // Arguments: the open analysis document; a name, which is not used; for each degree of freedom
    // whether it is prescribed and its value (lengths and radians in the units of the document, a
    // unit of time for velocities); the condition, received as soon as it is there; the step. A
    // condition that is in the handle before is taken for the new one when the platform succeeds
    // without making one; the handle is emptied when "Error in Getting the BC pointer " is printed,
    // which tells that the condition is no VEXISamAnalysisEntity, or that one no VEXISpecObject.
    // Results: S_OK, or E_FAIL: with a message where one is named, silently when the condition has
    // not the interface of its kind or refuses to use an amplitude, and when there is no part or
    // body, or the part has not faces, edges and vertices. Nothing is undone on failure.

    /// Displacements. A value is given when its byte is 1 and `fixOn` is 0; each byte, `fixOn` too,
    /// becomes its switch in any case, on for all but 0, and the condition is changed by a user's
    /// subroutine. Whether it took values and switches is not looked at. "could not create Clamp
    /// entity!", also without a factory; flushed: "Failed to get Tranlation Component", "Failed to
    /// get Rotation Component"; "Error in Getting the BC pointer ", "Could not get VEXILinkable for
    /// face!", "Could not add support to TestBC.1".
    /// @param fixOn  not 0: no value is given
    /// @return silently also E_NOINTERFACE for a condition without attribute access, and E_FAIL for
    /// one without one of the switches
    static HRESULT CreateDispBC(VEXDocument* document, VEXUnicodeString name, unsigned char u1On,
                                double u1, unsigned char u2On, double u2, unsigned char u3On,
                                double u3, unsigned char ur1On, double ur1, unsigned char ur2On,
                                double ur2, unsigned char ur3On, double ur3, unsigned char fixOn,
                                VEXISpecObject_var& bc, VEXISamAnalysisSet_var& step);

    /// Velocities. All values are given, whatever the switches say; whether the condition took them
    /// is not looked at. "could not create Velocity entity!", also without a factory; "Error in
    /// Getting the BC pointer ", "Could not get VEXILinkable for face!", "Could not add support to
    /// TestBC.1".
    static HRESULT CreateVelocityBC(VEXDocument* document, VEXUnicodeString name,
                                    unsigned char u1On, double u1, unsigned char u2On, double u2,
                                    unsigned char u3On, double u3, unsigned char ur1On, double ur1,
                                    unsigned char ur2On, double ur2, unsigned char ur3On,
                                    double ur3, VEXISpecObject_var& bc,
                                    VEXISamAnalysisSet_var& step);

    /// A clamp. The first edge of the part must be there too. "could not create Clamp entity!",
    /// also without a factory; "Error in Getting the BC pointer ", "VEXBRepDecode failed!", "Could
    /// not get VEXILinkable for face!", "Could not add support to 1st Clamp".
    static HRESULT CreateClamp(VEXDocument* document, VEXUnicodeString name,
                               VEXISpecObject_var& clamp, VEXISamAnalysisSet_var& step);

    // --- Temperatures: each message of theirs ends a line and is flushed -----------------------
    //
    // As loads. Arguments: the open analysis document; the name of the new temperature; the
    // temperature, received as soon as it is there; the step. Results: S_OK, or E_FAIL: with a
    // message where one is named, silently when there is no amplitude, part or body. Nothing is
    // undone on failure. Of the first two, a temperature that is in the handle before is taken for
    // the new one when the platform succeeds without making one.

    /// Temperature of 25.89 on the first face, changed by a user's subroutine, with a new tabular
    /// amplitude that it uses; whether it took flags and amplitude is not looked at. Silently
    /// E_FAIL also for a temperature refused, and for a part without faces, edges and vertices.
    /// "Could not create temperature BC in the current step", also without a factory; "Could not
    /// get VEXILinkable for face!", not flushed; "Could not add support to Temperature BC".
    static HRESULT CreateTemperatureBC(VEXDocument* document, VEXUnicodeString& name,
                                       VEXISpecObject_var& temperature,
                                       VEXISamAnalysisSet_var& step);

    /// Initial temperature on the main body, in the initial step of the current case, which
    /// HLXAnalysisDocUtils::ValidateStep finds, or makes with its "HLXHacFieldContainerLT"; without
    /// a value. "Could not create initial temperature in the current step", also without a factory
    /// or a step; "Could not add support to Initial Temperature".
    static HRESULT CreateInitialTemperature(VEXDocument* document, VEXUnicodeString& name,
                                            VEXISpecObject_var& temperature);

    /// Temperature history on the main body, without data. "Could not create temperature history in
    /// the current step", also without a factory; "Could not add support to Film Condition".
    static HRESULT CreateTemperatureHistory(VEXDocument* document, VEXUnicodeString& name,
                                            VEXISamAnalysisEntity_var& history,
                                            VEXISamAnalysisSet_var& step);

    // --- Parameter reports: no message ---------------------------------------------------------
    //
    // Each appends one block of text with the parameters of a feature to a file, which is made when
    // it is not there; whether it can be opened or written is not looked at. The block: an empty
    // line, the header with a blank at its end, one line " label:value" a parameter, two empty
    // lines. Texts and names stand as they are, line feeds too. Labels are kept as they are,
    // "Sunroutine" and "Accelaration" included. A path with a zero in it is one that cannot be
    // opened.
    //
    //     number      six significant digits, exponents of at least three digits: 0.5, 1.23457e+006
    //     whole number, text   as it is
    //     flag        "TRUE " with a blank, "FALSE"
    //     amplitude, analysis case   its alias, be it empty; "NULL" when none is referred to, or it
    //                                is nothing that can have an alias
    //
    // Results: S_OK; E_FAIL, and nothing is written, for a feature of another kind and when a value
    // or amplitude cannot be read. The two that say so write as they go: they answer E_FAIL, with
    // the header alone in the file, when the temperature is to be written and cannot be read; other
    // values are not looked at: a flag that cannot be read is "TRUE ", an amplitude "NULL".

    /// Of an HLXIPressureLoad: user subroutine, pressure, use amplitude, amplitude.
    static HRESULT DumpPressureParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXIGravity: three components, use amplitude, amplitude.
    static HRESULT DumpGravityParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXIRotationalBodyForce: velocity, acceleration, use amplitude, amplitude.
    static HRESULT DumpRBFParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXIConcentratedForce: three components, use amplitude, amplitude.
    static HRESULT DumpConcForceParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXIDisplacementBC: user subroutine; flag and value of each degree of freedom, the
    /// value also when the flag is FALSE; use amplitude, amplitude.
    static HRESULT DumpDispBCParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXITemperatureHistory, as it goes: for distribution 0 the temperature; for 2 nothing;
    /// for others steps, increments and analysis case; then user subroutine, use amplitude,
    /// amplitude. The distribution is that of its HLXITemperature; without an answer it is 2, as of
    /// a history that is gone, which is written too.
    static HRESULT DumpTempHistParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXITemperature, as it goes: temperature, user subroutine, use amplitude, amplitude.
    static HRESULT DumpTempBCParams(VEXISpecObject_var feature, VEXUnicodeString reportFilePath);
    /// Of an HLXIHeatFlux of any kind: magnitude, user subroutine, use amplitude, amplitude.
    static HRESULT DumpConcHeatFluxParams(VEXISpecObject_var feature,
                                          VEXUnicodeString reportFilePath);
    /// Of an HLXIFilmCondition: temperature, whether it depends on temperature, file name, user
    /// subroutine, use amplitude, amplitude, the same of the film; the first film coefficient and
    /// its temperature, 0 when there are none.
    static HRESULT DumpFilmConditionParams(VEXISpecObject_var feature,
                                           VEXUnicodeString reportFilePath);

    // --- Input files --------------------------------------------------------------------------

    /// Writes the solver input file of one analysis case, structured whatever the user's option
    /// says.
    /// @param analysisCase   the case; not checked: an empty one is handed to the writer as it is
    /// @param inputFilePath  full path of the file, its ending included
    /// @return S_OK, also when the writer failed; with a message E_FAIL when the writer component
    ///         cannot be made and the query's own result when it has no writing interface
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase* analysisCase,
                                                 VEXUnicodeString inputFilePath);
    /// As above.
    static HRESULT WriteInputFileForAnalysisCase(VEXISamAnalysisCase_var analysisCase,
                                                 VEXUnicodeString inputFilePath);

    /// Writes the feature tree of the document's current analysis model into a text file, which is
    /// replaced: "Propagation Load Test", "Feature tree:", the tree. Whether the file could be
    /// opened is not checked.
    /// @param document  an open analysis document; not changed
    /// @param fileName  path of the file
    /// @return S_OK; E_FAIL without an analysis manager (no message) or without a current model
    ///         ("Failed to get the Analysis Model")
    static HRESULT WriteFeatTreeFileForAnalysisCase(VEXDocument*& document,
                                                    VEXUnicodeString fileName);
};
