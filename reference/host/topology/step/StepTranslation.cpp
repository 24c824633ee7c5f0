// SPDX-License-Identifier: Apache-2.0
// Has the kernel translate a STEP file.
#include "host/topology/step/StepTranslation.h"

#include "host/topology/step/ProductStructure.h"

#include <Interface_CheckIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <Standard_Failure.hxx>
#include <TDocStd_Document.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <filesystem>
#include <set>
#include <stdexcept>

namespace vex::topology {
namespace {

// What the kernel says as a piece of one line: without the addresses in it and a long tail.
std::string OneLine(std::string text)
{
    if (const std::size_t address = text.find("0x"); address != std::string::npos) {
        // "EXCEPTION in ...", then the object's address, then the reason
        text.erase(0, std::min(text.find(' ', address), text.size()));
    }
    text.erase(0, std::min(text.find_first_not_of(" :*\n"), text.size()));
    text.resize(std::min<std::size_t>(text.find_last_not_of(" :*\n") + 1, 200));
    return text;
}

std::string InBrackets(const std::string& complaint)
{
    return complaint.empty() ? "" : " (" + complaint + ")";
}

// Keeps the kernel's first complaint, in place of printing it.
class FirstComplaint : public Message_Printer
{
    DEFINE_STANDARD_RTTI_INLINE(FirstComplaint, Message_Printer)

public:
    const std::string& Text() const { return text_; }

protected:
    void send(const TCollection_AsciiString& text, const Message_Gravity gravity) const override
    {
        if (gravity >= Message_Fail && text_.empty()) text_ = OneLine(text.ToCString());
    }

private:
    mutable std::string text_;
};

Handle(TDocStd_Document) NewDocument()
{
    // Made without an application: that would look for resource files on the machine.
    Handle(TDocStd_Document) document = new TDocStd_Document("BinXCAF");
    XCAFDoc_DocumentTool::Set(document->Main(), false);
    return document;
}

// Entities the kernel could not take, each once.
class Faults
{
public:
    explicit Faults(const Handle(Interface_InterfaceModel) & model) : model_(model) {}

    // Those found while the text was read.
    void AddRead()
    {
        for (int number = 1; number <= model_->NbEntities(); ++number) {
            Add(number, model_->Check(number, true));
        }
    }

    // Those found while shapes were made.
    void AddTranslated(const Handle(Transfer_TransientProcess) & process)
    {
        Interface_CheckIterator checks = process->CheckList(true);
        for (checks.Start(); checks.More(); checks.Next()) {
            Add(checks.Number(), checks.Value());
        }
    }

    // The first one and what is wrong with it; empty when there are none.
    const std::string& First() const { return first_; }

    std::string Warning() const
    {
        const std::string count =
            labels_.size() == 1 ? "entity" : std::to_string(labels_.size()) + " entities from";
        return "left out " + count + " " + first_ +
               ", which could not be translated: compare the parts with the source, or export it "
               "again";
    }

private:
    void Add(int number, const Handle(Interface_Check) & check)
    {
        if (number < 1 || number > model_->NbEntities() || !check->HasFailed()) return;
        const std::string label = model_->StringLabel(model_->Value(number))->ToCString();
        if (labels_.insert(label).second && first_.empty()) {
            first_ = label + InBrackets(OneLine(check->CFail(1)));
        }
    }

    Handle(Interface_InterfaceModel) model_;
    std::set<std::string> labels_;
    std::string first_;
};

ImportedAssembly Translate(const std::string& path, const ChildReport& report,
                           const FirstComplaint& complaint)
{
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    STEPCAFControl_Reader reader;
    reader.SetNameMode(true);
    reader.SetColorMode(false);
    reader.SetLayerMode(false);
    reader.SetPropsMode(false);
    reader.SetGDTMode(false);
    reader.SetMatMode(false);
    reader.SetViewMode(false);
    report.phase("reading its text");
    if (reader.ReadFile(path.c_str()) != IFSelect_RetDone) {
        throw std::runtime_error("its text cannot be read" + InBrackets(complaint.Text()) +
                                 ": correct that place or export it again");
    }
    Faults faults(reader.Reader().WS()->Model());
    faults.AddRead();
    const std::string first = faults.First();
    report.phase("translating its shapes" + (first.empty() ? "" : ", with errors from " + first));
    Handle(TDocStd_Document) document = NewDocument();
    if (!reader.Transfer(document)) {
        throw std::runtime_error("its data section holds no shape" + InBrackets(complaint.Text()) +
                                 ": export it again with solids or surfaces");
    }
    faults.AddTranslated(reader.Reader().WS()->TransferReader()->TransientProcess());
    if (!faults.First().empty()) report.warning(faults.Warning());
    report.phase("collecting its parts");
    return CollectProducts(XCAFDoc_DocumentTool::ShapeTool(document->Main()),
                           std::filesystem::path(path).stem().string());
}

}  // namespace

ImportedAssembly TranslateStep(const std::string& path, const ChildReport& report)
{
    const Handle(Message_Messenger)& messenger = Message::DefaultMessenger();
    messenger->RemovePrinters(STANDARD_TYPE(Message_Printer));
    Handle(FirstComplaint) complaint = new FirstComplaint;
    messenger->AddPrinter(complaint);
    try {
        return Translate(path, report, *complaint);
    } catch (const Standard_Failure& failure) {
        throw std::runtime_error(std::string("the geometry kernel refuses it") +
                                 InBrackets(OneLine(failure.GetMessageString())) +
                                 ": export it again");
    }
}

}  // namespace vex::topology
