#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QAbstractButton>

#include <optional>

class QKeyEvent;

namespace lanternix {

class HotkeyService;

/// Shows the global shortcut and records another one: after a click, the next key pressed with at
/// least one of Shift, Control, Option and Command becomes the shortcut. Keys without a modifier do
/// what they always do. A second click ends recording, and so does the window when it is hidden or
/// loses the keyboard.
///
/// The present shortcut does nothing from the click on until the recorded keys are let go, so that
/// it can be recorded again and that none of these keys is taken for its next press. For ten
/// seconds the window gets the keys of other programs' shortcuts too, which can be recorded like
/// any others.
class ShortcutRecorderView : public QAbstractButton {
  Q_OBJECT

 public:
  explicit ShortcutRecorderView(HotkeyService &hotkeyService, QWidget *parent = nullptr);
  ~ShortcutRecorderView() override;

  bool isRecording() const { return m_isRecording; }

  QSize sizeHint() const override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 protected:
  bool event(QEvent *event) override;
  void changeEvent(QEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  void startRecording();
  void stopRecording();
  void record(quint32 keyCode, quint32 modifiers, const QKeyEvent &press);
  void setRecording(bool recording);
  void watchKeys(bool watch);
  void captureKeyboard(bool capture);
  void updateLabel();
  bool handlePress(QKeyEvent &press);
  bool handleRelease(const QKeyEvent &release);
  QFont labelFont() const;
  int symbolWidth() const;
  QColor tint() const;
  QColor textColor() const;

  HotkeyService &m_hotkeyService;
  bool m_isRecording = false;
  bool m_isWatching = false;
  bool m_isCapturing = false;
  /// No screen can be locked meanwhile, so this ends although the user has gone.
  QTimer m_captureLimit;
  /// The scan code of the key that was recorded, until it is let go.
  std::optional<quint32> m_heldKey;
};

}  // namespace lanternix
