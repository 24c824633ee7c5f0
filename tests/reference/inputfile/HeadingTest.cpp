// SPDX-License-Identifier: Apache-2.0
// The head of an input file: the cases' names, and their jobs in comments.
#include "host/feature/FeatureSearch.h"
#include "reference/inputfile/InputFileFixture.h"

namespace {

using vex::Feature;

class InputFileHeading : public hlxtest::InputFileTest
{
protected:
    Feature& Job(int number, std::string_view alias, bool singlePart = false)
    {
        Feature& job =
            Make("HLXJobLT", *vex::FirstChildOfType(Case(number), "HLXJobContainerLT"), alias);
        job.Set("SinglePart", singlePart);
        return job;
    }

    std::string Heading(const std::vector<int>& cases)
    {
        return Between(Text(cases), "*HEADING", "** structure");
    }
};

TEST_F(InputFileHeading, NamesTheJobsOfACase)
{
    Job(1, "Job-1");
    Job(1, "Job-1_SinglePart", true);
    EXPECT_EQ(Heading({1}),
              "\"Analysis Case.1\"\n"
              "** jobs of \"Analysis Case.1\": \"Job-1\", \"Job-1_SinglePart\" (one part)\n");
}

TEST_F(InputFileHeading, NamesTheJobsOfEachCaseInTheOrderOfTheList)
{
    Job(1, "one");
    Job(2, "two");
    EXPECT_EQ(Heading({2, 1}),
              "\"Analysis Case.2\"\n"
              "\"Analysis Case.1\"\n"
              "** jobs of \"Analysis Case.2\": \"two\"\n"
              "** jobs of \"Analysis Case.1\": \"one\"\n");
    EXPECT_EQ(Heading({2}),
              "\"Analysis Case.2\"\n"
              "** jobs of \"Analysis Case.2\": \"two\"\n");
}

TEST_F(InputFileHeading, SaysNothingOfACaseWithoutJobs)
{
    Job(2, "two");
    EXPECT_EQ(Heading({1, 2}),
              "\"Analysis Case.1\"\n"
              "\"Analysis Case.2\"\n"
              "** jobs of \"Analysis Case.2\": \"two\"\n");
}

TEST_F(InputFileHeading, SaysWhichJobsHaveNoName)
{
    Job(1, "");
    Job(1, "named");
    Job(1, "", true);
    EXPECT_EQ(Heading({1}),
              "\"Analysis Case.1\"\n"
              "** jobs of \"Analysis Case.1\": (no name), \"named\", (no name) (one part)\n");
}

TEST_F(InputFileHeading, NoNameOfAJobForgesALine)
{
    Case(1).SetAlias("\"\n*END CASE");
    Job(1, "a\", \"b\" (one part)\n*STEP");
    EXPECT_EQ(Heading({1}),
              "\"\\\"\\n*END CASE\"\n"
              "** jobs of \"\\\"\\n*END CASE\": \"a\\\", \\\"b\\\" (one part)\\n*STEP\"\n");
}

TEST_F(InputFileHeading, NothingElseOfAJobIsWritten)
{
    Feature& job = Job(1, "Job-1");
    job.Set("ResultsDirectory", vex::Boxed<std::string>(std::string("/results/here")));
    job.Set("ScratchDirectory", vex::Boxed<std::string>(std::string("/scratch/here")));
    job.Set("Description", vex::Boxed<std::string>(std::string("described here")));
    Make("HLXGravity", *job.Parent(), "no job");
    const std::string text = Text();
    EXPECT_EQ(text.find("here"), std::string::npos);
    EXPECT_EQ(text.find("no job"), std::string::npos);
    EXPECT_NE(text.find("\"Job-1\""), std::string::npos);
}

}  // namespace
