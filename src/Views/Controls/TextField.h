#pragma once

#include <QtWidgets/QLineEdit>

namespace lanternix {

/// A field for one line of text of any length. What comes in with line breaks, from the clipboard
/// for instance, becomes one line, unless the field keeps them.
class TextField : public QLineEdit {
  Q_OBJECT

 public:
  /// \p name is what the field is called for who cannot see its label.
  explicit TextField(const QString &name, QWidget *parent = nullptr);

  /// Shows \p text, with its line breaks: they go only when the user edits it.
  void setStoredText(const QString &text);
  /// Whether line breaks stay, shown as blanks, because they mean something.
  void setKeepsLineBreaks(bool keeps);
  /// In the desktop's fixed-width font, as large as other text.
  void setMonospaced(bool monospaced);

 protected:
  bool event(QEvent *event) override;

 private:
  void updateSelectionColors();

  QValidator *m_singleLine;
};

}  // namespace lanternix
