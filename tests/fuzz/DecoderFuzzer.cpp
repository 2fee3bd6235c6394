#include "Services/DataDocument.h"

#include <QtCore/QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// One input for the decoder. Whatever the bytes are, it must come back; and what it takes for a
// document must survive being written and read again. The name and the signature are those that
// coverage-guided fuzzers call.

namespace {

void require(bool holds, const char *what) {
  if (!holds) {
    std::fprintf(stderr, "violated: %s\n", what);
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  using lanternix::DataDocument;
  const QByteArrayView bytes(data, static_cast<qsizetype>(size));
  QString error;
  const std::optional<DataDocument> document = DataDocument::decoded(bytes, &error);
  require(document.has_value() == error.isEmpty(), "a refusal says why, and only a refusal");
  if (document) {
    const std::optional<QByteArray> text = document->encoded();
    require(text.has_value(), "what was read can be written");
    const std::optional<DataDocument> again = DataDocument::decoded(*text);
    require(again == document, "what was written reads the same");
    require(again->encoded() == text, "and is written the same");
  }
  return 0;
}
