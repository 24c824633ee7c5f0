// SPDX-License-Identifier: Apache-2.0
// Temperature histories on documents with other parts, in other steps, without what they need; and
// stored.
#include "library/conditions/TemperatureDocuments.h"

namespace hlxtest::statics {
namespace {

constexpr const TemperatureKind& kKind = kTemperatureHistory;

class TemperatureHistoryOnPartTest : public TemperatureDocumentTest,
                                     public testing::WithParamInterface<const char*>
{
protected:
    TemperatureHistoryOnPartTest() : TemperatureDocumentTest(GetParam()) {}
};

TEST_P(TemperatureHistoryOnPartTest, IsPutOnTheBodyWhateverCellsItHas)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole("Name", GetParam()), 0});
}

INSTANTIATE_TEST_SUITE_P(Of, TemperatureHistoryOnPartTest,
                         testing::Values("cylinder", "bare_sphere", "sheets", "wire_frame",
                                         "two_solids"),
                         [](const auto& row) { return std::string(row.param); });

class TemperatureHistoryOnNothingTest : public TemperatureDocumentTest
{
protected:
    TemperatureHistoryOnNothingTest() : TemperatureDocumentTest("without_geometry") {}
};

TEST_F(TemperatureHistoryOnNothingTest, IsRefusedByThePlatformWithItsReason)
{
    ExpectRefusedWithoutGeometry(kKind);
}

class TemperatureHistoryWithoutLinksTest : public TemperatureDocumentTest
{
protected:
    TemperatureHistoryWithoutLinksTest() : TemperatureDocumentTest(nullptr) {}
};

TEST_F(TemperatureHistoryWithoutLinksTest, LinksLeadToTheFirstPart)
{
    ExpectLinksFollowed(kKind);
}

TEST_F(TemperatureHistoryWithoutLinksTest, AProductWithoutAPartIsNotEnough)
{
    ExpectNoPartInAnEmptyProduct(kKind);
}

TEST_F(TemperatureHistoryWithoutLinksTest, APartLinkedDirectlyIsNoProduct)
{
    ExpectNoProductInALinkToAPart(kKind);
}

class TemperatureHistoryInStepTest : public TemperatureDocumentTest
{};

TEST_F(TemperatureHistoryInStepTest, StandsInThatStepAlone)
{
    ExpectTakenByEveryStep(kKind);
}

TEST_F(TemperatureHistoryInStepTest, WhatIsNoStepOfTheDocumentRefusesIt)
{
    ExpectRefusedByOtherSteps(kKind);
}

TEST_F(TemperatureHistoryInStepTest, NoDocumentAndOtherDocumentsRefuseIt)
{
    ExpectRefusedByOtherDocuments(kKind);
}

TEST_F(TemperatureHistoryInStepTest, IsTheSameOnceStoredAndOpenedAgain)
{
    ExpectSameOnceStored(kKind);
}

}  // namespace
}  // namespace hlxtest::statics
