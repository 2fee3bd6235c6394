#include "Views/Controls/Alert.h"

#include "Views/Style/Destructive.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int padding = 20;
constexpr int spacing = 10;
constexpr int width = 300;

TextLabel *addText(QVBoxLayout &layout, const QString &text, TextStyle style, QFont::Weight weight,
                   FillStyle fill) {
  auto *label = new TextLabel(text, style, weight, fill);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignHCenter);
  layout.addWidget(label);
  return label;
}

}  // namespace

QDialog *Alert::show(QWidget *window, const std::function<void()> &confirmed) const {
  auto *dialog = new QDialog(window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setWindowTitle(title);
  dialog->setAccessibleDescription(message);
  auto *layout = new QVBoxLayout(dialog);
  layout->setContentsMargins(padding, padding, padding, padding);
  layout->setSpacing(spacing);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  addText(*layout, title, TextStyle::body, QFont::Bold, FillStyle::primary)->setFixedWidth(width);
  if (!message.isEmpty()) {
    addText(*layout, message, TextStyle::subheadline, QFont::Normal, FillStyle::secondary)
        ->setFixedWidth(width);
  }
  auto *bar = new QHBoxLayout;
  bar->setContentsMargins(0, spacing, 0, 0);
  const bool isMessage = destructiveAction.isEmpty();
  auto *dismiss = new QPushButton(isMessage ? u"OK"_s : u"Cancel"_s, dialog);
  // Return must not destroy anything, unless the user has gone to the button that does.
  dismiss->setDefault(true);
  QObject::connect(dismiss, &QPushButton::clicked, dialog, &QDialog::reject);
  bar->addWidget(dismiss);
  if (!isMessage) {
    auto *act = new QPushButton(destructiveAction, dialog);
    markDestructive(*act);
    QObject::connect(act, &QPushButton::clicked, dialog, &QDialog::accept);
    bar->insertWidget(0, act);
  }
  layout->addLayout(bar);
  if (confirmed) {
    QObject::connect(dialog, &QDialog::accepted, window, confirmed);
  }
  dismiss->setFocus();
  dialog->open();
  return dialog;
}

}  // namespace lanternix
