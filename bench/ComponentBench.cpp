// SPDX-License-Identifier: Apache-2.0
// Casts and counting, beside an object that does them by hand. Both are called through a pointer to
// the base, as all programs call them.
#include "Comparison.h"
#include "HandWrittenObject.h"
#include "HostDocument.h"

namespace {

using namespace bench;

constexpr int passes = 20'000;

/// Casts to each of the five interfaces by turns; only the casts are timed, not the releases.
double SecondsACast(const VEXBaseUnknown* object)
{
    benchmark::DoNotOptimize(object);
    void* found = nullptr;
    const double seconds = SecondsOf([&] {
        for (int pass = 0; pass < passes; ++pass) {
            for (const IID& iid : HandWrittenObject::ids) {
                object->QueryInterface(iid, &found);
                benchmark::DoNotOptimize(found);
            }
        }
    });
    constexpr int casts = passes * static_cast<int>(HandWrittenObject::ids.size());
    for (int i = 0; i < casts; ++i) {
        object->Release();
    }
    return seconds / casts;
}

double SecondsACount(const VEXBaseUnknown* object)
{
    benchmark::DoNotOptimize(object);
    const double seconds = SecondsOf([&] {
        for (int pass = 0; pass < passes; ++pass) {
            object->AddRef();
            object->Release();
        }
    });
    return seconds / passes;
}

using Measure = double (*)(const VEXBaseUnknown*);

/// The interface of a feature, with all five interfaces bound, beside the object written by hand.
void Compare(benchmark::State& state, Measure measure, double limit)
{
    VEXDocument& document = MakeDocument({});
    {
        const VEXINavigateObject_var model = ModelOf(document);
        const auto byHand = VEXAdopt(new HandWrittenObject);
        for (const VEXBaseUnknown* object : {static_cast<VEXBaseUnknown*>(model.Get()),
                                             static_cast<VEXBaseUnknown*>(byHand.Get())}) {
            for (const IID& iid : HandWrittenObject::ids) {
                void* found = nullptr;
                Require(object->QueryInterface(iid, &found) == S_OK, "an interface is missing");
                static_cast<VEXBaseUnknown*>(found)->Release();
            }
        }
        Comparison comparison(state);
        for ([[maybe_unused]] auto round : state) {
            comparison.Ours(measure(model.Get()));
            comparison.Baseline(0, measure(byHand.Get()));
        }
        comparison.Report(limit);
    }
    RemoveDocument(document);
}

void Cast(benchmark::State& state)
{
    Compare(state, &SecondsACast, 2.0);
}

void AddRefAndRelease(benchmark::State& state)
{
    Compare(state, &SecondsACount, 0.0);
}

}  // namespace

BENCHMARK(Cast)->Iterations(201)->UseManualTime();
BENCHMARK(AddRefAndRelease)->Iterations(201)->UseManualTime();
