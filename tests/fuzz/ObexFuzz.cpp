// Whatever bytes a peer sends: its session ends, and both sides stay small.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "FuzzTarget.h"
#include "exchange/ObexTrial.h"

namespace quill::test {

const char* const kFuzzSuffix = ".obex";

std::vector<QByteArray> FuzzWords() {
  std::vector<QByteArray> words;
  for (const char* hex : {"8000071000ffff", "800007100000ff",
                          "810003",         "020003",
                          "820003",         "ff0003",
                          "830003",         "8500050200",
                          "010003",         "490003",
                          "480003",         "460003",
                          "cb00000001",     "c3ffffffff",
                          "9701",           "a00007100000ff",
                          "900003",         "a00003",
                          "c30003",         "cd0003",
                          "00ff",           "ffff"}) {
    words.push_back(QByteArray::fromHex(hex));
  }
  words.emplace_back("BEGIN:VCARD\r\n");
  words.emplace_back("FN:a\r\nEND:VCARD\r\n");
  return words;
}

}  // namespace quill::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const std::string problem = quill::test::ObexTrialProblem(bytes);
  if (problem.empty()) return 0;
  std::fprintf(stderr, "%s\n", problem.c_str());
  std::abort();
}
