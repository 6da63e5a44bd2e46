#include "WriteMeasures.h"

#include <memory>

#include "CommitBaseline.h"
#include "ContactGenerator.h"
#include "ListFilters.h"

namespace quill::bench {

namespace {

constexpr int kSpares = 200;
constexpr int kDeletesAtOnce = 500;
constexpr int kTimesDeletedAtOnce = 5;

constexpr QStringView kWriteAim = u"2 C; at 1M 5 C";

// The store and the contacts in it that were not there before.
class WrittenStore {
 public:
  explicit WrittenStore(StoreProvider& store)
      : m_store(store),
        m_before(Contacts().Count(Contacts().Items())),
        m_made(static_cast<unsigned>(m_before)),
        m_dice(static_cast<unsigned>(m_before)) {}

  ContactsFolder& Contacts() { return *m_store.Contacts(); }

  // A contact that is not in the store yet.
  ContactItem Make() { return m_made.Next(); }
  bool Add(const ContactItem& item) {
    const Oid oid = Contacts().SaveWhole(0, item);
    if (oid != 0) m_added.push_back(oid);
    return oid != 0;
  }
  // One of the added contacts, any one; 0 when there is none.
  Oid TakeAdded() {
    if (m_added.empty()) return 0;
    std::swap(m_added[m_dice.Below(static_cast<unsigned>(m_added.size()))], m_added.back());
    const Oid oid = m_added.back();
    m_added.pop_back();
    return oid;
  }
  // One of those from before.
  Oid Any() { return static_cast<Oid>(1 + m_dice.Below(static_cast<unsigned>(m_before))); }

  bool AddSeveral(int count) {
    return InOneTransaction([this, count] {
      for (int i = 0; i < count; ++i) {
        if (!Add(Make())) return false;
      }
      return true;
    });
  }
  bool RemoveSeveral(int count) {
    return InOneTransaction([this, count] {
      for (int i = 0; i < count; ++i) {
        if (!Contacts().Remove(TakeAdded())) return false;
      }
      return true;
    });
  }
  bool RemoveAllAdded() { return RemoveSeveral(static_cast<int>(m_added.size())); }

 private:
  template <typename Work>
  bool InOneTransaction(Work work) {
    const auto transaction = m_store.Begin();
    return transaction && work() && transaction->Commit();
  }

  StoreProvider& m_store;
  int m_before;
  ContactGenerator m_made;
  Dice m_dice;
  std::vector<Oid> m_added;
};

// Gives a contact another name, and its own one back.
void MeasureRename(WrittenStore& store, int row, Ruler& ruler) {
  const Oid oid = store.Any();
  ContactItem item;
  ruler.Do(QStringLiteral("read"), [&] { return store.Contacts().Read(oid, item); });
  ContactRecord renamed = item.Record;
  renamed[ContactField::FileAs] = store.Make().Record[ContactField::FileAs];
  for (const ContactRecord& record : {renamed, item.Record})
    ruler.Run(row, [&] { return store.Contacts().Save(oid, record, item.BodyInk) == oid; });
}

void MeasureSingleWrites(WrittenStore& store, Ruler& ruler) {
  const int insert = ruler.AddRow(QStringLiteral("insert"), kWriteAim, Unit::Commit);
  const int rename = ruler.AddRow(QStringLiteral("rename"), kWriteAim, Unit::Commit);
  const int remove = ruler.AddRow(QStringLiteral("delete"), kWriteAim, Unit::Commit);
  const int rebuild = ruler.AddRow(QStringLiteral("insert, then build"), {}, Unit::Commit);
  const ListFilter filter = IndexButtonFilter(3);
  for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
    const ContactItem item = store.Make();
    ruler.Run(insert, [&] { return store.Add(item); });
    MeasureRename(store, rename, ruler);
    const Oid spare = store.TakeAdded();
    ruler.Run(remove, [&] { return store.Contacts().Remove(spare); });
    const ContactItem another = store.Make();
    ruler.Run(rebuild, [&] { return store.Add(another) && BuildList(store.Contacts(), filter); });
  }
}

void MeasureDeletesAtOnce(WrittenStore& store, Ruler& ruler) {
  const int row = ruler.AddRow(QStringLiteral("500 deletes at once, each"), {}, Unit::Commit);
  for (int i = 0; i < kTimesDeletedAtOnce; ++i) {
    ruler.Do(QStringLiteral("insert 500"), [&] { return store.AddSeveral(kDeletesAtOnce); });
    ruler.RunSeveral(row, kDeletesAtOnce, [&] { return store.RemoveSeveral(kDeletesAtOnce); });
  }
}

}  // namespace

void MeasureWriting(StoreProvider& provider, const QString& folder, Ruler& ruler) {
  const auto baseline = std::make_shared<CommitBaseline>(folder);
  ruler.SetUnit(
      Unit::Commit, QStringLiteral("C: a durable commit"), [baseline] { return true; },
      [baseline] { return baseline->Commit(); });
  WrittenStore store(provider);
  ruler.Do(QStringLiteral("insert spares"), [&] { return store.AddSeveral(kSpares); });
  // First, as it writes enough for the log to have its usual size.
  MeasureDeletesAtOnce(store, ruler);
  MeasureSingleWrites(store, ruler);
  ruler.Do(QStringLiteral("remove what was added"), [&] { return store.RemoveAllAdded(); });
}

}  // namespace quill::bench
