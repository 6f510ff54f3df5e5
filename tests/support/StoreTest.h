#pragma once

#include "support/Print.h"
#include "support/TestStore.h"

#include <gtest/gtest.h>

/// A test with a store of its own.
struct StoreTest : testing::Test {
  TestStore test;
  Store &store = test.store;
};

/// The same with one race, which is open.
struct RaceTest : StoreTest {
  RaceTest() { test.addRace("Rennen"); }
};
