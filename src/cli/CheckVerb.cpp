#include "cli/CheckVerb.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

#include "store/StoreLog.h"
#include "store/pim/PimStore.h"

namespace quill {
namespace {

struct ConditionText {
  QStringView Word;      // in JSON
  QStringView Sentence;  // for people
};
// In the order of IndexCondition.
constexpr std::array<ConditionText, 4> kConditions{{
    {u"right", u"The file is whole and its index is right."},
    {u"rebuilt", u"The file is whole. Its index was wrong and has been made anew."},
    {u"different", u"The file is whole, but its index is wrong and cannot be made anew."},
    {u"unknown", u"The file is damaged or in use; nothing was changed."},
}};

const ConditionText& TextOf(IndexCondition condition) {
  return kConditions[static_cast<std::size_t>(condition)];
}

void PrintJson(const StoreHealth& health, QTextStream& out) {
  const QJsonObject object{
      {QStringLiteral("fileFaults"), QJsonArray::fromStringList(health.FileFaults)},
      {QStringLiteral("indexFaults"), QJsonArray::fromStringList(health.IndexFaults)},
      {QStringLiteral("index"), TextOf(health.Index).Word.toString()}};
  out << QJsonDocument(object).toJson(QJsonDocument::Compact) << Qt::endl;
}

void PrintText(const StoreHealth& health, QTextStream& out) {
  for (const QString& fault : health.FileFaults + health.IndexFaults) out << fault << '\n';
  out << TextOf(health.Index).Sentence << Qt::endl;
}

// Without the folders: a store whose index is broken does not open them.
bool Open(PimStore& store) {
  const QuietStoreLog quiet;
  return store.Create() == 0 && store.Logon() == 0;
}

}  // namespace

int RunCheck(const VerbCall& call, const Console& console) {
  PimStore store(call.Where.StoreFile, {.Access = StoreAccess::AtLeastReading});
  if (!Open(store))
    return Fail(console, QStringLiteral("%1: %2").arg(call.Where.StoreFile, store.LastError()));
  const StoreHealth health = store.Check();
  (IsGiven(call, kJsonOption) ? PrintJson : PrintText)(health, console.Out);
  const bool isRight =
      health.Index == IndexCondition::Right || health.Index == IndexCondition::Rebuilt;
  return isRight ? kExitDone : kExitFailed;
}

}  // namespace quill
