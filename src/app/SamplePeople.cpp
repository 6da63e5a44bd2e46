#include "app/SamplePeople.h"

#include <QDate>

#include <array>

#include "app/SampleAppointments.h"
#include "app/SampleMemos.h"
#include "app/SamplePerson.h"
#include "app/StoreOpening.h"
#include "exchange/CardCategories.h"
#include "store/FileAsName.h"

namespace quill {
namespace {

struct TextRow {
  QStringView SamplePerson::*Text;
  ContactField Field;
};
constexpr auto kTexts = std::to_array<TextRow>({
    {&SamplePerson::Title, ContactField::Title},
    {&SamplePerson::First, ContactField::FirstName},
    {&SamplePerson::Middle, ContactField::MiddleName},
    {&SamplePerson::Last, ContactField::LastName},
    {&SamplePerson::Suffix, ContactField::Suffix},
    {&SamplePerson::JobTitle, ContactField::JobTitle},
    {&SamplePerson::Department, ContactField::Department},
    {&SamplePerson::Company, ContactField::CompanyName},
    {&SamplePerson::Business, ContactField::BusinessTelephoneNumber},
    {&SamplePerson::Business2, ContactField::Business2TelephoneNumber},
    {&SamplePerson::BusinessFax, ContactField::BusinessFaxNumber},
    {&SamplePerson::Home, ContactField::HomeTelephoneNumber},
    {&SamplePerson::Home2, ContactField::Home2TelephoneNumber},
    {&SamplePerson::HomeFax, ContactField::HomeFaxNumber},
    {&SamplePerson::Mobile, ContactField::MobileTelephoneNumber},
    {&SamplePerson::Pager, ContactField::PagerNumber},
    {&SamplePerson::Email, ContactField::Email1Address},
    {&SamplePerson::Email2, ContactField::Email2Address},
    {&SamplePerson::WebPage, ContactField::WebPage},
    {&SamplePerson::Street, ContactField::BusinessAddressStreet},
    {&SamplePerson::City, ContactField::BusinessAddressCity},
    {&SamplePerson::State, ContactField::BusinessAddressState},
    {&SamplePerson::PostalCode, ContactField::BusinessAddressPostalCode},
    {&SamplePerson::Country, ContactField::BusinessAddressCountry},
    {&SamplePerson::HomeStreet, ContactField::HomeAddressStreet},
    {&SamplePerson::HomeCity, ContactField::HomeAddressCity},
    {&SamplePerson::HomeState, ContactField::HomeAddressState},
    {&SamplePerson::HomePostalCode, ContactField::HomeAddressPostalCode},
    {&SamplePerson::Categories, ContactField::Categories},
    {&SamplePerson::Spouse, ContactField::Spouse},
    {&SamplePerson::Children, ContactField::Children},
});

CalendarDate DateOf(QStringView text) {
  const QDate date = QDate::fromString(text.toString(), Qt::ISODate);
  if (!date.isValid()) return {};
  CalendarDate answer;
  answer.Year = static_cast<quint16>(date.year());
  answer.Month = static_cast<quint16>(date.month());
  answer.DayOfWeek = static_cast<quint16>(date.dayOfWeek() % 7);
  answer.Day = static_cast<quint16>(date.day());
  return answer;
}

bool IsHangul(QStringView text) {
  return !text.isEmpty() && text.front().script() == QChar::Script_Hangul;
}

ContactItem ItemOf(const SamplePerson& person) {
  ContactItem item;
  for (const TextRow& row : kTexts) item.Record[row.Field] = (person.*row.Text).toString();
  // Korean names are written in one, the family's name first.
  item.Record[ContactField::FileAs] = IsHangul(person.Last)
                                          ? person.Last.toString() + person.First.toString()
                                          : MakeFileAs(item.Record);
  item.Record.Birthday = DateOf(person.Birthday);
  item.Record.Anniversary = DateOf(person.Anniversary);
  return item;
}

// With their categories, so that they can be chosen.
bool SavePeople(StoreProvider& store) {
  CardCategories categories(*store.Categories());
  for (const SamplePerson& person : SamplePersons()) {
    const ContactItem item = ItemOf(person);
    if (store.Contacts()->SaveWhole(0, item) == 0) return false;
    categories.Note(item.Record);
  }
  return categories.AddToLibrary();
}

// The memos before the people are there for good: a home without people is filled again.
QString FillStore(StoreProvider& store, DeviceFiles& files) {
  ContactsFolder& contacts = *store.Contacts();
  if (contacts.Count(contacts.Items()) > 0) return {};
  const auto transaction = store.Begin();
  if (!transaction || !SavePeople(store) || !SaveSampleAppointments(*store.Calendar()))
    return store.LastError();
  if (!PutSampleMemos(files)) return QStringLiteral("the sample memos cannot be written");
  return transaction->Commit() ? QString() : store.LastError();
}

}  // namespace

QString FillWithSamplePeople(StoreProvider& store, DeviceFiles& files) {
  const StoreOpening opening(store);
  return opening.Succeeded() ? FillStore(store, files) : opening.Problem();
}

}  // namespace quill
