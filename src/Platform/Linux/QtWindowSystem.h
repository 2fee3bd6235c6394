#pragma once

#include "Platform/WindowSystem.h"

#include <QtCore/QString>

namespace lanternix {

/// What Qt itself can do on any window system: used where no better door is at hand.
class QtWindowSystem : public WindowSystem {
  Q_OBJECT

 public:
  void noteRequest(const ActivationToken &token) override;
  QScreen *activeScreen() const override;
  QRect workArea(const QScreen &screen) const override;
  void preparePanel(QWindow &window) override;
  void prepareHiding(QWindow &window) override;
  void activate(QWindow &window) override;
  bool isOnScreen(const QWindow & /*window*/) const override { return true; }
  bool takeDrag(QWindow &window, Qt::Edges edges, QPoint position) override;
  void setGeometry(QWindow &window, const QRect &geometry) override;
  QPoint pointerPosition(const QMouseEvent &event) const override;
  bool isComposited() const override;
  void setFrame(QWindow &window, const Frame &frame) override;

 private:
  /// Of the request that is being answered, by the rules of Wayland.
  QString m_token;
};

}  // namespace lanternix
