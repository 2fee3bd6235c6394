#pragma once

#include "Platform/WindowSystem.h"

#include <QtCore/QString>

class QScreen;

namespace lanternix {

/// What Qt itself can do on any window system: used where no better door is at hand.
class QtWindowSystem : public WindowSystem {
  Q_OBJECT

 public:
  void noteRequest(const ActivationToken &token) override;
  QRect workArea() const override;
  void preparePanel(QWindow &window) override;
  void prepareHiding(QWindow &window) override;
  void activate(QWindow &window) override;
  bool takeDrag(QWindow &window, Qt::Edges edges, QPoint position) override;
  void setGeometry(QWindow &window, const QRect &geometry) override;
  QPoint pointerPosition(const QMouseEvent &event) const override;
  bool isComposited() const override;
  void setFrame(QWindow &window, const Frame &frame) override;

  /// The screen that the user works on: that of the active window where it can be told, else the
  /// one under the pointer, else the primary one. Null only without any screen.
  virtual QScreen *activeScreen() const;

 private:
  /// Of the request that is being answered, by the rules of Wayland.
  QString m_token;
};

}  // namespace lanternix
