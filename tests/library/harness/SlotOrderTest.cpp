// SPDX-License-Identifier: Apache-2.0
// The order of the virtual operations of a test case is binary contract: the base's seventeen, then
// nine of its own. Seen in three ways: where each operation stands, what a call through each place
// reaches, and which of the base's places the test case fills anew.
#include "support/ExposedTestCase.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <vector>

namespace hlxtest {

namespace {

/// Place of a virtual operation in the table of its class, from 0. (A pointer to a virtual member
/// holds its offset there, and the mark that it is virtual in the lowest bit of one of its words.)
/// The destructor fills two places.
template <class Member>
std::ptrdiff_t PlaceOf(Member member)
{
    struct Words
    {
        std::ptrdiff_t offset;
        std::ptrdiff_t adjustment;
    };
    const auto words = std::bit_cast<Words>(member);
    const bool markedInOffset = (words.offset & 1) != 0;
    EXPECT_TRUE(markedInOffset || (words.adjustment & 1) != 0) << "not a virtual operation";
    return (words.offset - (markedInOffset ? 1 : 0)) /
           static_cast<std::ptrdiff_t>(sizeof(void (*)()));
}

using ByIdentifier = HRESULT (VEXBaseUnknown::*)(const IID&, void**) const;
using ByName = HRESULT (VEXBaseUnknown::*)(const char*, void**) const;

constexpr std::ptrdiff_t kDestructor = 8;  // and the place after it
constexpr std::ptrdiff_t kGetMetaObject = 10;
constexpr std::ptrdiff_t kIsA = 11;
constexpr std::ptrdiff_t kIsAKindOf = 12;
constexpr std::ptrdiff_t kOwnPlaces = 18;

TEST(SlotOrder, TheBaseHasItsSeventeenOperationsInOrder)
{
    EXPECT_EQ(PlaceOf(static_cast<ByIdentifier>(&VEXBaseUnknown::QueryInterface)), 0);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::AddRef), 1);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::Release), 2);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::GetTypeInfoCount), 3);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::GetTypeInfo), 4);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::GetIDsOfNames), 5);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::Invoke), 6);
    EXPECT_EQ(PlaceOf(static_cast<ByName>(&VEXBaseUnknown::QueryInterface)), 7);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::GetMetaObject), kGetMetaObject);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::IsA), kIsA);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::IsAKindOf), kIsAKindOf);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::GetImpl), 13);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::SetImpl), 14);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::IsNull), 15);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::IsEqual), 16);
    EXPECT_EQ(PlaceOf(&VEXBaseUnknown::ChangeComponentState), 17);
}

TEST(SlotOrder, ATestCaseHasItsNineAfterThem)
{
    EXPECT_EQ(PlaceOf(&HLXBaseTestCase::PreProcess), kOwnPlaces);
    EXPECT_EQ(PlaceOf(&HLXBaseTestCase::Process), kOwnPlaces + 1);
    EXPECT_EQ(PlaceOf(&HLXBaseTestCase::PostProcess), kOwnPlaces + 2);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::ProcessArguments), kOwnPlaces + 3);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::VerifyArguments), kOwnPlaces + 4);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::GetLoadFactory), kOwnPlaces + 5);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::InitializeLoadFactory), kOwnPlaces + 6);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::GetChildren), kOwnPlaces + 7);
    EXPECT_EQ(PlaceOf(&ExposedTestCase::InitializeNavigateObject), kOwnPlaces + 8);
}

/// A test case as a caller knows it who has nothing but the order: seventeen places, then nine.
class CallerSide : public VEXBaseUnknown
{
public:
    virtual long Slot1(int argc, char** const argv, int mode) = 0;
    virtual long Slot2() = 0;
    virtual long Slot3() = 0;
    virtual unsigned char Slot4(int argc, char** const argv) = 0;
    virtual unsigned char Slot5(int argc) = 0;
    virtual VEXBaseUnknown* Slot6() = 0;
    virtual long Slot7() = 0;
    virtual VEXListValVEXBaseUnknown_var* Slot8() = 0;
    virtual long Slot9(VEXISamAnalysisManager_var manager) = 0;
};

