// SPDX-License-Identifier: Apache-2.0
// Documents: opening, saving, copying, how these grow, and the memory of an open document.
#include "Comparison.h"
#include "HostDocument.h"
#include "PlainDatabase.h"

#include <malloc.h>
#include <unistd.h>

#include <array>

namespace {

using namespace bench;

/// The limits are for documents of this many features and more: connecting, reading the schema and
/// the search for abandoned files cost the same for any.
constexpr std::int64_t smallestLimited = 10'000;
/// Saving to the disk for these: of what a small file takes, most is waiting for the disk.
constexpr std::int64_t smallestSavedToDisk = 100'000;

constexpr double mostOpen = 0.7;
constexpr double mostSave = 0.3;
constexpr double mostCopy = 0.25;

/// 0, no limit, for documents that are smaller.
double LimitFrom(const benchmark::State& state, std::int64_t smallest, double limit)
{
    return state.range(0) < smallest ? 0.0 : limit;
}

constexpr std::array tables = {AttributeTable::Rowid, AttributeTable::WithoutRowid};

/// A document's features, stored and removed from the session again.
class Stored
{
public:
    explicit Stored(std::int64_t count, Place place = Place::Disk)
        : folder(place), features(MakeFeatures(count))
    {
        VEXDocument& document = MakeDocument(features);
        SaveDocumentAs(document, path);
        RemoveDocument(document);
    }

    Folder folder;
    std::string path = folder.File("bench.VEXAnalysis");
    std::string otherPath = folder.File("other.VEXAnalysis");
    std::vector<PlainFeature> features;
};

double SecondsToOpen(const Stored& stored)
{
    VEXDocument* document = nullptr;
    const double seconds = SecondsOnFreshHeap([&] { document = &OpenDocument(stored.path); });
    RemoveDocument(*document);
    return seconds;
}

double SecondsToSave(VEXDocument& document)
{
    Touch(document);
    return SecondsOnFreshHeap([&] { SaveDocument(document); });
}

void Open(benchmark::State& state)
{
    const Stored stored(state.range(0));
    VEXDocument& document = OpenDocument(stored.path);
    RequireSame(document, stored.features);
    RemoveDocument(document);
    std::array<std::string, tables.size()> plain;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        plain[i] = stored.folder.File(i == 0 ? "rowid.db" : "without_rowid.db");
        WritePlain(plain[i], tables[i], stored.features);
        Require(ReadPlain(plain[i], tables[i]) == stored.features, "the baseline reads otherwise");
    }
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        comparison.Ours(SecondsToOpen(stored));
        for (std::size_t i = 0; i < tables.size(); ++i) {
            std::vector<PlainFeature> read;
            comparison.Baseline(i,
                                SecondsOnFreshHeap([&] { read = ReadPlain(plain[i], tables[i]); }));
        }
    }
    comparison.Report(LimitFrom(state, smallestLimited, mostOpen));
}

void MeasureSave(benchmark::State& state, Place place, double limit)
{
    const Stored stored(state.range(0), place);
    VEXDocument& document = OpenDocument(stored.path);
    const std::string plain = stored.folder.File("plain.db");
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        comparison.Ours(SecondsToSave(document));
        for (std::size_t i = 0; i < tables.size(); ++i) {
            ::unlink(plain.c_str());
            comparison.Baseline(
                i, SecondsOnFreshHeap([&] { WritePlain(plain, tables[i], stored.features); }));
        }
    }
    comparison.Report(limit);
    RemoveDocument(document);
}

void Save(benchmark::State& state)
{
    MeasureSave(state, Place::Disk, LimitFrom(state, smallestSavedToDisk, mostSave));
}

void SaveInMemory(benchmark::State& state)
{
    MeasureSave(state, Place::Memory, LimitFrom(state, smallestLimited, mostSave));
}

/// A document that is as its file has it, stored under another path, beside a save.
void MeasureCopy(benchmark::State& state, Place place, double limit)
{
    const Stored stored(state.range(0), place);
    VEXDocument* document = &OpenDocument(stored.path);
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        ::unlink(stored.otherPath.c_str());
        comparison.Ours(SecondsOnFreshHeap([&] { SaveDocumentAs(*document, stored.otherPath); }));
        RemoveDocument(*document);
        document = &OpenDocument(stored.otherPath);
        RemoveDocument(*document);
        document = &OpenDocument(stored.path);
        comparison.Baseline(0, SecondsToSave(*document));
    }
    comparison.Report(limit);
    RemoveDocument(*document);
}

