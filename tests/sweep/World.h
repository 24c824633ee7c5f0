// SPDX-License-Identifier: Apache-2.0
// What an operation of the sweep runs in: a fresh folder with a fresh copy of the standard stored
// document, a command line that names it, a test case.
#pragma once

#include "support/CommandLine.h"
#include "support/ExposedTestCase.h"

#include <string>

namespace hlxtest::sweep {

class World
{
public:
    /// Empties `folder` and puts into it: in/model.VEXAnalysis, which has `cases` analysis cases
    /// with a step each and is linked to in/product.VEXProduct, which has the part in/box.VEXPart;
    /// and the empty folder out.
    World(const std::string& folder, int cases);

    const std::string input;     ///< folder of the document
    const std::string output;    ///< folder for what is written
    const std::string document;  ///< path of the stored document
    CommandLine line;            ///< of a program: in, document, out, job.inp, second.inp
    ExposedTestCase test;        ///< with its paths set, the document not open
    VEXISpecObject_var step;     ///< from FindStep

    /// A path in the folder for what is written.
    VEXUnicodeString Output(const char* name) const { return {(output + "/" + name).c_str()}; }

    // --- Preparations: what must be there before an operation can run -------------------------

    void Nothing() {}
    /// Opens the document.
    void Open();
    /// Opens the document and lists its analysis cases.
    void ListCases();
    /// Opens the document and finds the root of its feature tree.
    void FindTree();
    /// Makes a product the test case's root product.
    void MakeProduct();
    /// Makes in/product.VEXProduct the test case's root product.
    void FindProduct();
    /// Makes the part of in/box.VEXPart the test case's mechanical part.
    void FindPart();
    /// Opens the document and finds the step of its first analysis case.
    void FindStep();

    /// The analysis case of that number from ListCases.
    VEXISamAnalysisCase_var Case(int number) const { return test._AnalysisCases[number]; }
};

}  // namespace hlxtest::sweep
