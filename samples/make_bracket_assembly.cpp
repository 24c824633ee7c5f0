// SPDX-License-Identifier: Apache-2.0
// Makes the STEP samples: the bracket assembly and the small files that tests import.
#include "BracketShapes.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <GProp_GProps.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepData_StepModel.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_WorkSession.hxx>

#include <cmath>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

// ---- documents ----

struct Document
{
    Handle(TDocStd_Document) document = new TDocStd_Document("BinXCAF");
    Handle(XCAFDoc_ShapeTool) shapes;

    Document()
    {
        XCAFDoc_DocumentTool::Set(document->Main(), false);
        shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    }

    TDF_Label Assembly(const char* name)
    {
        const TDF_Label label = shapes->NewShape();
        Name(label, name);
        return label;
    }

    TDF_Label Part(const char* name, const TopoDS_Shape& shape)
    {
        GProp_GProps volume;
        BRepGProp::VolumeProperties(shape, volume);
        if (!BRepCheck_Analyzer(shape).IsValid() || !(volume.Mass() > 0)) {
            throw std::runtime_error(std::string("the shape of ") + name + " is not valid");
        }
        const TDF_Label label = shapes->AddShape(shape, false);
        Name(label, name);
        return label;
    }

    void Place(const TDF_Label& parent, const TDF_Label& child, const char* name,
               const gp_Trsf& place)
    {
        Name(shapes->AddComponent(parent, child, TopLoc_Location(place)), name);
    }

    static void Name(const TDF_Label& label, const char* name)
    {
        TDataStd_Name::Set(label, TCollection_ExtendedString(name, true));
    }
};

gp_Trsf At(double x, double y, double z)
{
    gp_Trsf place;
    place.SetTranslation(gp_Vec(x, y, z));
    return place;
}

gp_Trsf QuarterTurnAt(double x, double y, double z)
{
    gp_Trsf place;
    place.SetRotation(gp_Ax1(gp_Pnt(0, 0, 0), gp_Dir(0, 0, 1)), M_PI / 2);
    place.SetTranslationPart(gp_Vec(x, y, z));
    return place;
}

void BracketAssembly(Document& document)
{
    const TDF_Label assembly = document.Assembly("BracketAssembly");
    const TDF_Label bracket = document.Part("Bracket", Bracket());
    const TDF_Label plate = document.Part("Plate", Plate());
    const TDF_Label bolt = document.Part("Bolt", Bolt());
    document.Place(assembly, bracket, "Bracket.1", At(40, 35, 0));
    document.Place(assembly, plate, "Plate.1", At(0, 0, -12));
    document.Place(assembly, bolt, "Bolt.1", At(140, 55, 6));
    document.Place(assembly, bolt, "Bolt.2", At(140, 95, 6));
}

void Block(Document& document)
{
    document.Part("Block", BRepPrimAPI_MakeBox(25.4, 50.8, 76.2).Shape());
}

// Two levels: the pair of pins is used twice, once turned; a pin is used in it twice, and once
// beside it.
void NestedAssembly(Document& document)
{
    const TDF_Label top = document.Assembly("Träger");
    const TDF_Label pair = document.Assembly("PinPair");
    const TDF_Label pin = document.Part("Pin", Cylinder({0, 0, 0}, gp_Dir(0, 0, 1), 2, 10));
    document.Place(pair, pin, "Pin.1", At(0, 0, 0));
    document.Place(pair, pin, "Pin.2", At(20, 0, 0));
    document.Place(top, pair, "PinPair.1", At(0, 0, 5));
    document.Place(top, pair, "PinPair.2", QuarterTurnAt(100, 0, 0));
    document.Place(top, pin, "Pin.3", At(0, 50, 0));
}

// Two parts beside each other, in no assembly.
void LooseParts(Document& document)
{
    Block(document);
    document.Part("Pin", Cylinder({100, 0, 0}, gp_Dir(0, 0, 1), 2, 10));
}

// A sheet: surfaces without a solid.
void Sheet(Document& document)
{
    const TDF_Label label = document.shapes->AddShape(
        TopExp_Explorer(BRepPrimAPI_MakeBox(10, 20, 30).Shape(), TopAbs_SHELL).Current(), false);
    Document::Name(label, "Sheet");
}

// ---- writing ----

Handle(TCollection_HAsciiString) Text(const char* text)
{
    return new TCollection_HAsciiString(text);
}

// The header is fixed, so that the same program gives the same bytes on any day.
void FixHeader(const Handle(StepData_StepModel) & model, const char* name)
{
    APIHeaderSection_MakeHeader header(model);
    header.SetName(Text(name));
    header.SetTimeStamp(Text("2024-01-01T00:00:00"));
    header.SetAuthorValue(1, Text("HLXTestUtilities"));
    header.SetOrganizationValue(1, Text("HLXTestUtilities"));
    header.SetOriginatingSystem(Text("make_bracket_assembly"));
    header.SetAuthorisation(Text(""));
}

void Write(const Document& document, const char* unit, const char* path)
{
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("write.step.schema", "AP214IS");
    Interface_Static::SetCVal("write.step.unit", unit);
    STEPCAFControl_Writer writer;
    writer.SetNameMode(true);
    document.shapes->UpdateAssemblies();
    if (!writer.Transfer(document.document, STEPControl_AsIs)) {
        throw std::runtime_error("the document cannot be translated");
    }
    const std::string whole = path;
    FixHeader(writer.ChangeWriter().Model(), whole.substr(whole.find_last_of('/') + 1).c_str());
    if (writer.Write(path) != IFSelect_RetDone) {
        throw std::runtime_error(whole + " cannot be written");
    }
}

void Make(const std::string& what, const char* path)
{
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    Document document;
    if (what == "bracket-assembly") {
        BracketAssembly(document);
    } else if (what == "block" || what == "block-in-inches") {
        Block(document);
    } else if (what == "nested") {
        NestedAssembly(document);
    } else if (what == "loose-parts") {
        LooseParts(document);
    } else if (what == "sheet") {
        Sheet(document);
    } else {
        throw std::runtime_error("nothing is known as '" + what + "'");
    }
    Write(document, what == "block-in-inches" ? "INCH" : "MM", path);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: make_bracket_assembly "
                     "bracket-assembly|block|block-in-inches|nested|loose-parts|sheet FILE\n";
        return 2;
    }
    try {
        Make(argv[1], argv[2]);
        return 0;
    } catch (const Standard_Failure& failure) {
        std::cerr << "make_bracket_assembly: " << failure.GetMessageString() << '\n';
    } catch (const std::exception& failure) {
        std::cerr << "make_bracket_assembly: " << failure.what() << '\n';
    }
    return 1;
}