void Copy(benchmark::State& state)
{
    MeasureCopy(state, Place::Disk, LimitFrom(state, smallestLimited, mostCopy));
}

void CopyInMemory(benchmark::State& state)
{
    MeasureCopy(state, Place::Memory, mostCopy);
}

constexpr std::int64_t large = 1'000'000;
constexpr std::int64_t tenth = large / 10;
constexpr double mostGrowth = 12.0;

void OpenGrowth(benchmark::State& state)
{
    const Stored whole(large);
    const Stored part(tenth);
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        comparison.Ours(SecondsToOpen(whole));
        comparison.Baseline(0, SecondsToOpen(part));
    }
    comparison.Report(mostGrowth);
}

void SaveGrowth(benchmark::State& state)
{
    const Stored whole(large);
    const Stored part(tenth);
    VEXDocument& wholeDocument = OpenDocument(whole.path);
    VEXDocument& partDocument = OpenDocument(part.path);
    Comparison comparison(state);
    for ([[maybe_unused]] auto round : state) {
        comparison.Ours(SecondsToSave(wholeDocument));
        comparison.Baseline(0, SecondsToSave(partDocument));
    }
    comparison.Report(mostGrowth);
    RemoveDocument(wholeDocument);
    RemoveDocument(partDocument);
}

/// What the allocator has handed out, its own heads and rounding included.
std::size_t BytesInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

void MemoryOfFeature(benchmark::State& state)
{
    const Stored stored(state.range(0));
    for ([[maybe_unused]] auto round : state) {
        const std::size_t before = BytesInUse();
        VEXDocument& document = OpenDocument(stored.path);
        const std::size_t bytes = BytesInUse() - before - BytesOfTextsAndValues(stored.features);
        RemoveDocument(document);
        state.SetIterationTime(1.0);
        ReportBytes(state, static_cast<double>(bytes) / static_cast<double>(state.range(0)), 300.0);
    }
}

}  // namespace

BENCHMARK(Open)->Arg(1'000)->Iterations(101)->UseManualTime();
BENCHMARK(Open)->Arg(10'000)->Iterations(31)->UseManualTime();
BENCHMARK(Open)->Arg(100'000)->Iterations(11)->UseManualTime();
BENCHMARK(Open)->Arg(1'000'000)->Iterations(7)->UseManualTime();
BENCHMARK(Save)->Arg(1'000)->Iterations(101)->UseManualTime();
BENCHMARK(Save)->Arg(10'000)->Iterations(31)->UseManualTime();
BENCHMARK(Save)->Arg(100'000)->Iterations(11)->UseManualTime();
BENCHMARK(Save)->Arg(1'000'000)->Iterations(7)->UseManualTime();
BENCHMARK(SaveInMemory)->Arg(1'000)->Iterations(101)->UseManualTime();
BENCHMARK(SaveInMemory)->Arg(10'000)->Iterations(31)->UseManualTime();
BENCHMARK(OpenGrowth)->Iterations(7)->UseManualTime();
BENCHMARK(SaveGrowth)->Iterations(7)->UseManualTime();
BENCHMARK(Copy)->Arg(1'000)->Iterations(101)->UseManualTime();
BENCHMARK(Copy)->Arg(10'000)->Iterations(31)->UseManualTime();
BENCHMARK(Copy)->Arg(100'000)->Iterations(11)->UseManualTime();
BENCHMARK(Copy)->Arg(1'000'000)->Iterations(7)->UseManualTime();
BENCHMARK(CopyInMemory)->Arg(1'000)->Iterations(101)->UseManualTime();
BENCHMARK(CopyInMemory)->Arg(10'000)->Iterations(31)->UseManualTime();
BENCHMARK(MemoryOfFeature)->Arg(1'000)->Iterations(1)->UseManualTime();
BENCHMARK(MemoryOfFeature)->Arg(10'000)->Iterations(1)->UseManualTime();
BENCHMARK(MemoryOfFeature)->Arg(100'000)->Iterations(1)->UseManualTime();
BENCHMARK(MemoryOfFeature)->Arg(1'000'000)->Iterations(1)->UseManualTime();
