#include "Views/Controls/TextField.h"

#include "Views/Style/AccentFill.h"

#include <QtCore/QEvent>
#include <QtGui/QFontDatabase>
#include <QtGui/QValidator>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <limits>

namespace lanternix {

namespace {

bool breaksLine(QChar character) {
  switch (character.unicode()) {
    case u'\n':
    case u'\r':
    case u'\v':
    case u'\f':
    case u'\x85':
    case u'\u2028':
    case u'\u2029':
      return true;
    default:
      return false;
  }
}

/// Asked about every change of a field's text, however it is made, and free to mend it.
class SingleLineValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString &input, int & /*position*/) const override {
    std::ranges::replace_if(input, breaksLine, u' ');
    return Acceptable;
  }
};

}  // namespace

TextField::TextField(const QString &name, QWidget *parent)
    : QLineEdit(parent), m_singleLine(new SingleLineValidator(this)) {
  setAccessibleName(name);
  // The usual limit would cut what is stored already.
  setMaxLength(std::numeric_limits<int>::max());
  setValidator(m_singleLine);
  updateSelectionColors();
}

bool TextField::event(QEvent *event) {
  const bool isHandled = QLineEdit::event(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
    updateSelectionColors();
  }
  return isHandled;
}

void TextField::updateSelectionColors() {
  // Of the application, for the field's own palette holds what this sets.
  const AccentFill selection = AccentFill::of(QApplication::palette());
  if (palette().color(QPalette::Highlight) == selection.ground &&
      palette().color(QPalette::HighlightedText) == selection.text) {
    return;
  }
  QPalette colors;
  colors.setColor(QPalette::Highlight, selection.ground);
  colors.setColor(QPalette::HighlightedText, selection.text);
  setPalette(colors);
}

void TextField::setStoredText(const QString &text) {
  const QValidator *usual = validator();
  setValidator(nullptr);
  setText(text);
  setValidator(usual);
}

void TextField::setKeepsLineBreaks(bool keeps) {
  setValidator(keeps ? nullptr : m_singleLine);
}

void TextField::setMonospaced(bool monospaced) {
  // Only the family is set, so that the size goes on following the user's.
  QFont family;
  if (monospaced) {
    family.setFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
  }
  setFont(family);
}

}  // namespace lanternix
