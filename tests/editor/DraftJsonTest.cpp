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

// What stands in one place of an otherwise faultless draft.
struct DraftFault {
  const char* Faultless;
  const char* Instead;
};

constexpr char kFaultless[] =
    R"({"drafts": [{"number":1,"oid":0,"fileAs":"","entered":{"texts":{},"dates":{},"ink":""},)"
    R"("opened":{"texts":{},"dates":{},"ink":""}}]})";

class FaultyDrafts : public testing::TestWithParam<DraftFault> {};

TEST_P(FaultyDrafts, AreRefused) {
  const QByteArray json = QByteArray(kFaultless).replace(GetParam().Faultless, GetParam().Instead);
  ASSERT_NE(json, kFaultless);
  EXPECT_EQ(DraftsFromJson(json), std::nullopt) << json.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedDrafts,
                         testing::Values("", "{", "[]", "{}", R"({"drafts": 1})",
                                         R"({"drafts": [1]})"));

INSTANTIATE_TEST_SUITE_P(Places, FaultyDrafts,
                         testing::Values(DraftFault{R"("number":1)", R"("number":0)"},
                                         DraftFault{R"("number":1)", R"("number":"1")"},
                                         DraftFault{R"("oid":0)", R"("oid":"")"},
                                         DraftFault{R"("fileAs":"",)", ""},
                                         DraftFault{R"("texts":{})", R"("texts":[])"},
                                         DraftFault{R"("dates":{})", R"("dates":1)"},
                                         DraftFault{R"("ink":"")", R"("ink":1)"},
                                         DraftFault{R"("ink":"")", R"("ink":"*")"},
                                         DraftFault{R"("entered")", R"("other")"},
                                         DraftFault{R"("opened")", R"("other")"}));

TEST(DraftJson, ADraftWithoutAnyFaultIsRead) {
  EXPECT_EQ(DraftsFromJson(kFaultless), std::vector<Draft>{Draft{.Number = 1}});
}

}  // namespace
}  // namespace quill
