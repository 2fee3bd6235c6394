#pragma once

#include "Views/Settings/FileChooser.h"

#include <QtCore/QList>

#include <optional>

namespace lanternix {

/// Answers at once with what a test has set; without it the user cancels.
class FakeFileChooser final : public FileChooser {
 public:
  std::optional<QString> answer;
  /// All that was asked.
  QList<Request> requests;

  void choose(const Request &request, QWidget * /*owner*/, const Chosen &chosen) override {
    requests.append(request);
    if (answer.has_value()) {
      chosen(*answer);
    }
  }
};

}  // namespace lanternix
