#pragma once

#include "support/StoreFixture.h"

#include <gtest/gtest.h>

namespace lanternix {

/// A test of views over a real store.
class ViewTest : public testing::Test, public StoreFixture {};

}  // namespace lanternix
