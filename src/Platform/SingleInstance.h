#pragma once

#include <QtCore/QObject>

namespace lanternix {

struct ActivationToken;

/// Sees to one running program per session, and hears what others ask of it.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  enum class Request { showPanel, togglePanel, openSettings };
  Q_ENUM(Request)

  using QObject::QObject;

  /// True when this program is now the session's one. False when another one is running; that one
  /// has then been asked to show its panel, with the \p token that this program was started with.
  virtual bool claim(const ActivationToken &token) = 0;

 Q_SIGNALS:
  /// The user has asked for this by another program: a second start, the desktop's menu or a key
  /// bound there. Also when that is what this program was started for; as the panel comes up by
  /// itself at the start, to toggle it means to show it then.
  void requested(lanternix::SingleInstance::Request request,
                 const lanternix::ActivationToken &token);
};

}  // namespace lanternix
