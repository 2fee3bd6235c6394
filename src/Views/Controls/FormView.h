#pragma once

#include <QtWidgets/QScrollArea>

class QVBoxLayout;

namespace lanternix {

class FormSection;

/// A page of settings: sections below one another, scrolled when they do not fit.
class FormView : public QScrollArea {
  Q_OBJECT

 public:
  explicit FormView(QWidget *parent = nullptr);

  /// Appends a section, which the form owns. An empty \p title takes no room.
  FormSection &addSection(const QString &title);

  /// The room around all sections, in place of what suits a whole window.
  void setPadding(int sides, int ends);

 private:
  QVBoxLayout *m_sections;
};

}  // namespace lanternix
