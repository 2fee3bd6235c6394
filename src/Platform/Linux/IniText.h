#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

namespace lanternix {

/// \p text, the content of a configuration file as QSettings reads it, with \p value as the value
/// of \p key in its [General] section. Everything else stays byte for byte as it was: comments,
/// blank lines, the order of keys, other sections and whatever in the file makes no sense.
/// (QSettings itself writes only what it understood.)
///
/// \p key is made of ASCII letters and digits, \p value a string or a byte array.
QByteArray withIniValue(QByteArrayView text, QByteArrayView key, const QVariant &value);

}  // namespace lanternix
