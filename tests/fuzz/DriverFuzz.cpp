// Whatever bytes a script writes: they are cut into the same lines however they arrive, every line
// is a request or is not, and its arguments are read. No operation is carried out.
#include <QJsonDocument>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"
#include "driver/AppointmentJson.h"
#include "driver/Arguments.h"
#include "driver/ContactJson.h"
#include "driver/KeyNames.h"
#include "driver/LineBuffer.h"
#include "driver/Request.h"

namespace quill::test {
namespace {

using namespace quill::driver;

constexpr qsizetype kLongestLine = 1024;  // bytes; less than an input may have

void Demand(bool isSo, const char* what) {
  if (isSo) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

std::vector<InputLine> LinesOf(const QByteArray& bytes, qsizetype piece) {
  LineBuffer buffer(kLongestLine);
  std::vector<InputLine> lines;
  for (qsizetype at = 0; at < bytes.size(); at += piece) {
    const auto more = buffer.Add(QByteArrayView(bytes).sliced(at, qMin(piece, bytes.size() - at)));
    lines.insert(lines.end(), more.begin(), more.end());
  }
  if (const auto last = buffer.Finish()) lines.push_back(*last);
  return lines;
}

void DemandSameLines(const std::vector<InputLine>& a, const std::vector<InputLine>& b) {
  Demand(a.size() == b.size(), "as many lines in pieces as at once");
  for (std::size_t i = 0; i < a.size(); ++i) {
    Demand(a[i].Text == b[i].Text && a[i].TooLong == b[i].TooLong, "the same lines in pieces");
    Demand(a[i].Text.size() <= kLongestLine, "lines are limited");
  }
}

void ReadArgument(const QJsonObject& arguments, const QString& name) {
  const auto whole = WholeNumber(arguments, name);
  const auto number = Number(arguments, name);
  const auto text = Text(arguments, name);
  Demand(!whole || number == *whole, "a whole number is a number");
  Demand(number.has_value() + text.has_value() + Truth(arguments, name).has_value() <= 1,
         "an argument has one type");
  Demand(HasArgument(arguments, name), "an argument is there");
  if (text && ParseKey(*text)) Demand(ParseKey(*text)->Key != 0, "a key has a number");
}

void ReadItems(const QJsonObject& arguments) {
  const QJsonObject fields = arguments.value(u"fields").toObject();
  ContactItem contact;
  if (PutFields(fields, contact)) {
    ContactItem again;
    Demand(PutFields(FieldsJson(contact), again), "a contact's own fields are fields");
    // Not the same contact: a number may give a date a time of day, which no date tells of.
    Demand(FieldsJson(again) == FieldsJson(contact), "a contact is told of as before");
  }
  AppointmentItem appointment;
  if (!PutFields(fields, appointment)) return;
  if (!PutRecurrence(arguments.value(u"recurrence"), appointment)) return;
  AppointmentItem again;
  Demand(PutFields(FieldsJson(appointment), again), "an appointment's own fields are fields");
  Demand(PutRecurrence(RecurrenceJson(appointment), again), "so is its recurrence");
}

void LookAt(const InputLine& line) {
  const auto request = ParseRequest(line.Text);
  if (!request) return;
  const QJsonObject& arguments = request->Arguments;
  for (const QString& name : arguments.keys()) ReadArgument(arguments, name);
  ReadItems(arguments);
  const auto again = ParseRequest(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
  Demand(again && again->Arguments == arguments, "a request is read as it is written");
  const QByteArray answer = FormatAnswer(Result(u"value", arguments));
  Demand(answer.count('\n') == 1 && answer.endsWith('\n'), "an answer is one line");
}

}  // namespace

const char* const kFuzzSuffix = ".requests";

std::vector<QByteArray> FuzzWords() {
  return {R"({"op":)",
          R"("op":"put",)",
          R"("fields":{)",
          R"("FileAs":"Kim")",
          R"("Birthday":"2004-02-01")",
          R"("Anniversary":36526.5)",
          R"("BodyInk":"AAAA")",
          R"("Subject":"a")",
          R"("Start":"2004-02-01T10:00:00")",
          R"("AllDayEvent":true)",
          R"("recurrence":{"RecurrenceType":1})",
          R"("key":"Ctrl++")",
          "\n",
          "}",
          "null",
          "2147483648",
          "-1e400",
          "\"\\ud83d\"",
          "\\u0000",
          "[[[[[[[["};
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quill::test;
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const auto lines = LinesOf(bytes, bytes.size() + 1);
  DemandSameLines(lines, LinesOf(bytes, 1));
  DemandSameLines(lines, LinesOf(bytes, 7));
  for (const auto& line : lines) LookAt(line);
  return 0;
}
