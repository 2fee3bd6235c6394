#pragma once

#include <QtWidgets/QWidget>

class QLineEdit;

namespace lanternix {

class AppState;
class SymbolButton;

/// The search field: its text is the store's query, both ways and at once. What an input method is
/// still composing is no part of it, and is given up when the field is hidden. A clear button
/// stands beside the field while there is text.
class SearchBarView : public QWidget {
  Q_OBJECT

 public:
  explicit SearchBarView(AppState &appState, QWidget *parent = nullptr);

  /// Gives the keyboard to the field.
  void focusField();

 protected:
  void changeEvent(QEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void updateColors();
  void updateFont();
  void abandonComposition();
  void readQuery();

  AppState &m_appState;
  QLineEdit *m_field;
  SymbolButton *m_clearButton;
};

}  // namespace lanternix
