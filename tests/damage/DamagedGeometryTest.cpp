// SPDX-License-Identifier: Apache-2.0
// Geometry that is not what it says, or no shape at all: the document opens, and the shape is
// refused when it is asked for.
#include "DocumentContents.h"
#include "LimitedChild.h"
#include "VEXDocumentServices.h"
#include "host/feature/DocumentSession.h"
#include "host/product/PartGeometry.h"
#include "host/product/StepImport.h"
#include "support/AnalysisDocuments.h"
#include "support/ResealedDocument.h"
#include "support/SqlLiterals.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <random>

namespace {

using namespace damagetest;
using testing::HasSubstr;
using testing::Not;

enum Shown : int { kShape = 0, kNotOpened = 10, kNoShape = 11 };

/// Opens a part document and asks for its shape.
int ShowShape(const std::string& path)
{
    VEXDocument* document = nullptr;
    if (FAILED(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0))) {
        return kNotOpened;
    }
    vex::PartGeometry geometry(*vex::Document::From(document));
    std::string error;
    if (const vex::ShapeModel* const shape = geometry.Shape(error)) {
        for (int dimension = 0; dimension <= 3; ++dimension) {
            for (std::size_t cell = 1; cell <= shape->CellCount(dimension); ++cell) {
                shape->CellKind(dimension, cell);
                shape->CellMeasure(dimension, cell);
                shape->CellCentre(dimension, cell);
                shape->CellBoundary(dimension, cell);
            }
            for (std::size_t domain = 1; domain <= shape->DomainCount(dimension); ++domain) {
                shape->DomainCells(dimension, domain, 3 - dimension);
            }
        }
        return kShape;
    }
    std::fprintf(stderr, "%s\n", error.c_str());
    return kNoShape;
}

class DamagedGeometry : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        _folder = new hlxtest::TemporaryFolder;
        std::string root;
        std::string error;
        ASSERT_TRUE(vex::ImportStep(HLX_SOURCE_DIR "/tests/reference/topology/data/block.step",
                                    _folder->Path(), "part", root, error))
            << error;
        _path = root;
        _sound = hlxtest::ReadFile(_path);
        VEXDocument* document = nullptr;
        ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(_path), document, 0), S_OK);
        vex::Document& part = *vex::Document::From(document);
        std::span<const std::byte> bytes;
        ASSERT_TRUE(part.Geometry(part.Blobs().Numbers().front(), bytes, error)) << error;
        _shape.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        // The kernel is loaded once, not in each child.
        vex::PartGeometry geometry(part);
        ASSERT_NE(geometry.Shape(error), nullptr) << error;
        ASSERT_EQ(VEXDocumentServices::Remove(*document, 1), S_OK);
    }
    static void TearDownTestSuite()
    {
        delete _folder;
        _folder = nullptr;
    }

    static ChildEnd Show(const std::string& sql)
    {
        hlxtest::WriteFile(_path, _sound);
        std::string error;
        EXPECT_TRUE(hlxtest::ChangeAndReseal(_path, sql, error)) << sql << ": " << error;
        return RunLimited([] { return ShowShape(_path); });
    }

    /// With these bytes for the shape, their size and their digest.
    static ChildEnd ShowBytes(const std::string& bytes)
    {
        const std::string blob = hlxtest::BlobLiteral(bytes);
        return Show("UPDATE geometry SET bytes = " + blob + ", digest = digest_of(" + blob +
                    "), size = " + std::to_string(bytes.size()));
    }

    static void ExpectNoShape(const std::string& what, const ChildEnd& end,
                              const std::string& reason)
    {
        EXPECT_EQ(end.code, kNoShape) << what << ' ' << testing::PrintToString(end);
        EXPECT_THAT(end.err, testing::StartsWith("'" + _path + "': ")) << what;
        EXPECT_THAT(end.err, HasSubstr(reason)) << what;
    }

    static inline hlxtest::TemporaryFolder* _folder = nullptr;
    static inline std::string _path;
    static inline std::string _sound;
    static inline std::string _shape;
};

TEST_F(DamagedGeometry, TheSoundOneIsShown)
{
    EXPECT_EQ(ShowBytes(_shape).code, kShape);
}

