// Cards of many programs, from a folder outside of the project.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <map>

#include "exchange/CardSamples.h"

namespace quill::test {
namespace {

// Files that give no contact, and why.
const std::map<std::string, const char*> kWithoutContact{
    {"android-v21_im", "holds only a nickname and an address for messages"},
    {"fk-Photo_Outlook_v2", "holds only a picture"},
};

QDir Folder() { return QDir(QStringLiteral(QUILL_CORPUS)); }

std::vector<std::string> CorpusNames() {
  std::vector<std::string> names;
  for (const QString& file : Folder().entryList({u"*.vcf"_qs}, QDir::Files, QDir::Name)) {
    names.push_back(file.chopped(4).toStdString());
  }
  return names;
}

TEST(CardCorpus, IsThere) { EXPECT_FALSE(CorpusNames().empty()); }

class CorpusFiles : public testing::TestWithParam<std::string> {};

TEST_P(CorpusFiles, GiveAContactOrHaveAReasonNotTo) {
  QFile file(Folder().filePath(QString::fromStdString(GetParam()) + u".vcf"_qs));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int contacts = 0;
  for (const Card& card : ReadCards(file.readAll())) {
    EXPECT_EQ(card.Fault, CardFault::None);
    if (ContactFromCard(card)) ++contacts;
  }
  EXPECT_EQ(contacts == 0, kWithoutContact.contains(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Files, CorpusFiles, testing::ValuesIn(CorpusNames()),
                         [](const auto& file) { return TestNameOf(file.param); });

}  // namespace
}  // namespace quill::test
