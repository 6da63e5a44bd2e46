#include "driver/ScriptedInfrared.h"

#include <gtest/gtest.h>

#include "store/pim/PimStore.h"

using namespace quill;
using namespace quill::driver;

namespace {

class ScriptedInfraredTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(store.Create() + store.Logon() + store.OpenFolder(FolderKind::Contacts), 0);
    for (const char16_t* name : {u"Adams", u"Gray"}) oids.push_back(Add(QString::fromUtf16(name)));
  }
  Oid Add(const QString& fileAs) { return store.Contacts()->SaveWhole(0, Contact(fileAs)); }
  static ContactItem Contact(const QString& fileAs) {
    ContactItem contact{
        .Record = {}, .BodyInk = "ink", .CarriedLines = QStringLiteral("X-MINE:kept\n")};
    contact.Record[ContactField::FileAs] = fileAs;
    return contact;
  }
  void Fail(const char* name, std::optional<Oid> only = std::nullopt) {
    faults.Switch(QString::fromLatin1(name), Fault{.OnlyItem = only});
  }
  int Count() { return store.Contacts()->Count(store.Contacts()->Items()); }

  FaultTable faults;
  PimStore store{QStringLiteral(":memory:")};
  int received = 0;
  ScriptedInfrared infrared{store, faults, [this] { ++received; }};
  std::vector<Oid> oids;
  using Sends = std::vector<std::vector<Oid>>;
};

}  // namespace

TEST_F(ScriptedInfraredTest, KeepsWhatIsSentInItsOrder) {
  EXPECT_TRUE(infrared.Open());
  EXPECT_TRUE(infrared.AddItem(oids[1]));
  EXPECT_TRUE(infrared.AddItem(oids[0]));
  EXPECT_TRUE(infrared.Send());
  EXPECT_TRUE(infrared.Send());
  EXPECT_EQ(infrared.Sends(), (Sends{{oids[1], oids[0]}, {}}));
}

TEST_F(ScriptedInfraredTest, BeginsWithAnEmptyQueue) {
  EXPECT_TRUE(infrared.AddItem(oids[0]));
  EXPECT_TRUE(infrared.Open());
  EXPECT_TRUE(infrared.Send());
  EXPECT_EQ(infrared.Sends(), Sends{{}});
}

TEST_F(ScriptedInfraredTest, TakesNoContactThatIsNotThere) {
  EXPECT_FALSE(infrared.AddItem(4711));
  store.Close();
  EXPECT_FALSE(infrared.AddItem(oids[0]));
}

TEST_F(ScriptedInfraredTest, FailsAsItIsTold) {
  Fail("infrared-folder");
  EXPECT_FALSE(infrared.Open());
  Fail("infrared-add", oids[0]);
  EXPECT_FALSE(infrared.AddItem(oids[0]));
  EXPECT_TRUE(infrared.AddItem(oids[1]));
  Fail("infrared-send");
  EXPECT_FALSE(infrared.Send());
  EXPECT_EQ(infrared.Sends(), Sends{});
  infrared.Offer(Contact(QStringLiteral("Zed")));
  Fail("infrared-receive");
  EXPECT_FALSE(infrared.Receive());
  EXPECT_EQ(infrared.Receives(), 0);
  EXPECT_EQ(Count(), 2);
}

TEST_F(ScriptedInfraredTest, ReceivesWhatWasOfferedWholeAndOnce) {
  infrared.Offer(Contact(QStringLiteral("Zed")));
  infrared.Offer(Contact(QStringLiteral("Zoe")));
  EXPECT_TRUE(infrared.Receive());
  EXPECT_EQ(received, 1);
  const auto found = store.Contacts()->FindByFileAs(QStringLiteral("Zed"));
  ASSERT_EQ(found.size(), 1U);
  ContactItem contact;
  ASSERT_TRUE(store.Contacts()->Read(found[0], contact));
  EXPECT_EQ(contact.BodyInk, "ink");
  EXPECT_EQ(contact.CarriedLines, QStringLiteral("X-MINE:kept\n"));
  EXPECT_TRUE(infrared.Receive());
  EXPECT_EQ(infrared.Receives(), 2);
  EXPECT_EQ(received, 1) << "nothing was offered";
  EXPECT_EQ(Count(), 4);
}

TEST_F(ScriptedInfraredTest, TellsOfNoChangeWithoutAStore) {
  store.Close();
  infrared.Offer(Contact(QStringLiteral("Zed")));
  EXPECT_TRUE(infrared.Receive());
  EXPECT_EQ(received, 0);
}
