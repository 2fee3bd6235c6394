#include "Views/Controls/SheetDialog.h"

#include "Views/Style/DividerLine.h"
#include "Views/Style/TextLabel.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

constexpr int padding = 16;

}  // namespace

SheetDialog::SheetDialog(const QString &title, const QString &confirmation, QSize size,
                         QWidget *window)
    : QDialog(window), m_content(new QVBoxLayout), m_confirm(new QPushButton(confirmation, this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowModality(Qt::WindowModal);
  setWindowTitle(title);
  setFixedSize(size);
  auto *header = new TextLabel(title, TextStyle::body, QFont::Bold, FillStyle::primary, this);
  header->setContentsMargins(padding, padding, padding, padding);

  auto *cancel = new QPushButton(u"Cancel"_s, this);
  cancel->setAutoDefault(false);
  m_confirm->setDefault(true);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(m_confirm, &QPushButton::clicked, this, &SheetDialog::confirmed);
  auto *bar = new QHBoxLayout;
  bar->setContentsMargins(padding, padding, padding, padding);
  bar->addStretch();
  bar->addWidget(cancel);
  bar->addWidget(m_confirm);

  m_content->setContentsMargins(0, 0, 0, 0);
  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(header);
  layout->addWidget(new DividerLine(this));
  layout->addLayout(m_content, 1);
  layout->addWidget(new DividerLine(this));
  layout->addLayout(bar);
}

void SheetDialog::setConfirmable(bool confirmable) {
  m_confirm->setEnabled(confirmable);
}

}  // namespace lanternix
