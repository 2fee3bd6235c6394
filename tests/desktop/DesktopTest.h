#pragma once

#include "support/DesktopSession.h"
#include "support/Program.h"
#include "support/SampleGroups.h"
#include "support/WaitUntil.h"

#include <QtGui/QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace lanternix {

/// A test with a desktop of its own and the built program on it. What a command item did is seen by
/// the files it leaves in the home directory.
class DesktopTest : public testing::Test {
 protected:
  explicit DesktopTest(DesktopSession::WithManager withManager = DesktopSession::WithManager::yes,
                       DesktopSession::WithBus withBus = DesktopSession::WithBus::yes,
                       QSize screenSize = {1280, 900},
                       VirtualDisplay::Outputs outputs = VirtualDisplay::Outputs::one);

  // --- The program ------------------------------------------------------------------------------

  /// Starts the program over \p groups and waits for the panel that it shows by itself.
  void start(const SampleGroups &groups);
  /// The same over whatever is in the home directory already.
  void start(Program::Disk disk = Program::Disk::writable);
  /// Starts it and hides the panel again.
  void startHidden(const SampleGroups &groups);

  /// Presses the default shortcut.
  void pressShortcut();
  /// Presses the shortcut over the hidden panel and waits until the panel has the keyboard.
  void showByShortcut();

  bool isShown() const { return m_program->isPanelShown(); }
  bool becomesShown();
  bool becomesHidden();
  QRect panelGeometry();
  bool panelHasFocus() { return session().windows().hasFocus(m_program->panel()); }

  // --- Commands ---------------------------------------------------------------------------------

  /// A command line that leaves a mark named \p name.
  QString marking(const QString &name) const;
  /// Whether the mark appears.
  bool becomesMarked(const QString &name) const;
  /// Whether the mark is there now.
  bool isMarked(const QString &name) const;
  /// One expanded group with a command for each of \p names, which marks that name.
  SampleGroups commands(const QStringList &names) const;

  // --- The mouse --------------------------------------------------------------------------------

  /// A point of the panel on the screen.
  QPoint onPanel(QPoint point);
  /// Where the panel's picture differs from \p before once it does, within \p area of it.
  QRect changedArea(const QImage &before, const QRect &area);
  /// The row that the down arrow selects, found by its highlight, on the panel.
  QRect selectNextRow();
  /// Presses at \p from, drags to \p to, waits until the panel's geometry is \p expected, and lets
  /// go. Throws with the geometry that it had instead.
  void dragPanel(QPoint from, QPoint to, const QRect &expected);

  QImage picture() { return session().windows().grab(m_program->panel()); }
  QImage settledPicture() { return session().windows().grabSettled(m_program->panel()); }

  DesktopSession &session() { return m_session; }
  InputDriver &input() { return m_session.input(); }
  Program &program() { return *m_program; }

 private:
  DesktopSession m_session;
  std::unique_ptr<Program> m_program;
};

}  // namespace lanternix
