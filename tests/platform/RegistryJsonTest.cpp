#include "platform/RegistryJson.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

const QString kKey = QStringLiteral("\\Software\\Fennick\\Quill");

RegistryKeys WithValue(const QString& name, RegistryValue value) {
  RegistryKeys keys;
  RegistryValueIn(RegistryKeyIn(keys, kKey), name) = std::move(value);
  return keys;
}

RegistryValue ReadBack(const RegistryValue& value) {
  const auto keys = RegistryFromJson(JsonFromRegistry(WithValue(QStringLiteral("v"), value)));
  if (!keys) return {};
  return keys->at(RegistryFold(kKey)).Values.at(QStringLiteral("v")).Content;
}

struct BlockCase {
  const char* Says;
  QByteArray Block;
};

class RegistryBlockTest : public testing::TestWithParam<BlockCase> {};

TEST_P(RegistryBlockTest, ReadsBackByteForByte) {
  EXPECT_EQ(ReadBack(GetParam().Block), RegistryValue(GetParam().Block)) << GetParam().Says;
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, RegistryBlockTest,
    testing::Values(BlockCase{"empty", QByteArray("")},
                    BlockCase{"text with terminator", QByteArray("0\0002\0\0\0", 6)},
                    BlockCase{"text without terminator", QByteArray("0\0002\0", 4)},
                    BlockCase{"text and zero fill", QByteArray("0\0002\0", 4).append(516, '\0')},
                    BlockCase{"zeros only", QByteArray(520, '\0')},
                    BlockCase{"Hangul", QByteArray("\xC1\xAC\xB8\xC5\0\0", 6)},
                    BlockCase{"text and other fill", QByteArray("0\0\0\0x\0", 6)},
                    BlockCase{"an odd number of bytes", QByteArray("0\0002", 3)},
                    BlockCase{"an odd number of zeros", QByteArray(5, '\0')},
                    BlockCase{"half a surrogate pair", QByteArray("\x3D\xD8", 2)},
                    BlockCase{"a byte-order mark", QByteArray("\xFF\xFE\x30\x00", 4)}),
    [](const auto& block) {
      QString name = QString::fromLatin1(block.param.Says);
      return name.replace(u'-', u'_').replace(u' ', u'_').toStdString();
    });

TEST(RegistryJson, NumbersReadBackOverTheirWholeRange) {
  for (const quint32 number : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    EXPECT_EQ(ReadBack(number), RegistryValue(number)) << number;
}

TEST(RegistryJson, APlainTextStandsReadablyInTheFile) {
  const QByteArray block = QByteArray("0\0002\0", 4).append(516, '\0');
  const QByteArray json = JsonFromRegistry(WithValue(QStringLiteral("AreaCodeValue"), block));
  EXPECT_TRUE(json.contains("\"text\": \"02\"")) << json.toStdString();
  EXPECT_TRUE(json.contains("\"bytes\": 520")) << json.toStdString();
}

TEST(RegistryJson, KeysWithoutValuesReadBack) {
  RegistryKeys keys;
  RegistryKeyIn(keys, kKey);
  const auto read = RegistryFromJson(JsonFromRegistry(keys));
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->contains(RegistryFold(kKey)));
}

TEST(RegistryJson, NamesKeepTheSpellingThatTheyWereFirstPutWith) {
  RegistryKeys keys = WithValue(QStringLiteral("AreaCode"), 1U);
  RegistryValueIn(RegistryKeyIn(keys, kKey.toUpper()), QStringLiteral("AREACODE")) = 2U;
  const QByteArray json = JsonFromRegistry(keys);
  EXPECT_TRUE(json.contains("\"AreaCode\": 2")) << json.toStdString();
  EXPECT_FALSE(json.contains("AREACODE")) << json.toStdString();
}

class DamagedRegistryJsonTest : public testing::TestWithParam<const char*> {};

TEST_P(DamagedRegistryJsonTest, IsRefusedAsAWhole) {
  EXPECT_FALSE(RegistryFromJson(GetParam())) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedRegistryJsonTest,
                         testing::Values("", "{", "[]", "nonsense", R"({"k": 1})", R"({"k": []})",
                                         R"({"k": {"v": true}})", R"({"k": {"v": "text"}})",
                                         R"({"k": {"v": null}})", R"({"k": {"v": -1}})",
                                         R"({"k": {"v": 4294967296}})", R"({"k": {"v": 1.5}})",
                                         R"({"k": {"v": {}}})", R"({"k": {"v": {"text": "02"}}})",
                                         R"({"k": {"v": {"text": 2, "bytes": 4}}})",
                                         R"({"k": {"v": {"text": "02", "bytes": -1}}})",
                                         R"({"k": {"v": {"text": "02", "bytes": 3}}})",
                                         R"({"k": {"v": {"text": "02", "bytes": 2000000000}}})",
                                         R"({"k": {"v": {"base64": "*"}}})",
                                         R"({"k": {"good": 1, "v": true}})"));

TEST(RegistryJson, HasBlocksOfOneMebibyteTogether) {
  const auto keys = [](int bytes, int more) {
    return QStringLiteral(R"({"k":{"a":{"text":"","bytes":%1}},"l":{"b":{"text":"","bytes":%2}}})")
        .arg(bytes)
        .arg(more)
        .toUtf8();
  };
  EXPECT_TRUE(RegistryFromJson(keys(1'048'575, 1)));
  EXPECT_FALSE(RegistryFromJson(keys(1'048'575, 2)));
  EXPECT_FALSE(RegistryFromJson(keys(2, 1'048'575)));
}

}  // namespace
}  // namespace quill
