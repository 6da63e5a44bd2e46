// quill-...-fuzz ROUNDS FOLDER...: gives the fuzz target every file of the folders and as many
// seeded changes of each as there are rounds. The same rounds are the same bytes on every machine.
// What fails is in the file failing-input then, however the program ends.
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>
#include <random>

#include "FuzzTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Random = std::mt19937;

qsizetype Below(Random& random, qsizetype limit) {
  return static_cast<qsizetype>(random() % static_cast<Random::result_type>(limit));
}

QByteArray Word(Random& random) {
  static const std::vector<QByteArray> kWords = quill::test::FuzzWords();
  return kWords[static_cast<std::size_t>(Below(random, std::ssize(kWords)))];
}

void Change(QByteArray& bytes, Random& random) {
  const qsizetype at = Below(random, bytes.size() + 1);
  const qsizetype length = Below(random, 20);
  switch (Below(random, 5)) {
    case 0:
      bytes.insert(at, Word(random));
      break;
    case 1:
      bytes.remove(at, length);
      break;
    case 2:
      bytes.replace(at, length, Word(random));
      break;
    case 3:
      bytes.insert(at, bytes.mid(Below(random, bytes.size() + 1), 10 * length));
      break;
    default:
      bytes.insert(at, static_cast<char>(Below(random, 256)));
  }
}

// Holds the input that is being tried. It stays open: closing a file that was written anew waits
// for the disk, which takes longer than most inputs do.
class FailingInput {
 public:
  bool Open() { return m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
  void Remove() { m_file.remove(); }

  // Written before, since a failure ends the program.
  void Try(const QByteArray& bytes) {
    m_file.resize(0);
    m_file.seek(0);
    m_file.write(bytes);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
  }

 private:
  QFile m_file{QStringLiteral("failing-input")};
};

void TryChangesOf(const QByteArray& bytes, int rounds, Random& random, FailingInput& input) {
  input.Try(bytes);
  for (int i = 0; i < rounds; ++i) {
    QByteArray changed = bytes;
    for (qsizetype count = 1 + Below(random, 6); count > 0; --count) Change(changed, random);
    input.Try(changed);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList words = QCoreApplication::arguments();
  const int rounds = words.value(1).toInt();
  Random random(1);
  const QString pattern = u'*' + QString::fromLatin1(quill::test::kFuzzSuffix);
  FailingInput input;
  if (!input.Open()) return 1;
  int files = 0;
  for (const QString& folder : words.mid(2)) {
    for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files)) {
      QFile file(QDir(folder).filePath(name));
      if (!file.open(QIODevice::ReadOnly)) return 1;
      TryChangesOf(file.readAll(), rounds, random, input);
      ++files;
    }
  }
  std::printf("%d files, %d changes of each\n", files, rounds);
  input.Remove();
  return files > 0 ? 0 : 1;
}
