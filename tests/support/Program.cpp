#include "support/Program.h"

#include "support/DesktopSession.h"
#include "support/HarnessError.h"
#include "support/ProgramPing.h"
#include "support/WaitUntil.h"

namespace lanternix {

using namespace Qt::StringLiterals;

QString Program::file() {
  return QStringLiteral(LANTERNIX_PROGRAM);
}

Program::Program(DesktopSession &session, Disk disk, const QStringList &arguments)
    : m_session(session), m_process(file(), u"lanternix"_s) {
  if (disk == Disk::full) {
    m_process.forbidFileWrites();
  }
  m_process.start(arguments, session.variables());
}

void Program::waitForPanel() {
  const bool shown = waitUntil(
      [this] { return !isRunning() || (isPanelShown() && m_session.windows().hasFocus(panel())); });
  if (!shown || !isRunning()) {
    const auto what = isRunning() && isPanelShown()
                          ? u"the panel was shown without the keyboard; the program said: "_s
                          : u"the panel was not shown; the program said: "_s;
    throw HarnessError(what + QString::fromUtf8(errors()));
  }
}

void Program::settle() const {
  // What the program asks for, the window manager does, and the program hears of that again.
  ProgramPing ping(m_session.displayName(), panel());
  ping.waitForAnswer();
  if (m_session.windowManager() != nullptr) {
    m_session.windowManager()->settle();
    ping.waitForAnswer();
  }
}

bool Program::isPanelShown() const {
  const std::optional<xcb_window_t> window = findPanel();
  return window.has_value() && m_session.windows().isViewable(*window);
}

xcb_window_t Program::panel() const {
  const std::optional<xcb_window_t> window = findPanel();
  if (!window.has_value()) {
    throw HarnessError(u"the program has made no panel window"_s);
  }
  return *window;
}

std::optional<xcb_window_t> Program::findPanel() const {
  if (!m_panel.has_value()) {
    m_panel = m_session.windows().find(u"lanternix"_s, u"Lanternix"_s);
  }
  return m_panel;
}

}  // namespace lanternix
