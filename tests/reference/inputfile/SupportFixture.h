// SPDX-License-Identifier: Apache-2.0
// Steps with conditions that are applied to regions of parts with geometry, and the decks that are
// expected of them.
#pragma once

#include "host/feature/FeatureSearch.h"
#include "host/product/PartGeometry.h"
#include "product/steps/StepBuilder.h"
#include "reference/inputfile/StructureFixture.h"
#include "support/GeometrySpecimens.h"

#include <string>

namespace hlxtest {

class SupportTest : public StructureTest
{
protected:
    vex::Feature& AddStep(const char* type, std::string_view name = "Loading", int number = 1)
    {
        std::string error;
        vex::Feature* const step = hlx::AddStep(Case(number), type, name, error);
        EXPECT_NE(step, nullptr) << error;
        return *step;
    }

    /// A condition at the end of a container of a step.
    static vex::Feature& MakeIn(std::string_view container, const char* type,
                                const vex::Feature& step, std::string_view alias = {})
    {
        return Make(type, *vex::FirstChildOfType(step, container), alias);
    }

    static vex::Feature& Load(const char* type, const vex::Feature& step,
                              std::string_view alias = {})
    {
        return MakeIn("HLXLoadContainerLT", type, step, alias);
    }

    /// The digest of a part's shape.
    static std::string DigestOf(const std::string& part)
    {
        vex::Document* document = nullptr;
        std::string error;
        EXPECT_EQ(vex::DocumentSession::Instance().Open(part, false, document, error), S_OK)
            << error;
        const std::string* const digest = vex::ShapeDigest(*document, error);
        EXPECT_NE(digest, nullptr) << error;
        return *digest;
    }

    /// A region below an entity, as the platform stores it.
    static vex::Feature& Region(vex::Feature& entity, const std::string& part,
                                std::int64_t dimension, std::int64_t index,
                                const char* type = "VEXSamSupport")
    {
        vex::Feature& region = Make(type, entity);
        region.Set("Document", vex::Boxed<vex::DocumentLink>({part, vex::DocumentType::Part}));
        region.Set("Dimension", dimension);
        region.Set("Index", index);
        region.Set("Shape", vex::Boxed<std::string>(DigestOf(part)));
        return region;
    }

    /// Links the analysis to a product with a use of a part under each of these names.
    void LinkToUses(const std::string& part, const std::vector<std::string>& names)
    {
        vex::Feature& root = Product();
        for (const std::string& name : names) {
            Use(root, name, "Part-1", part);
        }
        Link(SaveProduct(root, "top"));
    }

    /// What stands between "*LOADS" and its end in the deck of a case with one step.
    std::string TextOfLoads() { return Between(Text(), "*LOADS", "*END LOADS"); }

    /// The keyword line of a support of that part, in a deck.
    static std::string SupportLine(const std::string& part, int dimension, int index,
                                   const std::string& connector = "")
    {
        return "*SUPPORT, Document=\"" + part.substr(part.rfind('/') + 1) +
               "\", Dimension=" + std::to_string(dimension) + ", Index=" + std::to_string(index) +
               ", Connector=\"" + connector + "\"\n";
    }

    /// A whole deck of the first case.
    static std::string Deck(const std::string& structure, const std::string& steps)
    {
        return "*HEADING\n"
               "\"Analysis Case.1\"\n"
               "** structure\n" +
               structure +
               "** model\n"
               "** cases\n"
               "*CASE, NAME=\"Analysis Case.1\", AnalysisType=0\n"
               "*HISTORY, ActiveStep=none\n"
               "*INITIAL STEP, NAME=\"Initial\", Description=\"\"\n"
               "*BOUNDARY CONDITIONS\n"
               "*END BOUNDARY CONDITIONS\n"
               "*INTERACTIONS\n"
               "*END INTERACTIONS\n"
               "*INITIAL CONDITIONS\n"
               "*END INITIAL CONDITIONS\n"
               "*END INITIAL STEP\n" +
               steps +
               "*END HISTORY\n"
               "*END CASE\n";
    }

    /// A static perturbation step with these loads, in a deck.
    static std::string Step(const std::string& loads)
    {
        return "*STEP, NAME=\"Loading\", Description=\"\", UnsymmetricSolver=false\n"
               "*STATIC, PERTURBATION\n"
               "*LOADS\n" +
               loads +
               "*END LOADS\n"
               "*BOUNDARY CONDITIONS\n"
               "*END BOUNDARY CONDITIONS\n"
               "*INTERACTIONS\n"
               "*END INTERACTIONS\n"
               "*TEMPERATURES\n"
               "*END TEMPERATURES\n"
               "*END STEP\n";
    }

    /// A part with these lines of regions, and an assembly of unmoved instances of it.
    static std::string Structured(const std::string& regions,
                                  const std::vector<std::string>& instances)
    {
        std::string text =
            "*PART, NAME=\"Part-1\"\n** mesh: none\n" + regions + "*END PART\n*ASSEMBLY\n";
        for (const std::string& name : instances) {
            text += "*INSTANCE, NAME=\"" + name +
                    "\", PART=\"Part-1\"\n"
                    "1, 0, 0, 0\n"
                    "0, 1, 0, 0\n"
                    "0, 0, 1, 0\n"
                    "*END INSTANCE\n";
        }
        return text + "*END ASSEMBLY\n";
    }
};

}  // namespace hlxtest
