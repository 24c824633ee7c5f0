// SPDX-License-Identifier: Apache-2.0
// Makes the documents with geometry that tests use, through the host itself: NAME.VEXPart for each
// shape of TestShapes.h, NAME.VEXProduct with that part, several.VEXProduct with a box, a cylinder
// and a torus, and without_geometry.VEXPart.
#include "TestShapes.h"
#include "host/feature/DocumentSession.h"
#include "host/feature/DocumentStorage.h"
#include "host/product/PartGeometry.h"
#include "host/product/ProductStructure.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

namespace {

using vex::Boxed;
using vex::DocumentHolder;
using vex::DocumentSession;
using vex::DocumentType;

void Store(vex::Document& document, const std::string& path)
{
    std::string error;
    if (!vex::SaveDocument(document, path, error)) {
        throw std::runtime_error(error);
    }
}

void StorePart(const std::string& folder, const std::string& name, std::vector<std::byte> shape)
{
    const DocumentHolder part = DocumentSession::Make(DocumentType::Part);
    vex::RootObject(*part)->SetAlias(name);
    if (!shape.empty()) {
        vex::GiveGeometry(*part, std::move(shape));
    }
    Store(*part, folder + "/" + name + ".VEXPart");
}

void StoreProduct(const std::string& folder, const std::string& name,
                  const std::vector<std::string>& parts)
{
    const DocumentHolder product = DocumentSession::Make(DocumentType::Product);
    vex::Feature& root = *vex::RootObject(*product);
    root.SetAlias(name);
    root.Set("PartNumber", Boxed<std::string>(name));
    for (const std::string& part : parts) {
        vex::Feature& node = product->Tree().Create(root.Kind(), &root);
        node.SetAlias(part + ".1");
        node.Set("PartNumber", Boxed<std::string>(part));
        node.Set("Document",
                 Boxed<vex::DocumentLink>(vex::DocumentLink{folder + "/" + part + ".VEXPart"}));
    }
    Store(*product, folder + "/" + name + ".VEXProduct");
}

void StoreAll(const std::string& folder)
{
    std::filesystem::create_directories(folder);
    for (TestShape& shape : TestShapes()) {
        StorePart(folder, shape.name, std::move(shape.bytes));
        StoreProduct(folder, shape.name, {shape.name});
    }
    StorePart(folder, "without_geometry", {});
    StoreProduct(folder, "without_geometry", {"without_geometry"});
    StoreProduct(folder, "several", {"box", "cylinder", "torus"});
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: make_test_documents FOLDER\n", stderr);
        return 2;
    }
    try {
        StoreAll(std::filesystem::absolute(argv[1]).string());
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_test_documents: %s\n", failure.what());
        return 1;
    }
}
