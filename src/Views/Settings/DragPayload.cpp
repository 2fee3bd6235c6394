#include "Views/Settings/DragPayload.h"

#include <QtCore/QMimeData>

using namespace Qt::StringLiterals;

namespace lanternix::DragPayload {

namespace {

const auto groupType = u"application/x-lanternix-group"_s;
const auto itemType = u"application/x-lanternix-item"_s;
const auto plainTextType = u"text/plain"_s;

QString textOf(const QUuid &id) {
  return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> idIn(QAnyStringView text) {
  // QUuid takes braces, and more, but not within 36 characters. A text that is none gives the null
  // value, which has a text of its own.
  constexpr qsizetype length = 36;
  if (text.size() != length) {
    return {};
  }
  const QUuid id = QUuid::fromString(text);
  return id.isNull() && text != textOf(QUuid()) ? std::nullopt : std::optional(id);
}

}  // namespace

std::unique_ptr<QMimeData> forGroup(const QUuid &id) {
  auto data = std::make_unique<QMimeData>();
  data->setData(groupType, textOf(id).toLatin1());
  return data;
}

std::unique_ptr<QMimeData> forItem(const QUuid &id) {
  auto data = std::make_unique<QMimeData>();
  data->setData(itemType, textOf(id).toLatin1());
  data->setText(textOf(id));
  return data;
}

std::optional<QUuid> groupId(const QMimeData &data) {
  return idIn(QLatin1StringView(data.data(groupType)));
}

std::optional<QUuid> itemId(const QMimeData &data) {
  return idIn(QLatin1StringView(data.data(itemType)));
}

bool hasPlainText(const QMimeData &data) {
  return data.hasFormat(plainTextType);
}

std::optional<QUuid> idInPlainText(const QMimeData &data) {
  return hasPlainText(data) ? idIn(data.text()) : std::nullopt;
}

}  // namespace lanternix::DragPayload
