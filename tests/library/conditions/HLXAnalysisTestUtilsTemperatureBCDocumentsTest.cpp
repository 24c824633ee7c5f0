// SPDX-License-Identifier: Apache-2.0
// Temperature boundary conditions on documents with other parts, in other steps, without what they
// need; and stored.
#include "library/conditions/TemperatureDocuments.h"

namespace hlxtest::statics {
namespace {

constexpr const TemperatureKind& kKind = kTemperatureBC;

// --- Parts --------------------------------------------------------------------------------------

class TemperatureBCOnPartTest : public TemperatureDocumentTest,
                                public testing::WithParamInterface<const char*>
{
protected:
    TemperatureBCOnPartTest() : TemperatureDocumentTest(GetParam()) {}
};

TEST_P(TemperatureBCOnPartTest, IsPutOnTheFirstFace)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole("Name", GetParam()), 1});
}

INSTANTIATE_TEST_SUITE_P(Of, TemperatureBCOnPartTest,
                         testing::Values("cylinder", "sphere", "torus", "sheets", "two_solids"),
                         [](const auto& row) { return std::string(row.param); });

class TemperatureBCOnIncompletePartTest : public TemperatureBCOnPartTest
{};

TEST_P(TemperatureBCOnIncompletePartTest, FailsWithoutAWordWhenTheTemperatureIsThere)
{
    ExpectExit(kKind, {"", "", E_FAIL, "", kKind.Ready(), 1});
}

INSTANTIATE_TEST_SUITE_P(Of, TemperatureBCOnIncompletePartTest,
                         testing::Values("bare_sphere", "wire_frame", "without_geometry"),
                         [](const auto& row) { return std::string(row.param); });

// --- Links --------------------------------------------------------------------------------------

class TemperatureBCWithoutLinksTest : public TemperatureDocumentTest
{
protected:
    TemperatureBCWithoutLinksTest() : TemperatureDocumentTest(nullptr) {}
};

TEST_F(TemperatureBCWithoutLinksTest, LinksLeadToTheFirstPart)
{
    ExpectLinksFollowed(kKind);
}

TEST_F(TemperatureBCWithoutLinksTest, AProductWithoutAPartIsNotEnough)
{
    ExpectNoPartInAnEmptyProduct(kKind);
}

TEST_F(TemperatureBCWithoutLinksTest, APartLinkedDirectlyIsNoProduct)
{
    ExpectNoProductInALinkToAPart(kKind);
}

// --- Steps and documents ------------------------------------------------------------------------

class TemperatureBCInStepTest : public TemperatureDocumentTest
{};

TEST_F(TemperatureBCInStepTest, StandsInThatStepAlone)
{
    ExpectTakenByEveryStep(kKind);
}

TEST_F(TemperatureBCInStepTest, WhatIsNoStepOfTheDocumentRefusesIt)
{
    ExpectRefusedByOtherSteps(kKind);
}

TEST_F(TemperatureBCInStepTest, NoDocumentAndOtherDocumentsRefuseIt)
{
    ExpectRefusedByOtherDocuments(kKind);
}

TEST_F(TemperatureBCInStepTest, IsTheSameOnceStoredAndOpenedAgain)
{
    ExpectSameOnceStored(kKind);
}

}  // namespace
}  // namespace hlxtest::statics
