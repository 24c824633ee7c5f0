// SPDX-License-Identifier: Apache-2.0
// Writes traces.
#include "host/system/TraceFile.h"

#include "host/system/MessageTexts.h"
#include "host/system/OutputFile.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace vex::probe {

namespace {

/// JSON text of valid UTF-8: quotes, backslashes and controls are escaped.
void AppendJson(std::string& out, std::string_view text)
{
    out += '"';
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20) {
            out += fmt::format("\\u{:04x}", byte);
        } else {
            out += c;
        }
    }
    out += '"';
}

std::string Microseconds(std::int64_t nanoseconds)
{
    return fmt::format("{}.{:03}", nanoseconds / 1000, nanoseconds % 1000);
}

}  // namespace

std::string TraceLine(const Call& call)
{
    std::string line = call.name + '(';
    const char* separator = "";
    for (const std::string& argument : call.arguments) {
        line += separator + argument;
        separator = ", ";
    }
    line += ')';
    if (!call.result.empty()) {
        line += " -> " + call.result;
    }
    return line + ", " + Microseconds(call.nanoseconds) + (call.broken ? " us, broken" : " us");
}

std::string TraceEvent(const Call& call, std::int64_t start)
{
    std::string event = "{\"name\":";
    AppendJson(event, call.name);
    event += R"(,"ph":"X","pid":1,"tid":1,"ts":)" + Microseconds(start);
    event += ",\"dur\":" + Microseconds(call.nanoseconds) + ",\"args\":{\"arguments\":[";
    const char* separator = "";
    for (const std::string& argument : call.arguments) {
        event += separator;
        AppendJson(event, argument);
        separator = ",";
    }
    event += "],\"result\":";
    AppendJson(event, call.result);
    return event + (call.broken ? ",\"broken\":true}}" : ",\"broken\":false}}");
}

std::unique_ptr<TraceFile> TraceFile::Open(const std::string& path, std::string& error)
{
    system::Descriptor file = system::OpenOutputFile(path);
    if (!file.IsOpen()) {
        error = fmt::format("{}: the trace cannot be written: {}. Name a file that can be made.",
                            system::Quoted(path), system::SystemReason(errno));
        return nullptr;
    }
    return std::unique_ptr<TraceFile>(new TraceFile(std::move(file), path));
}

TraceFile::TraceFile(system::Descriptor file, std::string path)
    : _file(std::move(file)),
      _path(std::move(path)),
      _json(_path.ends_with(".json")),
      _owner(getpid())
{
    if (_json) {
        Append("[\n");
    }
}

TraceFile::~TraceFile()
{
    if (_json && getpid() == _owner) {
        Append("\n]\n");
    }
}

void TraceFile::Write(const Call& call, std::int64_t start)
{
    if (_json) {
        Append((_first ? "" : ",\n") + TraceEvent(call, start));
        _first = false;
    } else {
        Append(TraceLine(call) + '\n');
    }
}

void TraceFile::Append(const std::string& text)
{
    std::size_t written = 0;
    while (!_failed && written < text.size()) {
        const ssize_t count = write(_file.Number(), text.data() + written, text.size() - written);
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            if (count == 0) errno = EIO;  // a file that takes nothing and says no reason
            _failed = true;
            std::fprintf(stderr, "VEX_TRACE: %s: %s. The trace ends here.\n",
                         system::Quoted(_path).c_str(), system::SystemReason(errno).c_str());
        }
    }
}

}  // namespace vex::probe
