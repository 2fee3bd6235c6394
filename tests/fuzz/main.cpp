#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QList>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

// Feeds the fuzzer's inputs where no fuzzing engine is at hand: every file of a directory, then as
// many mutations of them as are asked for, the same ones at every run.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

QList<QByteArray> readCorpus(const QString &directory) {
  QList<QByteArray> corpus;
  for (const QFileInfo &info : QDir(directory).entryInfoList(QDir::Files, QDir::Name)) {
    QFile file(info.filePath());
    if (file.open(QIODevice::ReadOnly)) {
      corpus.append(file.readAll());
    }
  }
  return corpus;
}

/// A buffer of exactly the input's size, so that a sanitizer sees any look beyond its end.
void feed(const QByteArray &input) {
  const auto size = static_cast<std::size_t>(input.size());
  const auto copy = std::make_unique<std::uint8_t[]>(size);
  std::copy(input.begin(), input.end(), copy.get());
  LLVMFuzzerTestOneInput(copy.get(), size);
}

class Mutator {
 public:
  explicit Mutator(const QList<QByteArray> &corpus) : m_corpus(corpus) {}

  QByteArray next() {
    QByteArray input = m_corpus[below(m_corpus.size())];
    for (qsizetype count = 1 + below(6); count > 0; --count) {
      mutate(input);
    }
    return input;
  }

 private:
  qsizetype below(qsizetype limit) {
    return static_cast<qsizetype>(m_bits() % static_cast<std::uint64_t>(limit));
  }

  void mutate(QByteArray &input) {
    const QByteArray &other = m_corpus[below(m_corpus.size())];
    const qsizetype position = below(input.size() + 1);
    const qsizetype length = std::min(below(24), input.size() - position);
    switch (below(5)) {
      case 0:
        input.insert(position, static_cast<char>(below(256)));
        break;
      case 1:
        input.remove(position, length);
        break;
      case 2:  // a piece of another input
        input.insert(position, other.mid(below(other.size() + 1), below(24)));
        break;
      case 3:
        input.insert(position, input.mid(position, length));
        break;
      default:
        if (position < input.size()) {
          input[position] = static_cast<char>(input[position] ^ (1 << below(8)));
        }
    }
  }

  const QList<QByteArray> &m_corpus;
  std::mt19937_64 m_bits{1};
};

}  // namespace

int main(int argc, char **argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: %s directory number-of-mutations\n", argv[0]);
    return EXIT_FAILURE;
  }
  const QList<QByteArray> corpus = readCorpus(QFile::decodeName(argv[1]));
  if (corpus.isEmpty()) {
    std::fprintf(stderr, "no inputs in %s\n", argv[1]);
    return EXIT_FAILURE;
  }
  for (const QByteArray &input : corpus) {
    feed(input);
  }
  Mutator mutator(corpus);
  for (long remaining = std::atol(argv[2]); remaining > 0; --remaining) {
    feed(mutator.next());
  }
  return EXIT_SUCCESS;
}
