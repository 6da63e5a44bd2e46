#include "editor/DraftJson.h"

#include <gtest/gtest.h>

#include "editor/SampleDraft.h"

namespace quill {
namespace {

TEST(DraftJson, DraftsComeBackAsTheyWereInTheirOrder) {
  const std::vector<Draft> drafts = {test::FullDraft(3), Draft{.Number = 4}};
  EXPECT_EQ(DraftsFromJson(JsonFromDrafts(drafts)), drafts);
}

TEST(DraftJson, NoDraftsAreAListTheyCanBeReadFrom) {
  EXPECT_EQ(DraftsFromJson(JsonFromDrafts({})), std::vector<Draft>());
}

TEST(DraftJson, ATextIsNamedLikeTheStoresProperty) {
  Draft draft{.Number = 1};
  draft.Record[ContactField::PagerNumber] = QStringLiteral("010-2");
  const QByteArray json = JsonFromDrafts({draft});
  EXPECT_TRUE(json.contains("\"PagerNumber\": \"010-2\"")) << json.toStdString();
  EXPECT_FALSE(json.contains("Title"));
  EXPECT_FALSE(json.contains("Birthday"));
}

class DamagedDrafts : public testing::TestWithParam<const char*> {};

TEST_P(DamagedDrafts, AreRefusedAsAWhole) {
  EXPECT_EQ(DraftsFromJson(GetParam()), std::nullopt) << GetParam();
}

// A draft is {number, oid, fileAs, texts, dates, ink}: one thing is wrong in each.
INSTANTIATE_TEST_SUITE_P(
    Texts, DamagedDrafts,
    testing::Values(
        "", "{", "[]", "{}", R"({"drafts": 1})", R"({"drafts": [1]})",
        R"({"drafts": [{"number":0,"oid":0,"fileAs":"","texts":{},"dates":{},"ink":""}]})",
        R"({"drafts": [{"number":"1","oid":0,"fileAs":"","texts":{},"dates":{},"ink":""}]})",
        R"({"drafts": [{"number":1,"oid":"","fileAs":"","texts":{},"dates":{},"ink":""}]})",
        R"({"drafts": [{"number":1,"oid":0,"texts":{},"dates":{},"ink":""}]})",
        R"({"drafts": [{"number":1,"oid":0,"fileAs":"","texts":[],"dates":{},"ink":""}]})",
        R"({"drafts": [{"number":1,"oid":0,"fileAs":"","texts":{},"dates":1,"ink":""}]})",
        R"({"drafts": [{"number":1,"oid":0,"fileAs":"","texts":{},"dates":{},"ink":1}]})",
        R"({"drafts": [{"number":1,"oid":0,"fileAs":"","texts":{},"dates":{},"ink":"*"}]})"));

TEST(DraftJson, ADraftWithoutAnyFaultIsRead) {
  EXPECT_EQ(DraftsFromJson(
                R"({"drafts": [{"number":1,"oid":0,"fileAs":"","texts":{},"dates":{},"ink":""}]})"),
            std::vector<Draft>{Draft{.Number = 1}});
}

}  // namespace
}  // namespace quill
