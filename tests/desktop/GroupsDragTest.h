#pragma once

#include "desktop/SettingsFlowTest.h"

namespace lanternix {

/// A test of the Groups tab over two groups, with a hand that drags.
class GroupsDragTest : public SettingsFlowTest {
 protected:
  /// Two groups, of which the first one's items are in sight.
  void openTwoGroups() {
    SampleGroups groups;
    groups.group(QStringLiteral("Work"))
        .link(QStringLiteral("Report"), QStringLiteral("https://example.org/1"));
    groups.link(QStringLiteral("Notes"), QStringLiteral("https://example.org/2"));
    groups.link(QStringLiteral("Plan"), QStringLiteral("https://example.org/3"));
    groups.group(QStringLiteral("Home"));
    openSettings(groups);
    select(QStringLiteral("Work"));
  }

  /// Where something is dragged to, and the place on the screen whose picture changes when it would
  /// be taken there. The picture of a dragged row hides what is at the right of the pointer.
  struct Goal {
    QPoint place;
    QRect mark;
  };

  /// Where a row is taken hold of.
  QPoint grip(const QString &name) {
    const QRect area = reader.geometry(row(name));
    return {area.left() + 30, area.center().y()};
  }
  /// The row itself, which lights up.
  Goal onto(const QString &name) {
    const QRect area = reader.geometry(row(name));
    return {area.center(), QRect(area.left() + 10, area.top() + 4, 30, area.height() - 8)};
  }
  /// The gap above the row, where a line appears.
  Goal above(const QString &name) {
    const QRect area = reader.geometry(row(name));
    return {area.topLeft() + QPoint(90, 4), QRect(area.left() + 4, area.top(), 30, 5)};
  }

  void drag(QPoint from, const Goal &goal) {
    dragAndHold(from, goal);
    input().releaseButton();
  }
  void dragAndHold(QPoint from, const Goal &goal) {
    int trembling = 0;
    const auto hover = [&](QPoint place) { input().moveTo(place + QPoint(++trembling % 2, 0)); };
    const QImage before = settingsAt(goal.mark);
    input().moveTo(from);
    input().pressButton();
    constexpr QPoint beyond(0, 15);
    require(QStringLiteral("the drag to begin"), [&] {
      hover(from + beyond);
      return isDragging();
    });
    require(QStringLiteral("the target to show itself"), [&] {
      hover(goal.place);
      program().settle();
      return settingsAt(goal.mark) != before;
    });
  }

  /// Whether anybody on the display drags anything.
  bool isDragging() {
    const XConnection &connection = session().windows().connection();
    const XReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, connection.atom("XdndSelection")),
        nullptr));
    return reply && reply->owner != XCB_NONE;
  }
  /// The settings' picture at \p area of the screen.
  QImage settingsAt(const QRect &area) {
    const QRect place = session().windows().geometry(settings());
    return session().windows().grab(settings()).copy(area.translated(-place.topLeft()));
  }
};

}  // namespace lanternix
