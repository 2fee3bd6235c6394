#include "Views/Settings/BackupRowView.h"

#include "Utilities/DateText.h"
#include "Views/Controls/TextColumn.h"
#include "Views/Style/DisplayText.h"
#include "Views/Style/TextLabel.h"

#include <QtCore/QLocale>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace lanternix {

namespace {

/// The name, and the size unless the file is gone.
QString fileText(const QString &path, std::optional<qint64> size) {
  const QString name = DisplayText::singleLine(path.sliced(path.lastIndexOf(u'/') + 1));
  return size.has_value() ? name + u" · "_s + QLocale::system().formattedDataSize(*size) : name;
}

}  // namespace

BackupRowView::BackupRowView(const BackupInfo &backup, std::optional<qint64> size, QWidget *parent)
    : QWidget(parent) {
  const QString date = DateText::mediumDateShortTime(backup.date);
  auto *title = new TextLabel(date, TextStyle::body, QFont::Medium, FillStyle::primary, this);
  auto *file = new TextLabel(fileText(backup.url, size), TextStyle::caption2, QFont::Normal,
                             FillStyle::secondary, this);
  // A name may be long; the button stays in sight.
  file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

  auto *restore = new QPushButton(u"Restore"_s, this);
  restore->setFont(textFont(TextStyle::subheadline));
  restore->setAccessibleDescription(date);
  connect(restore, &QPushButton::clicked, this, &BackupRowView::restoreRequested);

  auto *layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  TextColumn::addClose(*layout, {title, file}, 1);
  layout->addWidget(restore);
}

}  // namespace lanternix
