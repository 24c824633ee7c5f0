// SPDX-License-Identifier: Apache-2.0
// The component library's kernel object and its entry points.
#include "host/product/GeometryKernel.h"
#include "host/product/KernelModule.h"
#include "host/system/MessageTexts.h"
#include "host/topology/BRepShapeModel.h"
#include "host/topology/ChildProcess.h"
#include "host/topology/ShapeBytes.h"
#include "host/topology/step/StepReader.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <Standard_Failure.hxx>

#include <dlfcn.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <mutex>
#include <stdexcept>
#include <string_view>
#include <system_error>

extern "C" {
__attribute__((visibility("default"))) vex::GeometryKernel* VEXGeometryKernelInstance();
__attribute__((visibility("default"))) unsigned VEXGeometryKernelVersion();
}

namespace vex::topology {
namespace {

// The folder this library was opened from: STEP reading is a library of its own beside it.
std::string OwnDirectory()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&VEXGeometryKernelVersion), &info) == 0) return {};
    return std::filesystem::path(info.dli_fname).parent_path().string();
}

// What the kernel says in its first line: the others hold addresses. Some failures say nothing, and
// are told by what they are.
std::string Said(const Standard_Failure& failure)
{
    const std::string_view message = failure.GetMessageString();
    const std::string_view line = message.substr(0, message.find_first_of("\r\n"));
    return system::Printable(line.empty() ? failure.DynamicType()->Name() : line);
}

std::unique_ptr<BRepShapeModel> ModelOf(std::span<const std::byte> bytes)
{
    try {
        return std::make_unique<BRepShapeModel>(ReadShape(bytes));
    } catch (const Standard_Failure& failure) {
        throw std::runtime_error("the geometry kernel refuses the bytes (" + Said(failure) + ")");
    }
}

// What the kernel may take for that many bytes. A sound shape takes some microseconds a byte and
// some dozen bytes of memory for each; the clock allows for a busy machine.
ChildLimits LimitsFor(std::size_t bytes)
{
    constexpr std::size_t bytesASecond = 50'000;
    const int seconds = 5 + static_cast<int>(std::min<std::size_t>(bytes / bytesASecond, 3600));
    return {seconds * 12, seconds, (std::size_t{1} << 30U) + bytes * 100};
}

// Bytes that are no shape have crashed the kernel, and made it run for ever, when it read them or
// when it was asked for what it had read: they meet it in a child process first. Throws what the
// kernel has against them.
void TryOut(std::span<const std::byte> bytes)
{
    const ChildOutcome outcome = RunInChild(
        [&](const ChildReport&) {
            ModelOf(bytes)->AskEverything();
            return std::vector<std::byte>();
        },
        LimitsFor(bytes.size()));
    switch (outcome.end) {
        case ChildOutcome::End::Done:
            return;
        case ChildOutcome::End::Failed:
            throw std::runtime_error(outcome.text);
        case ChildOutcome::End::Broken:
            throw std::runtime_error("the geometry kernel breaks down over the bytes (" +
                                     outcome.text + ")");
        case ChildOutcome::End::TimedOut:
            throw std::runtime_error("the geometry kernel does not get done with the bytes");
        case ChildOutcome::End::OutOfMemory:
            throw std::runtime_error(
                "the geometry kernel takes more memory for the bytes than it may have");
    }
}

class TopologyKernel : public GeometryKernel
{
public:
    // The kernel prints to standard output unless told otherwise, and the host never does.
    TopologyKernel()
    {
        Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    }

    bool ReadStep(const std::string& path, ImportedAssembly& out, std::string& error) override
    {
        try {
            const StepReaderFunction read = Reader(error);
            return read != nullptr && read(path, out, error);
        } catch (const std::exception& failure) {
            error = system::Quoted(path) + ": cannot be read (" + failure.what() +
                    "): free some memory and try again";
            return false;
        }
    }

    std::unique_ptr<ShapeModel> LoadShape(std::span<const std::byte> bytes,
                                          std::string& error) override
    {
        try {
            TryOut(bytes);
            return ModelOf(bytes);
        } catch (const std::system_error& failure) {
            error = std::string(failure.what()) + ": free some memory and try again";
        } catch (const std::exception& failure) {
            error = std::string(failure.what()) + ": import the part again";
        }
        return nullptr;
    }

private:
    StepReaderFunction Reader(std::string& error)
    {
        const std::scoped_lock lock(guard_);
        if (reader_ == nullptr) {
            reader_ = reinterpret_cast<StepReaderFunction>(
                OpenKernelModule({OwnDirectory()}, "libVEXStepReader.so", "VEXStepReaderVersion",
                                 "VEXStepReaderRead", error));
        }
        return reader_;
    }

    std::mutex guard_;
    StepReaderFunction reader_ = nullptr;
};

}  // namespace
}  // namespace vex::topology

extern "C" vex::GeometryKernel* VEXGeometryKernelInstance()
{
    static vex::topology::TopologyKernel kernel;
    return &kernel;
}

extern "C" unsigned VEXGeometryKernelVersion()
{
    return vex::kGeometryKernelVersion;
}
