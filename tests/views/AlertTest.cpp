#include "Views/Controls/Alert.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>
#include <memory>

namespace lanternix {

namespace {

using namespace Qt::StringLiterals;

class AlertTest : public testing::Test {
 protected:
  QDialog *ask() {
    return Alert{.title = u"Delete?"_s, .message = {}, .destructiveAction = u"Delete"_s}.show(
        owner.get(), [this] { ++confirmations; });
  }

  QWidget window;
  std::unique_ptr<QWidget> owner = std::make_unique<QWidget>(&window);
  int confirmations = 0;
};

}  // namespace

TEST_F(AlertTest, LiesOverTheWindowOfItsOwner) {
  EXPECT_EQ(ask()->parentWidget(), &window);
}

TEST_F(AlertTest, TellsItsOwnerOfTheConfirmation) {
  ask()->accept();
  EXPECT_EQ(confirmations, 1);
  ask()->reject();
  EXPECT_EQ(confirmations, 1);
}

TEST_F(AlertTest, WhoseOwnerIsGone_TellsNobody) {
  QDialog *dialog = ask();
  owner.reset();
  dialog->accept();
  EXPECT_EQ(confirmations, 0);
}

}  // namespace lanternix
