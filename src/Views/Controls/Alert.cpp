#include "Views/Controls/Alert.h"

#include "Views/Controls/TextColumn.h"
#include "Views/Style/Destructive.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int padding = 20;
constexpr int spacing = 10;
constexpr int width = 300;

void addTexts(const Alert &alert, QVBoxLayout &layout) {
  TextColumn::addCentered(layout, alert.title, TextStyle::body, QFont::Bold, FillStyle::primary)
      ->setFixedWidth(width);
  if (!alert.message.isEmpty()) {
    TextColumn::addCentered(layout, alert.message, TextStyle::subheadline, QFont::Normal,
                            FillStyle::secondary)
        ->setFixedWidth(width);
  }
}

std::unique_ptr<QLayout> makeAnswers(const Alert &alert, QDialog &dialog) {
  auto bar = std::make_unique<QHBoxLayout>();
  bar->setContentsMargins(0, spacing, 0, 0);
  if (!alert.destructiveAction.isEmpty()) {
    auto *act = new QPushButton(alert.destructiveAction, &dialog);
    markDestructive(*act);
    QObject::connect(act, &QPushButton::clicked, &dialog, &QDialog::accept);
    bar->addWidget(act);
  }
  auto *dismiss =
      new QPushButton(alert.destructiveAction.isEmpty() ? u"OK"_s : u"Cancel"_s, &dialog);
  // Return must not destroy anything, unless the user has gone to the button that does.
  dismiss->setDefault(true);
  dismiss->setFocus();
  QObject::connect(dismiss, &QPushButton::clicked, &dialog, &QDialog::reject);
  bar->addWidget(dismiss);
  return bar;
}

}  // namespace

QDialog *Alert::show(QWidget *owner, const std::function<void()> &confirmed) const {
  auto *dialog = new QDialog(owner->window());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setWindowTitle(title);
  dialog->setAccessibleDescription(message);
  auto *layout = new QVBoxLayout(dialog);
  layout->setContentsMargins(padding, padding, padding, padding);
  layout->setSpacing(spacing);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  addTexts(*this, *layout);
  layout->addLayout(makeAnswers(*this, *dialog).release());
  if (confirmed) {
    QObject::connect(dialog, &QDialog::accepted, owner, confirmed);
  }
  dialog->open();
  return dialog;
}

}  // namespace lanternix
