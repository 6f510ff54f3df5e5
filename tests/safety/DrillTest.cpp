#include "safety/Drill.h"

#include "support/Print.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

// The whole is run by tools/faults.

namespace {

constexpr int SampleTime = 30'000; // milliseconds
constexpr int SyncDelay = 300;
constexpr int CallsOfAStart = 100;

unsigned seed() {
  bool given = false;
  const unsigned chosen = qEnvironmentVariable("VEXT_SEED").toUInt(&given);
  return given ? chosen : std::random_device()();
}

} // namespace

// Deaths and errors in turn, for there are many more errors; each third one with a second death in the start after it.
TEST(DrillTest, ASampleOfMishapsLosesNothing) {
  const std::vector<Drill> drills(sessions().begin(), sessions().end());
  std::vector<std::pair<const Drill *, Case>> kinds[2];
  for (const auto &drill : drills) {
    ASSERT_EQ(drill.trouble(), QString());
    for (const auto &what : drill.cases())
      kinds[what.first.isDeath()].emplace_back(&drill, what);
  }
  const unsigned chosen = seed();
  std::mt19937 random(chosen);
  for (auto &kind : kinds)
    std::shuffle(kind.begin(), kind.end(), random);
  QElapsedTimer time;
  time.start();
  size_t runs = 0;
  for (; time.elapsed() < SampleTime; ++runs) {
    auto &kind = kinds[runs % 2];
    auto [drill, what] = kind[runs / 2 % kind.size()];
    if (runs % 3 == 0)
      what.second = {1 + int(random() % CallsOfAStart), "kill"};
    const Findings findings = drill->run(what);
    EXPECT_EQ(findings.all(), QStringList()) << findings.account.toStdString();
  }
  std::cout << "VEXT_SEED=" << chosen << ", " << runs << " runs\n";
}

TEST(DrillTest, TypingNeverWaitsForTheDisk) {
  EXPECT_LT(Drill(sessions().front()).slowestTyping(SyncDelay), SyncDelay);
}
