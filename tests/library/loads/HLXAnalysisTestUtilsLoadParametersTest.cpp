// SPDX-License-Identifier: Apache-2.0
// Loads whose interface gives only some of their parameters: which ones a creation cannot do
// without.
#include "library/LoadFixture.h"
#include "library/loads/ReplacedInterface.h"
#include "support/StandIns.h"

namespace hlxtest::statics {
namespace {

/// Keeps what it is valued to.
class ParameterStandIn : public Mortal<VEXIParameter>
{
public:
    ParameterStandIn(Deaths& deaths, std::string name, std::vector<std::string>& valuations)
        : Mortal(deaths, name), _name(std::move(name)), _valuations(valuations)
    {}

    HRESULT Valuate(double value) override
    {
        _valuations.push_back(_name + (value < 0 ? " below" : " above") + " zero");
        return S_OK;
    }
    HRESULT GetValue(double&) const override { return E_FAIL; }

private:
    std::string _name;
    std::vector<std::string>& _valuations;
};

/// What the adapters below give, and what became of it.
struct Parameters
{
    std::string given;  ///< names of one letter
    std::vector<std::string> valuations;
    Deaths deaths;

    VEXIParameter_var Give(char name)
    {
        return given.find(name) == given.npos ? VEXIParameter_var()
                                              : VEXIParameter_var::Adopt(new ParameterStandIn(
                                                    deaths, std::string(1, name), valuations));
    }
};

Parameters parameters;

/// What loads have in common: everything succeeds.
template <class Interface>
class LoadStandIn : public vex::Adapter<Interface, vex::Feature>
{
public:
    using vex::Adapter<Interface, vex::Feature>::Adapter;
    HRESULT SetAmplitude(const VEXISpecObject_var&) override { return S_OK; }
    HRESULT SetUseAmplitude(unsigned char) override { return S_OK; }
    HRESULT GetAmplitude(VEXISpecObject_var&) const override { return S_OK; }
    HRESULT GetUseAmplitude(unsigned char&) const override { return S_OK; }
    HRESULT SetUserSubroutine(unsigned char) override { return S_OK; }
    HRESULT GetUserSubroutine(unsigned char&) const override { return S_OK; }
};

class RotationStandIn : public LoadStandIn<HLXIRotationalBodyForce>
{
public:
    using LoadStandIn::LoadStandIn;
    HRESULT GetRotationParameters(VEXIParameter_var& velocity,
                                  VEXIParameter_var& acceleration) override
    {
        velocity = parameters.Give('v');
        acceleration = parameters.Give('a');
        return S_OK;
    }
    HRESULT SetAxis(const VEXILinkableObject_var&, const VEXISpecObject_var&) override
    {
        return S_OK;
    }
    HRESULT GetVelocity(double&) const override { return E_FAIL; }
    HRESULT GetAcceleration(double&) const override { return E_FAIL; }
};

class GravityStandIn : public LoadStandIn<HLXIGravity>
{
public:
    using LoadStandIn::LoadStandIn;
    HRESULT GetComponentParameters(VEXIParameter_var& x, VEXIParameter_var& y,
                                   VEXIParameter_var& z) override
    {
        x = parameters.Give('x');
        y = parameters.Give('y');
        z = parameters.Give('z');
        return S_OK;
    }
    HRESULT GetComponentX(double&) const override { return E_FAIL; }
    HRESULT GetComponentY(double&) const override { return E_FAIL; }
    HRESULT GetComponentZ(double&) const override { return E_FAIL; }
};

struct Row
{
    const char* given;
    Outcome outcome;
    std::vector<std::string> valuations;

    friend void PrintTo(const Row& row, std::ostream* stream) { *stream << row.given; }
};

class LoadParametersTest : public LoadTest, public testing::WithParamInterface<Row>
{
protected:
    LoadParametersTest()
    {
        parameters = Parameters{};
        parameters.given = GetParam().given;
    }

    void ExpectRow(LoadCreation create)
    {
        EXPECT_EQ(Create(create), GetParam().outcome);
        EXPECT_EQ(parameters.valuations, GetParam().valuations);
        EXPECT_EQ(parameters.deaths.size(), parameters.given.size());
        EXPECT_EQ(static_cast<bool>(load), GetParam().outcome.result == S_OK);
    }
};

std::string NameOfGiven(const testing::TestParamInfo<Row>& row)
{
    return row.param.given;
}

class RotationParametersTest : public LoadParametersTest
{};

TEST_P(RotationParametersTest, BothAreWantedBeforeOneIsValued)
{
    const ReplacedInterface<RotationStandIn> replaced("HLXRotationalBodyForce");
    ExpectRow(&HLXAnalysisTestUtils::CreateRBF);
}

const Outcome kNoVelocity{E_FAIL, "********** Could not valuate RBF velocity\n", ""};

INSTANTIATE_TEST_SUITE_P(
    Given, RotationParametersTest,
    testing::Values(Row{"v", kNoVelocity, {}}, Row{"a", kNoVelocity, {}},
                    Row{"va", {S_OK, "", ""}, {"v above zero", "a above zero"}}),
    NameOfGiven);

class GravityParametersTest : public LoadParametersTest
{};

TEST_P(GravityParametersTest, OnlyTheThirdIsWantedAndValued)
{
    const ReplacedInterface<GravityStandIn> replaced("HLXGravity");
    ExpectRow(&HLXAnalysisTestUtils::CreateGravity);
}

const Outcome kNoGravity{E_FAIL, "********** Could not valuate gravity\n", ""};

INSTANTIATE_TEST_SUITE_P(Given, GravityParametersTest,
                         testing::Values(Row{"xy", kNoGravity, {}},
                                         Row{"z", {S_OK, "", ""}, {"z below zero"}},
                                         Row{"xyz", {S_OK, "", ""}, {"z below zero"}}),
                         NameOfGiven);

}  // namespace
}  // namespace hlxtest::statics
