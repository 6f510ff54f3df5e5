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

// Deaths, errors and power cuts in the sessions, each third one with a second death in the start after it.
TEST(Drill, ASampleOfMishapsLosesNothing) {
  std::vector<Drill> drills(sessions().begin(), sessions().end());
  std::vector<std::pair<const Drill *, Case>> cases;
  for (const auto &drill : drills) {
    ASSERT_EQ(drill.trouble(), QString());
    for (const auto &what : drill.cases())
      cases.emplace_back(&drill, what);
  }
  const unsigned chosen = seed();
  std::cout << "VEXT_SEED=" << chosen << ", one of " << cases.size() << " mishaps after the other\n";
  std::mt19937 random(chosen);
  std::shuffle(cases.begin(), cases.end(), random);
  QElapsedTimer time;
  time.start();
  for (size_t i = 0; i < cases.size() && time.elapsed() < SampleTime; ++i) {
    auto &[drill, what] = cases[i];
    if (i % 3 == 0)
      what.second = {1 + int(random() % CallsOfAStart), "kill"};
    const Findings findings = drill->run(what);
    EXPECT_EQ(findings.all(), QStringList()) << findings.account.toStdString();
  }
}

TEST(Drill, TypingNeverWaitsForTheDisk) {
  EXPECT_LT(Drill(sessions().front()).slowestTyping(SyncDelay), SyncDelay);
}
