#include "exchange/CardCategories.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

class OneLibrary : public CategoryLibrary {
 public:
  QStringList Names() override { return Kept; }
  bool SetNames(const QStringList& names) override {
    ++Writes;
    if (!Fails) Kept = names;
    return !Fails;
  }

  QStringList Kept{u"Work"_qs, u"Club"_qs};
  int Writes = 0;
  bool Fails = false;
};

class CardCategory : public testing::Test {
 protected:
  void Note(const QString& categories) {
    ContactRecord record;
    record[ContactField::Categories] = categories;
    m_categories.Note(record);
  }

  OneLibrary m_library;
  CardCategories m_categories{m_library};
};

TEST_F(CardCategory, GoesBehindThoseOfTheLibrary) {
  Note(u"Golf, Work"_qs);
  Note(u"Art, Golf"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept, (QStringList{u"Work"_qs, u"Club"_qs, u"Golf"_qs, u"Art"_qs}));
}

TEST_F(CardCategory, IsNotWrittenWhenItIsThere) {
  Note(u"Club, Work"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Writes, 0);
}

TEST_F(CardCategory, IsNeverNoCategories) {
  Note(u"No Categories, Golf"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept.last(), u"Golf");
  EXPECT_EQ(m_library.Kept.size(), 3);
}

TEST_F(CardCategory, HasANameThatCanBeChosen) {
  Note(QString(129, u'x') + u", "_qs + QString(128, u'y'));
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept.mid(2), QStringList{QString(128, u'y')});
}

TEST_F(CardCategory, IsForgottenOnceItWasAdded) {
  Note(u"Golf"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  m_library.Kept.removeAll(u"Golf"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept.size(), 2);
}

TEST_F(CardCategory, TellsThatTheStoreFailed) {
  m_library.Fails = true;
  Note(u"Golf"_qs);
  EXPECT_FALSE(m_categories.AddToLibrary());
}

TEST_F(CardCategory, MakesNoLibraryLongerThanTheLimit) {
  for (int i = 0; i < 2000; ++i) Note(QString::number(i));
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept.size(), CardCategories::kMaxLibrary);
  EXPECT_EQ(m_library.Kept.last(), u"997");
  m_library.Kept.append(u"One more"_qs);
  Note(u"Golf"_qs);
  EXPECT_TRUE(m_categories.AddToLibrary());
  EXPECT_EQ(m_library.Kept.last(), u"One more");
}

}  // namespace
}  // namespace quill::test
