#pragma once

#include <QtWidgets/QTabBar>

namespace lanternix {

/// The tabs of the settings window: each a symbol above its name, the shown one in the accent
/// colour on a rounded ground. Left and Right move it when it has the keyboard.
class SettingsTabStrip : public QTabBar {
  Q_OBJECT

 public:
  explicit SettingsTabStrip(QWidget *parent = nullptr);

  /// Appends a tab; returns its index.
  int addSymbolTab(const QString &symbol, const QString &name);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void drawTab(QPainter &painter, int index) const;
};

}  // namespace lanternix