TEST_F(DamagedGeometry, BlobsThatAreNotWhatTheySay)
{
    const std::string mismatch = "geometry 1: its bytes do not match their digest";
    for (const auto& [sql, reason] : std::initializer_list<std::pair<const char*, std::string>>{
             {"UPDATE geometry SET digest = zeroblob(16)", mismatch},
             {"UPDATE geometry SET size = size + 1", mismatch},
             {"UPDATE geometry SET size = -1", mismatch},
             {"UPDATE geometry SET size = 9223372036854775807", mismatch},
             {"UPDATE geometry SET bytes = x''", mismatch},
             {"UPDATE geometry SET bytes = zeroblob(length(bytes))", mismatch},
             {"UPDATE geometry SET bytes = CAST(bytes AS TEXT)", "geometry 1: its bytes"},
             {"UPDATE geometry SET bytes = 5", "geometry 1: its bytes cannot be read"},
             {"UPDATE geometry SET id = 7", "the document has no geometry of number 1"},
             {"DELETE FROM geometry", "the document has no geometry of number 1"}}) {
        ExpectNoShape(sql, Show(sql), reason);
    }
}

TEST_F(DamagedGeometry, BytesThatAreNoShapeAtAll)
{
    const std::string noShape = "the bytes are not a shape in the binary form of this kernel";
    ExpectNoShape("nothing", ShowBytes(""), noShape);
    ExpectNoShape("zeros", ShowBytes(std::string(1000, '\0')), noShape);
    ExpectNoShape("text", ShowBytes("DBRep_DrawableShape\n\nCASCADE Topology V1"), noShape);
    ExpectNoShape("the beginning", ShowBytes(_shape.substr(0, _shape.find('\n', 1) + 1)), "");
}

TEST_F(DamagedGeometry, AnAnalysisThatSaysItIsAPartHasNoShape)
{
    const std::string path = _folder->File("analysis.VEXPart");
    hlxtest::StoreAnalysisDocument(path, 1);
    std::string error;
    ASSERT_TRUE(hlxtest::ChangeAndReseal(path, "UPDATE document SET kind = 'VEXPart'", error))
        << error;
    const ChildEnd end = RunLimited([&] { return ShowShape(path); });
    EXPECT_EQ(end.code, kNoShape);
    EXPECT_EQ(end.err, "'" + path + "': it holds no part. Name an open .VEXPart document.\n");
}

TEST_F(DamagedGeometry, ShapesCutOffOrChangedNeverCrashOrHang)
{
    std::mt19937 random(8);
    int shown = 0;
    int refused = 0;
    int broken = 0;
    for (int i = 0; i < 400; ++i) {
        std::string changed = _shape;
        const std::size_t place = random() % changed.size();
        if (i % 2 == 0) {
            changed.resize(place);
        } else {
            changed[place] = static_cast<char>(random() & 0xFF);
        }
        const std::string what = (i % 2 == 0 ? "cut at " : "changed at ") + std::to_string(place);
        const ChildEnd end = ShowBytes(changed);
        if (end.code == kShape) {
            ++shown;
            EXPECT_EQ(end.err, "") << what;
            continue;
        }
        ++refused;
        ExpectNoShape(what, end, ": import the part again\n");
        EXPECT_EQ(end.err.find('\n'), end.err.size() - 1) << what << ' ' << end.err;
        EXPECT_THAT(end.err, Not(HasSubstr("()"))) << what;
        // Ended by what it does, or by its own limits; not by those of the child it is a child of.
        EXPECT_THAT(end.err, Not(HasSubstr("signal 9"))) << what;
        broken += end.err.find("breaks down over the bytes (signal ") == std::string::npos ? 0 : 1;
    }
    EXPECT_EQ(shown + refused, 400);
    EXPECT_GT(shown, 50) << "a number that is another one is no damage";
    EXPECT_GT(refused, 200) << "each that is cut off, and more";
    EXPECT_GT(broken, 0) << "or nothing here shows that the host outlives it";
    RecordProperty("shown", shown);
    RecordProperty("refused", refused);
    RecordProperty("broken", broken);
    std::printf("%d shown, %d refused, %d of them as the kernel broke down\n", shown, refused,
                broken);
}

}  // namespace
