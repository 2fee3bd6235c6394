#pragma once

#include <gtest/gtest.h>

#include "support/StoreFixture.h"

namespace lanternix {

/// A test of views over a real store.
class ViewTest : public testing::Test, public StoreFixture {};

}  // namespace lanternix
