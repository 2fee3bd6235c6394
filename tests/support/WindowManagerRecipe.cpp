#include "support/WindowManagerRecipe.h"

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

using Recipe = WindowManagerRecipe;

Recipe openbox(const QString &home) {
  const QString configuration =
      uR"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name></theme>
  <desktops><number>2</number><popupTime>0</popupTime></desktops>
  <margins><top>%1</top><bottom>0</bottom><left>0</left><right>0</right></margins>
  <keyboard><keybind key="A-Tab"><action name="NextWindow"/></keybind></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Right" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)"_s;
  return {.program = u"openbox"_s,
          .debianPackage = u"openbox"_s,
          .arguments = {u"--sm-disable"_s, u"--config-file"_s, home + u"/rc.xml"_s},
          .files = {{u"rc.xml"_s, configuration.arg(reservedStrip).toUtf8()}}};
}

Recipe xfwm4(bool compositing) {
  const QString channels = u".config/xfce4/xfconf/xfce-perchannel-xml/"_s;
  const QString settings =
      uR"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfwm4" version="1.0">
  <property name="general" type="empty">
    <property name="workspace_count" type="int" value="2"/>
    <property name="click_to_focus" type="bool" value="true"/>
    <property name="prevent_focus_stealing" type="bool" value="true"/>
    <property name="use_compositing" type="bool" value="%1"/>
  </property>
</channel>
)"_s;
  return {.program = u"xfwm4"_s,
          .debianPackage = u"xfwm4"_s,
          .arguments = {},
          .files = {{channels + u"xfwm4.xml"_s,
                     settings.arg(compositing ? "true"_L1 : "false"_L1).toUtf8()},
                    {channels + u"xfce4-keyboard-shortcuts.xml"_s,
                     R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-keyboard-shortcuts" version="1.0">
  <property name="xfwm4" type="empty">
    <property name="custom" type="empty">
      <property name="override" type="bool" value="true"/>
      <property name="&lt;Alt&gt;Tab" type="string" value="cycle_windows_key"/>
    </property>
  </property>
</channel>
)"}},
          .needsBus = true};
}

Recipe metacity(bool compositing) {
  const QByteArray settings = QByteArray(R"([org/gnome/desktop/wm/preferences]
num-workspaces=2
focus-mode='click'
focus-new-windows='strict'
[org/gnome/metacity]
compositor=')") + (compositing ? "xrender" : "none") +
                              "'\n";
  return {.program = u"metacity"_s,
          .debianPackage = u"metacity"_s,
          .files = {{u".config/glib-2.0/settings/keyfile"_s, settings}},
          .variables = {{u"GSETTINGS_BACKEND"_s, u"keyfile"_s}}};
}

Recipe icewm(const QString &home) {
  return {.program = u"icewm"_s,
          .debianPackage = u"icewm"_s,
          .files = {{u".icewm/preferences"_s, R"(WorkspaceNames=" 1 "," 2 "
ClickToFocus=1
FocusOnAppRaise=0
ShowTaskBar=1
)"}},
          .variables = {{u"ICEWM_PRIVCFG"_s, home + u"/.icewm"_s}}};
}

Recipe i3(const QString &home) {
  const QString socket = home + u"/i3.sock"_s;
  return {.program = u"i3"_s,
          .debianPackage = u"i3-wm"_s,
          .arguments = {u"-c"_s, home + u"/i3.conf"_s},
          .files = {{u"i3.conf"_s,
                     "# i3 config file (v4)\n"
                     "font pango:DejaVu Sans 10\n"
                     "focus_follows_mouse no\n"
                     "ipc-socket " +
                         socket.toUtf8() + '\n'}},
          .namesWorkArea = false,
          .hasSwitcher = false,
          .tiles = true,
          .switchDesktop = {u"i3-msg"_s, u"-s"_s, socket, u"workspace"_s, u"number"_s}};
}

Recipe kwin(bool compositing) {
  const QByteArray settings = QByteArray(R"([Compositing]
Enabled=)") + (compositing ? "true" : "false") +
                              R"(
[Desktops]
Number=2
Rows=1
[Windows]
FocusPolicy=ClickToFocus
FocusStealingPreventionLevel=2
[TabBox]
ShowTabBox=false
[org.kde.kdecoration2]
library=org.kde.breeze
)";
  return {.program = u"kwin_x11"_s,
          .debianPackage = u"kwin-x11"_s,
          .files = {{u".config/kwinrc"_s, settings}},
          .variables = {{u"QT_QPA_PLATFORM"_s, u"xcb"_s}},
          .needsBus = true,
          .namesWorkArea = false};
}

}  // namespace

std::optional<Recipe> windowManagerRecipe(const QString &name, const QString &home,
                                          bool compositing) {
  if (name == "xfwm4"_L1) {
    return xfwm4(compositing);
  }
  if (name == "metacity"_L1) {
    return metacity(compositing);
  }
  if (name == "kwin_x11"_L1) {
    return kwin(compositing);
  }
  if (compositing) {
    return std::nullopt;
  }
  if (name == "openbox"_L1) {
    return openbox(home);
  }
  if (name == "icewm"_L1) {
    return icewm(home);
  }
  if (name == "i3"_L1) {
    return i3(home);
  }
  return std::nullopt;
}

}  // namespace lanternix
