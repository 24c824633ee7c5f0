// SPDX-License-Identifier: Apache-2.0
// A shape's bytes in a document: the kernel's binary form, without triangulation.
#include "host/topology/ShapeBytes.h"

#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BinTools.hxx>
#include <TopoDS_Vertex.hxx>

#include <cstring>
#include <istream>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>

namespace vex::topology {
namespace {

// Reads bytes in place; seekable, as the kernel goes back over the signature.
class BytesBuffer : public std::streambuf
{
public:
    explicit BytesBuffer(std::span<const std::byte> bytes)
    {
        // A get area is of non-const characters by its type; nothing writes to it.
        char* begin = const_cast<char*>(reinterpret_cast<const char*>(bytes.data()));
        setg(begin, begin, begin + bytes.size());
    }

protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir way,
                     std::ios_base::openmode which) override
    {
        const off_type base = way == std::ios_base::beg   ? 0
                              : way == std::ios_base::cur ? gptr() - eback()
                                                          : egptr() - eback();
        return seekpos(base + offset, which);
    }

    pos_type seekpos(pos_type position, std::ios_base::openmode) override
    {
        const off_type offset = position;
        if (offset < 0 || offset > egptr() - eback()) return pos_type(off_type(-1));
        setg(eback(), eback() + offset, egptr());
        return position;
    }
};

std::string WriteText(const TopoDS_Shape& shape)
{
    std::ostringstream stream(std::ios::binary);
    BinTools::Write(shape, stream, false, false, BinTools_FormatVersion_CURRENT);
    if (!stream) {
        throw std::runtime_error("the shape cannot be written");
    }
    return std::move(stream).str();
}

// What every shape in this form begins with: an empty line and one that names form and version. The
// kernel must not see another beginning: it says so on standard output.
const std::string& Signature()
{
    static const std::string signature = [] {
        const std::string text = WriteText(BRepBuilderAPI_MakeVertex(gp_Pnt()).Vertex());
        return text.substr(0, text.find('\n', 1) + 1);
    }();
    return signature;
}

}  // namespace

std::vector<std::byte> WriteShape(const TopoDS_Shape& shape)
{
    const std::string text = WriteText(shape);
    std::vector<std::byte> bytes(text.size());
    std::memcpy(bytes.data(), text.data(), text.size());
    return bytes;
}

TopoDS_Shape ReadShape(std::span<const std::byte> bytes)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (!text.starts_with(Signature())) {
        throw std::runtime_error("the bytes are not a shape in the binary form of this kernel");
    }
    BytesBuffer buffer(bytes);
    std::istream stream(&buffer);
    stream.imbue(std::locale::classic());
    TopoDS_Shape shape;
    BinTools::Read(shape, stream);
    if (shape.IsNull() || stream.fail()) {
        throw std::runtime_error("the bytes end before the shape does, or hold none");
    }
    return shape;
}

}  // namespace vex::topology
