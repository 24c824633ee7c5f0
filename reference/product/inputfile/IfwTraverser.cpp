// SPDX-License-Identifier: Apache-2.0
// From the call to the file. Until the text is complete nothing is written.
#include "product/inputfile/IfwTraverser.h"

#include "HLXIZPKWBGeneralSettingAtt.h"
#include "VEXAnalysisModel.h"
#include "host/component/ComponentTypes.h"
#include "host/feature/Refusal.h"
#include "host/system/AtomicFile.h"
#include "host/system/FileOperations.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"
#include "product/inputfile/InputFile.h"

#include <fmt/format.h>

#include <exception>
#include <new>

namespace hlx {

namespace {

using vex::Feature;

HRESULT Refuse(HRESULT result, std::string_view reason)
{
    return vex::Refuse(result, fmt::format("HLXIIfwTraverser::WriteInputFile: {}", reason));
}

HRESULT CollectCases(const VEXListValVEXBaseUnknown_var& list, std::vector<Feature*>& cases)
{
    for (int i = 1; i <= list.Size(); ++i) {
        const VEXBaseUnknown_var entry = list[i];
        const auto refuse = [i](HRESULT result, std::string_view reason) {
            return Refuse(result,
                          fmt::format("entry {} of the list {}; nothing was written", i, reason));
        };
        if (entry == nullptr) {
            return refuse(E_INVALIDARG, "is empty: give analysis cases only");
        }
        auto* const feature = dynamic_cast<Feature*>(entry->GetImpl());
        if (feature == nullptr || !vex::Offers<VEXISamAnalysisCase>(*feature)) {
            return refuse(E_INVALIDARG, "is no analysis case: give analysis cases only");
        }
        if (feature->Tree() == nullptr) {
            return refuse(E_FAIL,
                          "is an analysis case that was deleted or whose document was "
                          "removed: open the document again and get the case from it");
        }
        if (feature->Parent() == nullptr) {
            return refuse(E_INVALIDARG, "is an analysis case that stands in no analysis model");
        }
        if (!cases.empty() && feature->Parent() != cases.front()->Parent()) {
            return refuse(E_INVALIDARG,
                          "is a case of another analysis model than those before it: "
                          "write an input file for each model");
        }
        cases.push_back(feature);
    }
    return cases.empty()
               ? Refuse(E_INVALIDARG, "the list of analysis cases is empty; nothing was written")
               : S_OK;
}

HRESULT AskForm(InputFileForm& form)
{
    void* object = nullptr;
    const HRESULT found = GetZPKWBGeneralSettingCtrl(IID_HLXIZPKWBGeneralSettingAtt, &object);
    const auto settings = VEXAdopt(static_cast<HLXIZPKWBGeneralSettingAtt*>(object));
    unsigned char flag = 0;
    if (FAILED(found) || settings == nullptr || FAILED(settings->GetWriteFlatInputFileFlag(flag))) {
        return Refuse(E_FAIL,
                      "the general settings do not say whether input files are written "
                      "flat; correct or remove the settings file. Nothing was written");
    }
    form = flag != 0 ? InputFileForm::Flat : InputFileForm::Structured;
    return S_OK;
}

HRESULT ReplaceFile(std::string_view path, std::string_view text)
{
    vex::system::AtomicFile file;
    std::string error;
    if (!file.Begin(path, error)) {
        return Refuse(E_FAIL, error);
    }
    const int written =
        vex::system::CurrentFileOperations().write(file.File(), text.data(), text.size(), 0);
    if (written < 0) {
        return Refuse(E_FAIL,
                      vex::system::AtomicFile::Failure(path, "writing the new file",
                                                       vex::system::SystemReason(-written)));
    }
    return file.Commit(error) ? S_OK : Refuse(E_FAIL, error);
}

HRESULT Write(std::string_view path, const VEXListValVEXBaseUnknown_var& list)
{
    std::vector<Feature*> cases;
    std::string error;
    std::string text;
    InputFileForm form{};
    if (const HRESULT result = CollectCases(list, cases); FAILED(result)) {
        return result;
    }
    if (!vex::system::CheckPath(path, error)) {
        return Refuse(E_INVALIDARG, error);
    }
    if (const HRESULT result = AskForm(form); FAILED(result)) {
        return result;
    }
    if (!MakeInputFile(cases, form, text, error)) {
        return Refuse(E_FAIL, error + (error.ends_with('.') ? "" : ".") + " Nothing was written");
    }
    return ReplaceFile(path, text);
}

/// What is thrown is told as any refusal is. That takes memory: the want of it is for the caller.
HRESULT WriteOrTell(std::string_view path, const VEXListValVEXBaseUnknown_var& list)
{
    try {
        return Write(path, list);
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& exception) {
        return Refuse(E_FAIL, exception.what());
    }
}

}  // namespace

IfwTraverser::IfwTraverser() : Component(vex::ComponentTypes::Instance().Require("HLXIfwTraverser"))
{}

HRESULT IfwTraverser::WriteInputFile(const VEXUnicodeString& path,
                                     const VEXListValVEXBaseUnknown_var& cases) const
{
    try {
        return WriteOrTell(path.View(), cases);
    } catch (const std::bad_alloc&) {
        return vex::Refuse(E_OUTOFMEMORY,
                           "HLXIIfwTraverser::WriteInputFile: there is not enough memory for the "
                           "text; nothing was written");
    }
}

}  // namespace hlx
