#include "gallery/PanelGallery.h"

#include "Platform/Linux/GioWorkspace.h"
#include "Platform/Linux/QtWindowSystem.h"
#include "Utilities/FloatingPanel.h"
#include "Views/Panel/PopupPanelView.h"
#include "Views/Style/Palettes.h"
#include "support/HarnessError.h"
#include "support/StoreFixture.h"

#include <QtCore/QDir>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class BlendedWindows : public QtWindowSystem {
 public:
  bool isComposited() const override { return true; }
  void setFrame(QWindow & /*window*/, const Frame & /*frame*/) override {}
  void activate(QWindow & /*window*/) override {}
};

class SceneStore : public StoreFixture {
 public:
  std::unique_ptr<AppState> open(const PanelScene &scene, PanelItemSize size) {
    writeData(scene.groups, scene.items);
    auto state = std::make_unique<AppState>(
        Doors{fileManager, userDefaults, hotkeyRegistrar, desktop, processLauncher, clock});
    state->setPanelItemSize(size);
    state->setSearchQuery(scene.query);
    for (int step = 0; step < scene.steps; ++step) {
      state->navigateDown();
    }
    return state;
  }

  GioWorkspace desktop;  // for the icons
};

}  // namespace

PanelGallery::PanelGallery(QString directory) : m_directory(std::move(directory)) {}

int PanelGallery::draw() {
  int count = 0;
  for (const QString &appearance : {u"light"_s, u"dark"_s}) {
    QApplication::setPalette(appearance == u"dark"_s ? Palettes::dark() : Palettes::light());
    for (const PanelItemSize size : allPanelItemSizes) {
      for (const QString &scene : PanelScene::names()) {
        drawScene(scene, appearance, size);
        ++count;
      }
    }
  }
  return count;
}

void PanelGallery::drawScene(const QString &scene, const QString &appearance, PanelItemSize size) {
  SceneStore store;
  const std::unique_ptr<AppState> state =
      store.open(PanelScene::named(scene, store.home.root()), size);
  BlendedWindows windowSystem;
  FloatingPanel panel(windowSystem);
  panel.setContentView(std::make_unique<PopupPanelView>(*state));
  panel.setFrame({100, 100, 700, 500});
  panel.makeKeyAndOrderFront();
  QCoreApplication::processEvents();
  const QString name = u"%1/panel-%2-%3-%4-%5x.png"_s.arg(
      m_directory, scene, appearance, rawValue(size), QString::number(panel.devicePixelRatioF()));
  if (!panel.grab().save(name)) {
    throw HarnessError(u"the picture cannot be written: "_s + name);
  }
}

}  // namespace lanternix
