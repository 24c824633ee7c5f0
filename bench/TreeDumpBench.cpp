// SPDX-License-Identifier: Apache-2.0
// The tree dump beside the same bytes put together by hand: numbers by std::to_chars, texts by
// memcpy, one buffer, one fwrite.
#include "Comparison.h"
#include "HLXProductUtilities.h"
#include "HostDocument.h"

#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>

namespace {

using namespace bench;

/// Of a small tree the ratio is shown only: half of its time is the operating system's.
constexpr std::int64_t smallestLimited = 100'000;

/// Room for any line: aliases and texts are short.
constexpr std::size_t longestLine = 256;

class Line
{
public:
    explicit Line(char* place) : _place(place) {}
    Line& Add(std::string_view text)
    {
        std::memcpy(_place, text.data(), text.size());
        _place += text.size();
        return *this;
    }
    template <class Number>
    Line& AddNumber(Number number)
    {
        _place = std::to_chars(_place, _place + 32, number).ptr;
        return *this;
    }
    char* End() const { return _place; }

private:
    char* _place;
};

char* Format(char* place, const PlainFeature& feature)
{
    return Line(place)
        .Add(feature.parent == 0 ? "  " : "    ")
        .Add("HLXGeneralStaticStepLT \"")
        .Add(feature.alias)
        .Add("\" Description=\"")
        .Add(std::get<std::string>(feature.attributes[0].value))
        .Add("\" TimePeriod=")
        .AddNumber(std::get<double>(feature.attributes[2].value))
        .Add(" MaximumNumberOfIncrements=")
        .AddNumber(std::get<std::int64_t>(feature.attributes[1].value))
        .Add("\n")
        .End();
}

/// The file is a new one: the file system may put at once on the disk what is cut and written anew.
void WriteFile(const std::string& path, const char* bytes, std::size_t size)
{
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    Require(file != nullptr && std::fwrite(bytes, 1, size, file) == size && std::fclose(file) == 0,
            "a dump cannot be written");
}

void DumpByHost(const VEXINavigateObject_var& model, const std::string& path)
{
    HLXGenString text;
    Require(DumpFeatureTree(model.Get(), 0, text) == S_OK, "the tree cannot be dumped");
    WriteFile(path, text.c_str(), text.Length());
}

void DumpByHand(const std::vector<PlainFeature>& features, const std::string& path)
{
    const auto buffer = std::make_unique_for_overwrite<char[]>((features.size() + 1) * longestLine);
    char* end = Line(buffer.get()).Add("VEXSamAnalysisModel \"Finite Element Model.1\"\n").End();
    for (const PlainFeature& feature : features) {
        end = Format(end, feature);
    }
    WriteFile(path, buffer.get(), static_cast<std::size_t>(end - buffer.get()));
}

std::string ReadFile(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void DumpTree(benchmark::State& state)
{
    const std::vector<PlainFeature> features = MakeFeatures(state.range(0));
    VEXDocument& document = MakeDocument(features);
    const VEXINavigateObject_var model = ModelOf(document);
    const Folder folder;
    const std::string ours = folder.File("ours.txt");
    const std::string byHand = folder.File("by_hand.txt");
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        ::unlink(ours.c_str());
        ::unlink(byHand.c_str());
        comparison.Ours(SecondsOnFreshHeap([&] { DumpByHost(model, ours); }));
        comparison.Baseline(0, SecondsOnFreshHeap([&] { DumpByHand(features, byHand); }));
    }
    Require(ReadFile(ours) == ReadFile(byHand), "the two dumps differ");
    comparison.Report(state.range(0) < smallestLimited ? 0.0 : 1.3);
    RemoveDocument(document);
}

}  // namespace

BENCHMARK(DumpTree)->Arg(1'000)->Iterations(301)->UseManualTime();
BENCHMARK(DumpTree)->Arg(100'000)->Iterations(21)->UseManualTime();
BENCHMARK(DumpTree)->Arg(1'000'000)->Iterations(7)->UseManualTime();
