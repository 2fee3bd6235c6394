#pragma once

#include "desktop/layer/LayerSession.h"
#include "desktop/layer/PanelOnScreen.h"
#include "support/HarnessError.h"
#include "support/SampleGroups.h"
#include "support/WaitUntil.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>
#include <utility>

namespace lanternix {

/// What the names of tests and pictures call \p compositor.
inline QString layerCompositorName(LayerSession::Compositor compositor) {
  return compositor == LayerSession::Compositor::sway ? QStringLiteral("sway")
                                                      : QStringLiteral("kwin");
}

/// The built program on a compositor with a layer shell. What can be seen of it, a person could
/// see.
class LayerPanelTest : public testing::TestWithParam<LayerSession::Compositor> {
 protected:
  void start(int scale = 1, const QByteArray &preferences = {}) {
    session = std::make_unique<LayerSession>(GetParam(), scale);
    if (!preferences.isEmpty()) {
      session->home().writePreferences(preferences);
    }
    writeGroups();
    program = run();
    require(QStringLiteral("the panel"), [this] { return isShown(); });
  }

  void writeGroups() {
    SampleGroups groups;
    groups.group(QStringLiteral("Commands"));
    for (const QString &name : {QStringLiteral("build"), QStringLiteral("deploy")}) {
      groups.command(name, session->home().marking(name));
    }
    ProgramEnvironment::write(session->home().dataFile(), groups.json());
  }

  std::unique_ptr<ChildProcess> run() {
    auto process = std::make_unique<ChildProcess>(QStringLiteral(LANTERNIX_PROGRAM),
                                                  QStringLiteral("lanternix"));
    process->start({}, session->variables());
    return process;
  }

  /// Starts the program over a terminal that has the keyboard and fills the screen.
  void startOverTerminal(const QString &option) {
    session = std::make_unique<LayerSession>(GetParam());
    const auto ground = [this] { return session->picture().pixelColor(640, 700); };
    const QColor empty = ground();
    terminal = std::make_unique<ChildProcess>(QStringLiteral("foot"), QStringLiteral("foot"));
    terminal->start({option}, session->variables());
    require(QStringLiteral("the terminal"), [&] { return ground() != empty; });
    writeGroups();
    program = run();
    require(QStringLiteral("the panel"), [this] { return isShown(); });
  }

  /// Shows the hidden panel, as a second start does.
  void showAgain() {
    const auto second = run();
    require(QStringLiteral("the panel"), [this] { return isShown(); });
  }

  QRect frame() const { return panelOnScreen(session->picture(), LayerSession::screenSize); }
  bool isShown() const { return !frame().isEmpty(); }
  bool becomesHidden() const {
    return waitUntil([this] { return !isShown(); });
  }
  /// Whether the panel gets there; says where it is instead.
  testing::AssertionResult becomes(const QRect &expected) const {
    if (waitUntil([&] { return frame() == expected; })) {
      return testing::AssertionSuccess();
    }
    const QRect now = frame();
    return testing::AssertionFailure() << "the panel is at " << now.x() << ',' << now.y() << ' '
                                       << now.width() << 'x' << now.height();
  }

  /// In the middle of what the bars leave, 60 pixels up.
  QRect centred(QSize size) const {
    const QRect area = session->workArea();
    return {QPoint(area.x() + (area.width() - size.width()) / 2,
                   area.y() + (area.height() - size.height()) / 2 - 60),
            size};
  }

  /// The picture once nothing moves in it any more.
  QImage settledPicture() const {
    QImage settled;
    require(QStringLiteral("the screen to come to rest"), [&] {
      const QImage now = session->picture();
      return std::exchange(settled, now) == now;
    });
    return settled;
  }

  /// Opens the menu of the first row of a panel that is there.
  void openMenu(const QRect &panel) {
    const QPoint row = panel.topLeft() + QPoint(200, 150);
    input().moveTo(row);  // which lights up
    const QImage before = settledPicture();
    input().click(row, BTN_RIGHT);
    const QRect below(row + QPoint(10, 10), QSize(60, 40));
    require(QStringLiteral("the menu"),
            [&] { return session->picture().copy(below) != before.copy(below); });
  }

  /// Into the directory that the environment names, for people to look at.
  void savePicture(const QString &name) const {
    const QString directory = qEnvironmentVariable("LANTERNIX_PICTURES");
    if (!directory.isEmpty()) {
      QDir().mkpath(directory);
      settledPicture().save(directory + u'/' + layerCompositorName(GetParam()) + u'-' + name +
                            QStringLiteral(".png"));
    }
  }

  WaylandInput &input() { return session->input(); }

  std::unique_ptr<LayerSession> session;
  std::unique_ptr<ChildProcess> terminal;
  std::unique_ptr<ChildProcess> program;
};

/// What INSTANTIATE_TEST_SUITE_P needs to run a suite on each of the compositors.
inline auto everyLayerCompositor() {
  return testing::Values(LayerSession::Compositor::sway, LayerSession::Compositor::kwin);
}
inline std::string layerCompositorOf(const testing::TestParamInfo<LayerSession::Compositor> &test) {
  return layerCompositorName(test.param).toStdString();
}

}  // namespace lanternix
