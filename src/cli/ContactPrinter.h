// Contacts for a person or a program to read: one after the other as text, or as one JSON array.
#pragma once

#include <QTextStream>

#include "store/ContactRecord.h"

namespace quill {

enum class PrintForm {
  Names,    // one on a line
  Records,  // every field that is not empty as "Property: text", a blank line between contacts
  Json,     // an object for each, with its Oid and every field that is not empty
};

class ContactPrinter {
 public:
  ContactPrinter(PrintForm form, QTextStream& out) : m_form(form), m_out(out) {}

  void Print(Oid oid, const ContactRecord& record);
  // After the last one. Returns the exit code: kExitPartly when there was none.
  int End();

 private:
  PrintForm m_form;
  QTextStream& m_out;
  bool m_hasPrinted = false;
};

}  // namespace quill
