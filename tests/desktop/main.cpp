#include <QtCore/QCoreApplication>

#include <gtest/gtest.h>

// The driver has no window and no connection to a display of its own: it acts on the session under
// test from outside, as a person would.
int main(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