/// Answers each operation with the name of the one that was called and what it was given.
class Telling : public HLXBaseTestCase
{
public:
    std::string told;

    long PreProcess(int argc, char** const argv, FileMode mode) override
    {
        told = std::string("PreProcess ") + std::to_string(argc) + argv[0] + std::to_string(mode);
        return -1;
    }
    long Process() override
    {
        told = "Process";
        return 2147500037L;
    }
    long PostProcess() override
    {
        told = "PostProcess";
        return -3;
    }

protected:
    unsigned char ProcessArguments(int argc, char** const argv) override
    {
        told = std::string("ProcessArguments ") + std::to_string(argc) + argv[0];
        return 4;
    }
    unsigned char VerifyArguments(int argc) override
    {
        told = "VerifyArguments " + std::to_string(argc);
        return 5;
    }
    VEXBaseUnknown* GetLoadFactory() override
    {
        told = "GetLoadFactory";
        return this;
    }
    long InitializeLoadFactory() override
    {
        told = "InitializeLoadFactory";
        return -7;
    }
    VEXListValVEXBaseUnknown_var* GetChildren() override
    {
        told = "GetChildren";
        return &_AnalysisCases;
    }
    long InitializeNavigateObject(VEXISamAnalysisManager_var manager) override
    {
        told = manager == nullptr ? "InitializeNavigateObject" : "";
        return -9;
    }
};

// The call below is through a class that the object is not of: that is the point.
__attribute__((no_sanitize("undefined"), noinline)) std::vector<std::string> CallEachSlot(
    CallerSide* object, const std::string& told, std::vector<long>& results)
{
    char text[] = "x";
    char* argv[] = {text, nullptr};
    std::vector<std::string> heard;
    const auto note = [&](long result) {
        results.push_back(result);
        heard.push_back(told);
    };
    note(object->Slot1(11, argv, 1));
    note(object->Slot2());
    note(object->Slot3());
    note(object->Slot4(44, argv));
    note(object->Slot5(55));
    note(object->Slot6() != nullptr);
    note(object->Slot7());
    note(object->Slot8() != nullptr);
    note(object->Slot9(VEXISamAnalysisManager_var()));
    return heard;
}

TEST(SlotOrder, ACallThroughEachPlaceReachesItsOperation)
{
    Telling testCase;
    void* object = static_cast<VEXBaseUnknown*>(&testCase);
    std::vector<long> results;
    EXPECT_EQ(CallEachSlot(static_cast<CallerSide*>(object), testCase.told, results),
              (std::vector<std::string>{"PreProcess 11x1", "Process", "PostProcess",
                                        "ProcessArguments 44x", "VerifyArguments 55",
                                        "GetLoadFactory", "InitializeLoadFactory", "GetChildren",
                                        "InitializeNavigateObject"}));
    EXPECT_EQ(results, (std::vector<long>{-1, 2147500037L, -3, 4, 5, 1, -7, 1, -9}));
}

/// The first eighteen entries of the table of an object's class.
std::vector<const void*> BaseEntriesOf(const VEXBaseUnknown& object)
{
    const void* const* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&object), sizeof table);
    return std::vector<const void*>(table, table + kOwnPlaces);
}

TEST(SlotOrder, ATestCaseFillsFourOfTheBasesOperationsAnew)
{
    const VEXBaseUnknown base;
    const ExposedTestCase testCase;
    const std::vector<const void*> ofBase = BaseEntriesOf(base);
    const std::vector<const void*> ofTestCase = BaseEntriesOf(testCase);
    for (std::ptrdiff_t place = 0; place < kOwnPlaces; ++place) {
        const bool filledAnew = place == kDestructor || place == kDestructor + 1 ||
                                place == kGetMetaObject || place == kIsA || place == kIsAKindOf;
        const auto index = static_cast<std::size_t>(place);
        EXPECT_EQ(ofBase[index] != ofTestCase[index], filledAnew) << "place " << place;
    }
}

}  // namespace

}  // namespace hlxtest
