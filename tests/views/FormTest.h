#pragma once

#include "support/FakeFileChooser.h"
#include "support/WaitUntil.h"
#include "views/ViewTest.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <memory>

namespace lanternix {

/// A test of forms, whose parts are found by what a person reads or hears of them.
class FormTest : public ViewTest {
 protected:
  FakeFileChooser fileChooser;

  /// The shown widget of a type that is called so; null when there is none.
  template <typename Widget>
  static Widget *named(const QWidget &parent, const QString &name) {
    for (Widget *widget : parent.findChildren<Widget *>()) {
      if (widget->accessibleName() == name && widget->isVisibleTo(&parent)) {
        return widget;
      }
    }
    return nullptr;
  }

  static QAbstractButton *button(const QWidget &parent, const QString &text) {
    for (QAbstractButton *candidate : parent.findChildren<QAbstractButton *>()) {
      if (candidate->text() == text && candidate->isVisibleTo(&parent)) {
        return candidate;
      }
    }
    return nullptr;
  }

  /// Every text that is shown, from top to bottom.
  static QStringList texts(const QWidget &parent) {
    QList<QLabel *> labels = parent.findChildren<QLabel *>();
    labels.removeIf([&parent](const QLabel *label) {
      return !label->isVisibleTo(&parent) || label->text().isEmpty();
    });
    std::stable_sort(labels.begin(), labels.end(), [&parent](const QLabel *a, const QLabel *b) {
      return a->mapTo(&parent, QPoint()).y() < b->mapTo(&parent, QPoint()).y();
    });
    QStringList result;
    for (const QLabel *label : labels) {
      result.append(label->text());
    }
    return result;
  }

  /// The dialog over \p window; null when there is none. \p window is not a dialog over itself.
  static QDialog *dialogOver(const QWidget &window) {
    for (QDialog *dialog : window.findChildren<QDialog *>()) {
      if (dialog->isVisible()) {
        return dialog;
      }
    }
    return nullptr;
  }

  /// Gives \p window the keyboard, which a platform without a window manager does not do by itself.
  static void activate(QWidget &window) {
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
  }

  static void present(QWidget &window) {
    window.show();
    activate(window);
  }

  static void press(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget *focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window, key, modifiers);
  }

  static void type(QWidget &window, const QString &text) {
    QTest::keyClicks(window.focusWidget(), text);
  }
};

}  // namespace lanternix
