// The keys of the list index: what stands in the column `key` of its entries. All orders share one
// key space; each has a first byte of its own, and in it the keys compare as the order does.
//
//   0  folded FileAs
//   1  folded CompanyName, a zero byte, folded FileAs
//   2  a category, a zero byte, folded FileAs
//   3  a category, a zero byte, folded CompanyName, a zero byte, folded FileAs
//   4  an appointment's Subject, not folded
//
// A contact has one entry in the orders 0 and 1, and in 2 and 3 one for each of its categories; one
// with the empty category when its Categories is empty, none when that text names no category.
// Equal keys are told apart by the Oid, which every entry has beside its key.
#pragma once

#include <QByteArray>
#include <QString>

namespace quill {

enum class EntryOrder : char {
  FileAs = '0',
  Company = '1',
  CategoryFileAs = '2',
  CategoryCompany = '3',
  Subject = '4',
};

// Keys from the first text to before the second.
struct KeyRange {
  QByteArray From;
  QByteArray To;

  bool operator==(const KeyRange& other) const = default;
};

// All keys of an order without categories, and those of one category in an order with them.
KeyRange WholeOrder(EntryOrder order);
KeyRange WholeCategory(EntryOrder order, QStringView category);

// What the keys of a contact are made of.
struct ContactKeyTexts {
  QStringView FileAs;
  QStringView CompanyName;
  QStringView Categories;
};

int ContactEntryCount(QStringView categories);
// number counts from 0 to below ContactEntryCount; no two keys of a contact are equal.
QByteArray ContactEntryKey(const ContactKeyTexts& texts, int number);
QByteArray SubjectEntryKey(QStringView subject);

}  // namespace quill
