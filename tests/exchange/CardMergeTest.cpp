#include "exchange/CardMerge.h"

#include <gtest/gtest.h>

#include "exchange/CardSamples.h"
#include "store/ContactFields.h"

namespace quill::test {
namespace {

struct MergeCase {
  const char* Name;
  const char* Stored;
  const char* Card;
  const char* Merged;  // as Describe gives it
};

class CardMerges : public testing::TestWithParam<MergeCase> {};

TEST_P(CardMerges, GiveTheContactWhatItLacks) {
  const Card card = CardOf(GetParam().Card);
  const ContactItem merged = MergedContact(ContactOf(GetParam().Stored), card);
  EXPECT_EQ(Describe(merged).toStdString(), GetParam().Merged);
  EXPECT_EQ(MergedContact(merged, card), merged);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, CardMerges,
    testing::Values(
        MergeCase{"EmptyTexts", "FN:A\n", "FN:A\nTITLE:Cook\nURL:u\nX-QUILL-FIELD19:9\n",
                  "FileAs=A\nFirstName=A\nJobTitle=Cook\nRadioTelephoneNumber=9\nWebPage=u\n"},
        MergeCase{"OtherText", "FN:A\nTITLE:Cook\n", "FN:A\nTITLE:Baker\nTITLE:Cook\n",
                  "FileAs=A\nFirstName=A\nJobTitle=Cook\nCarried=TITLE:Baker\n"},
        MergeCase{"OtherFiling", "FN:A\n", "FN:A\nX-EVOLUTION-FILE-AS:Z\n",
                  "FileAs=A\nFirstName=A\nCarried=X-EVOLUTION-FILE-AS:Z\n"},
        MergeCase{"NameParts", "N:Doe;Jane;;;\n", "N:Doe;Jane;Q.;Dr.;\nFN:Dr. Jane Q. Doe\n",
                  "FileAs=Doe, Jane\nTitle=Dr.\nFirstName=Jane\nMiddleName=Q.\nLastName=Doe\n"},
        MergeCase{"OtherName", "N:Doe;Jane;;;\n", "N:Roe;Jane;Q.;;\nFN:Jane Q. Roe\n",
                  "FileAs=Doe, Jane\nFirstName=Jane\nLastName=Doe\nCarried=N:Roe;Jane;Q.;;\n"},
        MergeCase{"LessOfTheName", "N:Doe;Jane;Q.;;\n", "N:Doe;Jane;;;\nFN:Jane Doe\n",
                  "FileAs=Doe, Jane Q.\nFirstName=Jane\nMiddleName=Q.\nLastName=Doe\n"},
        MergeCase{
            "SpokenNameOfItsOwn", "N:Doe;Jane;;;\n", "N:Doe;Jane;;;\nFN:Janey\n",
            "FileAs=Doe, "
            "Jane\nFirstName=Jane\nLastName=Doe\nCarried=FN;X-QUILL-SPOKEN-FOR=1c272047:Janey\n"},
        MergeCase{"NameWhereThereWasNone", "ORG:Mill\n", "FN:Ann\n",
                  "FileAs=Mill\nFirstName=Ann\nCompanyName=Mill\n"},
        MergeCase{"SecondSpokenName", "ORG:Mill\n", "ORG:Mill\nFN:Mill\nFN:Desk\n",
                  "FileAs=Mill\nCompanyName=Mill\nCarried=FN:Desk\n"},
        MergeCase{"Department", "ORG:Mill\n", "ORG:Mill;North\n",
                  "FileAs=Mill\nDepartment=North\nCompanyName=Mill\n"},
        MergeCase{"OtherCompany", "ORG:Mill\n", "ORG:Farm;North\n",
                  "FileAs=Mill\nCompanyName=Mill\nCarried=ORG:Farm;North\n"},
        MergeCase{"NewNumber", "FN:A\nTEL;TYPE=CELL:1\n", "FN:A\nTEL;TYPE=CELL:2\n",
                  "FileAs=A\nFirstName=A\nMobileTelephoneNumber=1\nPagerNumber=2\n"},
        MergeCase{"NumberOfAnotherField", "FN:A\nTEL;TYPE=CELL:02-1\n",
                  "FN:A\nTEL;TYPE=HOME:(02) 1\nTEL;VALUE=uri:tel:021\n",
                  "FileAs=A\nFirstName=A\nMobileTelephoneNumber=02-1\n"},
        MergeCase{"NumberWithoutAField", "FN:A\nTEL;TYPE=CAR:1\n", "FN:A\nTEL;TYPE=CAR:2\n",
                  "FileAs=A\nFirstName=A\nCarTelephoneNumber=1\nCarried=TEL;TYPE=CAR:2\n"},
        MergeCase{"NumberOfAMachine", "FN:A\nTEL;TYPE=CAR:1\n", "FN:A\nTEL;TYPE=MODEM:1\n",
                  "FileAs=A\nFirstName=A\nCarTelephoneNumber=1\nCarried=TEL;TYPE=MODEM:1\n"},
        MergeCase{"Emails", "FN:A\nEMAIL:a@b.c\n", "FN:A\nEMAIL;PREF=1:d@b.c\nEMAIL:A@B.C\n",
                  "FileAs=A\nFirstName=A\nEmail1Address=a@b.c\nEmail2Address=d@b.c\n"},
        MergeCase{"EmailWithoutAField", "EMAIL:1\nEMAIL:2\nEMAIL:3\n", "EMAIL:4\n",
                  "FileAs=1\nEmail1Address=1\nEmail2Address=2\nEmail3Address=3\n"
                  "Carried=EMAIL:4\n"},
        MergeCase{"NumberTwiceWithALabel",
                  "FN:A\nTEL;TYPE=CAR:1\na.TEL;TYPE=CAR:1\na.X-ABLABEL:Van\n",
                  "FN:A\nTEL;TYPE=CAR:1\na.TEL;TYPE=CAR:1\na.X-ABLABEL:Van\n",
                  "FileAs=A\nFirstName=A\nCarTelephoneNumber=1\nCarried=a.TEL;TYPE=CAR:1\n"
                  "Carried=a.X-ABLABEL:Van\n"},
        MergeCase{"NewAddress", "FN:A\nADR;TYPE=HOME:;;S;Ulm\n", "FN:A\nADR;TYPE=WORK:;;T;Bonn\n",
                  "FileAs=A\nFirstName=A\nBusinessAddressStreet=T\nBusinessAddressCity=Bonn\n"
                  "HomeAddressStreet=S\nHomeAddressCity=Ulm\n"},
        MergeCase{"MoreOfAnAddress", "FN:A\nADR;TYPE=HOME:;;;Ulm\n",
                  "FN:A\nADR;TYPE=HOME:;;S;Ulm;;890\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nHomeAddressCity=Ulm\n"
                  "HomeAddressPostalCode=890\n"},
        MergeCase{"AddressOfAnotherKind", "FN:A\nADR;TYPE=HOME:;;S;Ulm\n",
                  "FN:A\nADR:;;S;Ulm\nADR;TYPE=WORK:;;S\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nHomeAddressCity=Ulm\n"},
        MergeCase{"AddressWithNothingInCommon", "FN:A\nADR;TYPE=HOME:;;S\n",
                  "FN:A\nADR;TYPE=HOME:;;;Ulm\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nOtherAddressCity=Ulm\n"},
        MergeCase{"AddressWithoutAField", "FN:A\nADR:;;S;Ulm\n", "FN:A\nADR:;;T;Ulm\n",
                  "FileAs=A\nFirstName=A\nOtherAddressStreet=S\nOtherAddressCity=Ulm\n"
                  "Carried=ADR:;;T;Ulm\n"},
        MergeCase{"AddressCarriedBefore",
                  "FN:A\nADR;TYPE=HOME:;;S\nADR:;;T\na.ADR;TYPE=HOME:;;S;Ulm\n",
                  "FN:A\nb.ADR;TYPE=HOME:;;S;Ulm\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nOtherAddressStreet=T\n"
                  "Carried=a.ADR;TYPE=HOME:;;S;Ulm\n"},
        MergeCase{"AddressCarriedOfAnEmptyGroup",
                  "FN:A\nADR;TYPE=HOME:;;S\nADR:;;T\nADR;TYPE=HOME:;;S;Ulm\n",
                  "FN:A\n.ADR;TYPE=HOME:;;S;Ulm\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nOtherAddressStreet=T\n"
                  "Carried=ADR;TYPE=HOME:;;S;Ulm\n"},
        MergeCase{"AddressCarriedInOtherWords",
                  "FN:A\nADR;TYPE=HOME:;;S\nADR:;;T\nADR;TYPE=HOME:;;S;Ulm\n",
                  "FN:A\nadr;home:;;S;Ulm\n",
                  "FileAs=A\nFirstName=A\nHomeAddressStreet=S\nOtherAddressStreet=T\n"
                  "Carried=ADR;TYPE=HOME:;;S;Ulm\n"},
        MergeCase{"Categories", "FN:A\nCATEGORIES:Golf,Work\n", "FN:A\nCATEGORIES:Work,Club\n",
                  "FileAs=A\nFirstName=A\nCategories=Golf, Work, Club\n"},
        MergeCase{"Spouse", "FN:A\nX-SPOUSE:Max\n", "FN:A\nX-SPOUSE:Mo\nX-MS-SPOUSE:Max\n",
                  "FileAs=A\nFirstName=A\nSpouse=Max\nCarried=X-SPOUSE:Mo\n"},
        MergeCase{"Children", "FN:A\nX-CHILDREN:Bo, Cy\n", "FN:A\nX-MS-CHILD:Cy, Di\n",
                  "FileAs=A\nFirstName=A\nChildren=Bo, Cy, Di\n"},
        MergeCase{"NewDay", "FN:A\n", "FN:A\nBDAY:2001-02-03\n",
                  "FileAs=A\nFirstName=A\nBirthday=2001-02-03 weekday 6\n"},
        MergeCase{"OtherDay", "FN:A\nBDAY:2001-02-03\n", "FN:A\nBDAY:20010204\n",
                  "FileAs=A\nFirstName=A\nBirthday=2001-02-03 weekday 6\n"
                  "Carried=BDAY:20010204\n"},
        MergeCase{"NewUidAndInk", "FN:A\n", "FN:A\nUID:u\nX-QUILL-INK;ENCODING=b:SW5r\n",
                  "FileAs=A\nFirstName=A\nUid=u\nInk=496e6b\n"},
        MergeCase{"OtherUidAndInk", "FN:A\nUID:u\nX-QUILL-INK;ENCODING=b:SW5r\n",
                  "FN:A\nUID:v\nX-QUILL-INK;ENCODING=b:QUJD\n",
                  "FileAs=A\nFirstName=A\nUid=u\nInk=496e6b\nCarried=UID:v\n"
                  "Carried=X-QUILL-INK;ENCODING=b:QUJD\n"},
        MergeCase{"SameUidAndInk", "FN:A\nUID:u\nX-QUILL-INK;ENCODING=b:SW5r\n",
                  "FN:A\nUID:u\nX-QUILL-INK:data:x;base64\\,SW5r\n",
                  "FileAs=A\nFirstName=A\nUid=u\nInk=496e6b\n"},
        MergeCase{"CarriedLines", "FN:A\nNOTE:x\n", "FN:A\nNOTE:y\nNOTE:x\n",
                  "FileAs=A\nFirstName=A\nCarried=NOTE:x\nCarried=NOTE:y\n"}),
    [](const auto& merge) { return std::string(merge.param.Name); });

std::vector<Card> SampleCards() {
  std::vector<Card> cards;
  for (const std::string& name : SampleNames()) {
    for (const Card& card : ReadCards(SampleBytes(QString::fromStdString(name) + u".vcf"_qs))) {
      if (ContactFromCard(card)) cards.push_back(card);
    }
  }
  return cards;
}

// Categories and children grow, all other texts stay.
void ExpectKept(const ContactRecord& before, const ContactRecord& after) {
  for (const ContactFieldRow& row : kContactFields) {
    if (before[row.Field].isEmpty()) continue;
    EXPECT_TRUE(after[row.Field].startsWith(before[row.Field]))
        << row.Property.toString().toStdString();
  }
}

TEST(CardMergesOfAnyTwo, KeepWhatIsThereAndChangeNothingTheSecondTime) {
  const std::vector<Card> cards = SampleCards();
  ASSERT_GT(cards.size(), 40U);
  for (const Card& first : cards) {
    const ContactItem stored = ContactFromCard(first).value_or(ContactItem());
    EXPECT_EQ(MergedContact(stored, first), stored);
    for (const Card& second : cards) {
      const ContactItem merged = MergedContact(stored, second);
      ExpectKept(stored.Record, merged.Record);
      EXPECT_TRUE(merged.CarriedLines.startsWith(stored.CarriedLines));
      EXPECT_EQ(MergedContact(merged, second), merged);
    }
  }
}

}  // namespace
}  // namespace quill::test
