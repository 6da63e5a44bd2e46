// The sample cards of tests/data/vcards, and cards from text.
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

#include "exchange/CardMapper.h"
#include "exchange/CardReader.h"

namespace quill::test {

// The bytes of a file of the sample folder; the running test fails when it cannot be read.
QByteArray SampleBytes(const QString& fileName);
// The names of the samples, without ".vcf", sorted.
std::vector<std::string> SampleNames();
// The name as a part of a test's name: letters, digits and underscores.
std::string TestNameOf(std::string name);

// Undeclared text that is not UTF-8 is read as Korean.
std::vector<Card> ReadCards(const QByteArray& bytes);
// The only card of a 3.0 file with these properties, each ended by LF.
Card CardOf(const QByteArray& properties);
ContactItem ContactOf(const QByteArray& properties);
CardProperty PropertyOf(const QByteArray& line);

// What a contact holds, field by field, as lines of text.
QString Describe(const ContactItem& item);
// Every card as lines of text: where it starts, then what was made of it, field by field.
QString Describe(const QByteArray& bytes);

}  // namespace quill::test
