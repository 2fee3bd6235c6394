#include "Platform/LoginItem.h"
#include "Utilities/LoginItemHelper.h"

#include <gtest/gtest.h>

namespace lanternix {
namespace {

/// A desktop whose record refuses every change, or none.
class FakeLoginItem : public LoginItem {
 public:
  Status status() const override { return isOn ? Status::enabled : Status::notRegistered; }
  std::optional<QString> registerItem() override { return set(true); }
  std::optional<QString> unregisterItem() override { return set(false); }

  bool isOn = false;
  std::optional<QString> error;

 private:
  std::optional<QString> set(bool on) {
    isOn = error ? isOn : on;
    return error;
  }
};

class LoginItemHelperTest : public testing::Test {
 protected:
  /// What is written to standard output meanwhile.
  std::string outputOfSetting(bool enabled) {
    testing::internal::CaptureStdout();
    LoginItemHelper::setEnabled(item, enabled);
    return testing::internal::GetCapturedStdout();
  }

  FakeLoginItem item;
};

TEST_F(LoginItemHelperTest, SetEnabled_RegistersAndUnregistersInSilence) {
  EXPECT_EQ(outputOfSetting(true), "");
  EXPECT_EQ(item.status(), LoginItem::Status::enabled);
  EXPECT_EQ(outputOfSetting(false), "");
  EXPECT_EQ(item.status(), LoginItem::Status::notRegistered);
}

TEST_F(LoginItemHelperTest, AFailedRegistration_IsOneLineOnStandardOutput) {
  item.error = QStringLiteral("the disk is full");
  EXPECT_EQ(outputOfSetting(true), "Login item error: the disk is full\n");
  EXPECT_EQ(item.status(), LoginItem::Status::notRegistered);
}

TEST_F(LoginItemHelperTest, AFailedUnregistration_IsOneLineOnStandardOutput) {
  item.isOn = true;
  item.error = QStringLiteral("100 % of it");
  EXPECT_EQ(outputOfSetting(false), "Login item error: 100 % of it\n");
  EXPECT_EQ(item.status(), LoginItem::Status::enabled);
}

TEST_F(LoginItemHelperTest, WithoutLoginItems_OnlyTheRegistrationFails) {
  NullLoginItem none;
  EXPECT_TRUE(none.registerItem().has_value());
  EXPECT_FALSE(none.unregisterItem().has_value());
  EXPECT_EQ(none.status(), LoginItem::Status::notRegistered);
}

}  // namespace
}  // namespace lanternix
