#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QWidget;

namespace lanternix {

/// Lets the user choose a file or a directory. Tests answer in the user's place.
class FileChooser {
 public:
  enum class Kind {
    directory,     ///< one that exists; files cannot be chosen
    file,          ///< one that exists; directories cannot be chosen
    fileToReplace  ///< one to be written, existing or not
  };

  struct Request {
    Kind kind = Kind::file;
    QString title;
    /// Such as "JSON Files (*.json)"; empty lets every file be chosen.
    QStringList nameFilters;
    /// What is proposed: a directory to start in, or a path whose last part is the proposed name.
    /// Where it leads nowhere, choosing starts at home; a file to be written keeps its name there.
    QString start;
  };

  /// Receives the path of what was chosen.
  using Chosen = std::function<void(const QString &path)>;

  virtual ~FileChooser() = default;

  /// Asks over the window of \p owner and returns. \p chosen is called at most once: never when the
  /// user cancels or \p owner ends first.
  virtual void choose(const Request &request, QWidget *owner, const Chosen &chosen) = 0;
};

}  // namespace lanternix
