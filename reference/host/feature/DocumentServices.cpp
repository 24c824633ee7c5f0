// SPDX-License-Identifier: Apache-2.0
// VEXDocumentServices: the session's operations as programs call them, with the reasons of refusals
// on standard error.
#include "VEXDocumentServices.h"

#include "host/feature/DocumentSession.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"

namespace vex {

namespace {

/// A document as an argument. A pointer of a program may be stale: it is shown by name only when it
/// is one of the session's.
struct Shown
{
    const Document* document;
};

std::string TextOf(const Shown& shown)
{
    return shown.document == nullptr ? "removed" : Document::TypeName(shown.document->DocType());
}

HRESULT NotOpen()
{
    return Refuse(E_INVALIDARG, "the document is none of the session's. Open it again.");
}

}  // namespace

}  // namespace vex

using vex::DocumentSession;

HRESULT VEXDocumentServices::OpenDocument(const VEXUnicodeString& path, VEXDocument*& document,
                                          unsigned char readOnly)
{
    return vex::Probe<"VEXDocumentServices::OpenDocument">(
        [&] {
            document = nullptr;
            vex::Document* opened = nullptr;
            std::string error;
            const HRESULT result =
                DocumentSession::Instance().Open(path.View(), readOnly != 0, opened, error);
            if (FAILED(result)) {
                return vex::Refuse(result, error);
            }
            document = opened->AsVEXDocument();
            return result;
        },
        vex::In(path), vex::Out(document), vex::In(readOnly));
}

HRESULT VEXDocumentServices::New(const VEXUnicodeString& type, VEXDocument*& document)
{
    return vex::Probe<"VEXDocumentServices::New">(
        [&] {
            document = nullptr;
            vex::Document* made = nullptr;
            std::string error;
            const HRESULT result = DocumentSession::Instance().New(type.View(), made, error);
            if (FAILED(result)) {
                return vex::Refuse(result, error);
            }
            document = made->AsVEXDocument();
            return result;
        },
        vex::In(type), vex::Out(document));
}

HRESULT VEXDocumentServices::Save(VEXDocument& document)
{
    vex::Document* const open = vex::Document::From(&document);
    return vex::Probe<"VEXDocumentServices::Save">(
        [&] {
            if (open == nullptr) {
                return vex::NotOpen();
            }
            std::string error;
            const HRESULT result = DocumentSession::Instance().Save(*open, error);
            return FAILED(result) ? vex::Refuse(result, error) : result;
        },
        vex::In(vex::Shown{open}));
}

HRESULT VEXDocumentServices::SaveAs(VEXDocument& document, const VEXUnicodeString& path,
                                    const VEXUnicodeString& type, unsigned char replaceExisting)
{
    vex::Document* const open = vex::Document::From(&document);
    return vex::Probe<"VEXDocumentServices::SaveAs">(
        [&] {
            if (open == nullptr) {
                return vex::NotOpen();
            }
            std::string error;
            const HRESULT result = DocumentSession::Instance().SaveAs(
                *open, path.View(), type.View(), replaceExisting != 0, error);
            return FAILED(result) ? vex::Refuse(result, error) : result;
        },
        vex::In(vex::Shown{open}), vex::In(path), vex::In(type), vex::In(replaceExisting));
}

HRESULT VEXDocumentServices::Remove(VEXDocument& document, short force)
{
    vex::Document* const open = vex::Document::From(&document);
    return vex::Probe<"VEXDocumentServices::Remove">(
        [&] {
            if (open == nullptr) {
                return vex::NotOpen();
            }
            std::string error;
            const HRESULT result = DocumentSession::Instance().Remove(*open, force != 0, error);
            return FAILED(result) ? vex::Refuse(result, error) : result;
        },
        vex::In(vex::Shown{open}), vex::In(force));
}
