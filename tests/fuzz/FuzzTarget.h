// What a fuzz target tells the program that feeds it without libFuzzer.
#pragma once

#include <QByteArray>

#include <vector>

namespace quill::test {

// The ending of its sample files.
extern const char* const kFuzzSuffix;
// What means something in its input.
std::vector<QByteArray> FuzzWords();

}  // namespace quill::test
