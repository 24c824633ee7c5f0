// SPDX-License-Identifier: Apache-2.0
// Makes documents of what the geometry kernel reads from a STEP file, those that are linked to
// before those that link.
#include "host/product/StepImport.h"

#include "host/component/ComponentTypes.h"
#include "host/feature/DocumentPath.h"
#include "host/feature/DocumentSession.h"
#include "host/feature/DocumentStorage.h"
#include "host/product/DocumentNames.h"
#include "host/product/GeometryKernelLoader.h"
#include "host/product/PartGeometry.h"
#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"
#include "host/system/Texts.h"

#include <filesystem>

namespace vex {

namespace {

using system::Quoted;

/// A name from the file, made fit to be stored.
std::string StorableName(const std::string& name)
{
    return text::IsValid(name) ? name : system::Printable(name);
}

/// Nothing is stored there: what is there is not replaced, and not removed after a failure.
bool IsFree(const std::string& path, std::string& error)
{
    std::error_code code;
    const auto there = std::filesystem::symlink_status(path, code);
    if (DocumentSession::Instance().Find(path) == nullptr && !std::filesystem::exists(there)) {
        return true;
    }
    error = Quoted(path) +
            ": there is such a document already. Remove it, or import into another folder.";
    return false;
}

class StepImport
{
public:
    StepImport(ImportedAssembly assembly, const ImportProgress& progress)
        : _assembly(std::move(assembly)), _progress(progress)
    {}
    ~StepImport();

    /// Gives every product its document's path. False when one of them exists.
    bool NameDocuments(const std::string& folder, std::string_view baseName, std::string& error);
    bool Store(std::string& error);
    const std::string& RootPath() const { return _productPaths.front(); }

private:
    bool IsPart(const ImportedProduct& product) const { return product.partIndex.has_value(); }
    DocumentType TypeOf(const ImportedProduct& product) const
    {
        return IsPart(product) ? DocumentType::Part : DocumentType::Product;
    }
    bool StorePart(std::size_t part, std::string& error);
    bool StoreProduct(std::size_t product, std::string& error);
    bool StoreDocument(Document& document, const std::string& path, std::string& error);

    ImportedAssembly _assembly;
    const ImportProgress& _progress;
    std::vector<std::string> _productPaths;  ///< by product
    std::vector<std::string> _partPaths;     ///< by part; empty for a part that no product uses
    std::size_t _total = 0;
    std::vector<std::string> _stored;
    bool _done = false;
};

/// An import that ended early leaves no documents.
StepImport::~StepImport()
{
    if (!_done) {
        for (const std::string& path : _stored) {
            std::error_code ignored;
            std::filesystem::remove(path, ignored);
        }
    }
}

bool StepImport::NameDocuments(const std::string& folder, std::string_view baseName,
                               std::string& error)
{
    DocumentNames names;
    _partPaths.resize(_assembly.parts.size());
    for (const ImportedProduct& product : _assembly.products) {
        const bool isRoot = _productPaths.empty();
        std::string* const ofPart = IsPart(product) ? &_partPaths[*product.partIndex] : nullptr;
        if (ofPart != nullptr && !ofPart->empty()) {
            _productPaths.push_back(*ofPart);
            continue;
        }
        const std::string_view own =
            ofPart == nullptr ? product.name : _assembly.parts[*product.partIndex].name;
        const std::string file = names.Give(isRoot && !baseName.empty() ? baseName : own,
                                            Document::TypeName(TypeOf(product)));
        const std::string path =
            AbsoluteDocumentPath((std::filesystem::path(folder) / file).string(), error);
        if (path.empty()) {
            return false;
        }
        if (!IsFree(path, error)) {
            return false;
        }
        _productPaths.push_back(path);
        if (ofPart != nullptr) {
            *ofPart = path;
        }
        ++_total;
    }
    return true;
}

bool StepImport::StoreDocument(Document& document, const std::string& path, std::string& error)
{
    if (_progress) {
        _progress(_stored.size(), _total, std::filesystem::path(path).filename().string());
    }
    if (!IsFree(path, error)) {
        return false;
    }
    // Before it is stored: a save that fails at its very end leaves a file.
    _stored.push_back(path);
    return SaveDocument(document, path, error);
}

bool StepImport::StorePart(std::size_t part, std::string& error)
{
    ImportedPart& imported = _assembly.parts[part];
    const DocumentHolder document = DocumentSession::Make(DocumentType::Part);
    RootObject(*document)->SetAlias(StorableName(imported.name));
    GiveGeometry(*document, std::move(imported.shape));
    return StoreDocument(*document, _partPaths[part], error);
}

bool StepImport::StoreProduct(std::size_t product, std::string& error)
{
    const ImportedProduct& imported = _assembly.products[product];
    const DocumentHolder document = DocumentSession::Make(DocumentType::Product);
    Feature& root = *RootObject(*document);
    const std::string name = StorableName(imported.name);
    root.SetAlias(name);
    root.Set("PartNumber", Boxed<std::string>(name));
    for (const ImportedInstance& instance : imported.children) {
        Feature& node = document->Tree().Create(root.Kind(), &root);
        const ImportedProduct& child = _assembly.products[instance.product];
        const std::string used = StorableName(child.name);
        node.SetAlias(instance.name.empty() ? used : StorableName(instance.name));
        node.Set("PartNumber", Boxed<std::string>(used));
        node.Set("Document",
                 Boxed<DocumentLink>(DocumentLink{_productPaths[instance.product], TypeOf(child)}));
        node.Set("Placement", Boxed<DoubleList>(DoubleList(instance.placement.begin(),
                                                           instance.placement.end())));
    }
    return StoreDocument(*document, _productPaths[product], error);
}

bool StepImport::Store(std::string& error)
{
    for (std::size_t part = 0; part < _partPaths.size(); ++part) {
        if (!_partPaths[part].empty() && !StorePart(part, error)) {
            return false;
        }
    }
    // Products stand parents first: backwards, what is linked to is stored before what links to it,
    // the root last.
    for (std::size_t product = _assembly.products.size(); product-- > 0;) {
        if (!IsPart(_assembly.products[product]) && !StoreProduct(product, error)) {
            return false;
        }
    }
    _done = true;
    return true;
}

}  // namespace

bool ImportStep(const std::string& stepPath, const std::string& folder, std::string_view baseName,
                std::string& rootDocumentPath, std::string& error, const ImportProgress& progress)
{
    rootDocumentPath.clear();
    if (!LateTypes::Instance().AreLoaded(error)) {
        return false;
    }
    std::error_code code;
    if (!std::filesystem::is_directory(folder, code)) {
        error = Quoted(folder) + ": there is no such folder. Make it first.";
        return false;
    }
    GeometryKernel* const kernel = LoadGeometryKernel(ComponentTypes::SearchPath(), error);
    ImportedAssembly assembly;
    if (kernel == nullptr || !kernel->ReadStep(stepPath, assembly, error)) {
        return false;
    }
    StepImport import(std::move(assembly), progress);
    if (!import.NameDocuments(folder, baseName, error) || !import.Store(error)) {
        return false;
    }
    rootDocumentPath = import.RootPath();
    return true;
}

}  // namespace vex
