#pragma once

#include <QtWidgets/QWidget>

class QVBoxLayout;

namespace lanternix {

class TextLabel;

/// A titled group of rows in a form, in a rounded box with a faint line between the rows.
class FormSection : public QWidget {
  Q_OBJECT

 public:
  explicit FormSection(const QString &title, QWidget *parent = nullptr);

  /// Readers call the section by it. An empty one takes no room.
  void setTitle(const QString &title);

  /// Appends a row over the whole width, which the section owns.
  void addRow(QWidget *row);
  /// Appends a row of a title, a caption below it unless empty, and \p control at its end. A title
  /// over a caption is a little bolder than one by itself.
  void addRow(const QString &title, const QString &caption, QWidget *control);
  /// Takes all rows away, and deletes them when the event loop comes round.
  void clear();

 private:
  TextLabel *m_title;
  QWidget *m_box;
  QVBoxLayout *m_rows;
};

}  // namespace lanternix
