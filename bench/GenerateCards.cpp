// quill-generate-cards N [SEED]: N made-up cards to standard output.
#include <cstdio>
#include <cstdlib>

#include "CardGenerator.h"

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 0;
  if (count <= 0) {
    std::fputs("usage: quill-generate-cards N [SEED]\n", stderr);
    return 2;
  }
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  quill::bench::CardGenerator generator(seed);
  for (int i = 0; i < count; ++i) {
    const QByteArray card = generator.Next();
    const auto size = static_cast<std::size_t>(card.size());
    if (std::fwrite(card.constData(), 1, size, stdout) != size) return 2;
  }
  return std::fflush(stdout) == 0 ? 0 : 2;
}
