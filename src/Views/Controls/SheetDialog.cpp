#include "Views/Controls/SheetDialog.h"

#include "Views/Controls/FormView.h"
#include "Views/Style/DividerLine.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int padding = 16;
constexpr int formEndPadding = 12;

}  // namespace

SheetDialog::SheetDialog(const QString &title, const QString &confirmation, QSize size,
                         QWidget *window)
    : QDialog(window), m_form(new FormView(this)), m_confirm(nullptr) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowModality(Qt::WindowModal);
  setWindowTitle(title);
  setFixedSize(size);
  auto header = std::make_unique<QHBoxLayout>();
  header->setContentsMargins(padding, padding, padding, padding);
  header->addWidget(new TextLabel(title, TextStyle::body, QFont::Bold, FillStyle::primary, this));

  auto *cancel = new QPushButton(u"Cancel"_s, this);
  m_confirm = new QPushButton(confirmation, this);
  m_confirm->setDefault(true);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(m_confirm, &QPushButton::clicked, this, &SheetDialog::confirmed);
  auto bar = std::make_unique<QHBoxLayout>();
  bar->setContentsMargins(padding, padding, padding, padding);
  bar->addStretch();
  bar->addWidget(cancel);
  bar->addWidget(m_confirm);

  // In line with the title, and close, so that what is usual needs no scrolling.
  m_form->setPadding(padding, formEndPadding);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(header.release());
  layout->addWidget(new DividerLine(this));
  layout->addWidget(m_form, 1);
  layout->addWidget(new DividerLine(this));
  layout->addLayout(bar.release());
}

void SheetDialog::setConfirmable(bool confirmable) {
  m_confirm->setEnabled(confirmable);
}

}  // namespace lanternix
