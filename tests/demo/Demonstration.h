#pragma once

#include "support/DesktopSession.h"
#include "support/Program.h"

namespace lanternix {

/// The program's main job, played on a virtual display for somebody whose machine has none. Each
/// step is carried out with real keys, checked, and told in plain words; a step that fails throws a
/// HarnessError.
class Demonstration {
 public:
  Demonstration();

  /// Plays the whole of it and saves the panel's picture as \p pictureFile (PNG).
  void play(const QString &pictureFile);

 private:
  void prepare();
  void startProgram();
  void toggle();
  void openByLetters();
  void savePicture(const QString &pictureFile);

  void pressShortcut();
  QString greetingFile() const;

  DesktopSession m_session;
  std::unique_ptr<Program> m_program;
};

}  // namespace lanternix
