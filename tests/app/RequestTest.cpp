#include "app/Request.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct ValidCase {
  const char* Line;
  Request Expected;
};

class ValidRequest : public testing::TestWithParam<ValidCase> {};

TEST_P(ValidRequest, IsRead) {
  QString problem;
  const auto request = ReadRequest(GetParam().Line, problem);
  ASSERT_TRUE(request) << problem.toStdString();
  EXPECT_EQ(*request, GetParam().Expected);
  EXPECT_EQ(problem, QString());
}

TEST_P(ValidRequest, ComesBackFromOneLine) {
  const QByteArray line = WriteRequest(GetParam().Expected);
  EXPECT_EQ(line.count('\n'), 1);
  EXPECT_TRUE(line.endsWith('\n'));
  QString problem;
  EXPECT_EQ(ReadRequest(line, problem), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(
    Request, ValidRequest,
    testing::Values(ValidCase{R"({"request":"show","text":"Abernathy, Alice"})",
                              {RequestKind::Show, u"Abernathy, Alice"_qs, {}}},
                    ValidCase{R"({"request":"new","text":"a\nb \"c\""})",
                              {RequestKind::New, u"a\nb \"c\""_qs, {}}},
                    ValidCase{"{\"text\":\"\xea\xb9\x80\",\"request\":\"show\"}\n",
                              {RequestKind::Show, u"김"_qs, {}}},
                    ValidCase{R"({"request":"open","files":["/a/b.vcf","/c d.vcf"]})",
                              {RequestKind::Open, {}, {u"/a/b.vcf"_qs, u"/c d.vcf"_qs}}},
                    ValidCase{R"( { "request" : "activate" } )", {RequestKind::Activate, {}, {}}}));

struct InvalidCase {
  const char* Line;
  const char* Problem;
};

class InvalidRequest : public testing::TestWithParam<InvalidCase> {};

TEST_P(InvalidRequest, IsRefusedWithAReason) {
  QString problem;
  EXPECT_FALSE(ReadRequest(GetParam().Line, problem));
  EXPECT_EQ(problem.toStdString(), GetParam().Problem);
}

INSTANTIATE_TEST_SUITE_P(
    Request, InvalidRequest,
    testing::Values(
        InvalidCase{"", "not a JSON object"}, InvalidCase{"hello", "not a JSON object"},
        InvalidCase{"[]", "not a JSON object"}, InvalidCase{"\"show\"", "not a JSON object"},
        InvalidCase{R"({"request":"show","text":"a"} x)", "not a JSON object"},
        InvalidCase{"{}", "unknown request"}, InvalidCase{R"({"request":1})", "unknown request"},
        InvalidCase{R"({"request":"quit"})", "unknown request"},
        InvalidCase{R"({"request":"Show","text":"a"})", "unknown request"},
        InvalidCase{R"({"request":"show"})", "text missing"},
        InvalidCase{R"({"request":"show","text":""})", "text missing"},
        InvalidCase{R"({"request":"new","text":5})", "text missing"},
        InvalidCase{R"({"request":"show","text":"a","files":["/a"]})", "unexpected key \"files\""},
        InvalidCase{R"({"request":"activate","text":"a"})", "unexpected key \"text\""},
        InvalidCase{R"({"request":"activate","":1})", "unexpected key \"\""},
        InvalidCase{R"({"request":"open"})", "files missing"},
        InvalidCase{R"({"request":"open","files":[]})", "files missing"},
        InvalidCase{R"({"request":"open","files":"/a"})", "files missing"},
        InvalidCase{R"({"request":"open","files":["/a",2]})", "files missing"},
        InvalidCase{R"({"request":"open","files":["a.vcf"]})", "\"a.vcf\" is no absolute path"}));

TEST(Request, IsReadUpToTheLimitAndNotBeyond) {
  Request request{RequestKind::New, {}, {}};
  const qsizetype frame = WriteRequest(request).size();
  request.Text = QString(kRequestLineLimit - frame, u'a');
  QString problem;
  EXPECT_EQ(ReadRequest(WriteRequest(request), problem), request);
  request.Text += u'a';
  EXPECT_FALSE(ReadRequest(WriteRequest(request), problem));
  EXPECT_EQ(problem, u"request too long"_qs);
}

TEST(Request, AnswersComeBack) {
  EXPECT_EQ(WriteAnswer({}), "{\"ok\":true}\n");
  EXPECT_EQ(ReadAnswer(WriteAnswer({})), true);
  EXPECT_EQ(ReadAnswer(WriteAnswer(u"not done"_qs)), false);
  EXPECT_TRUE(WriteAnswer(u"not done"_qs).contains("\"error\":\"not done\""));
  EXPECT_EQ(ReadAnswer(""), std::nullopt);
  EXPECT_EQ(ReadAnswer("{\"ok\":1}"), std::nullopt);
}

}  // namespace
}  // namespace quill
