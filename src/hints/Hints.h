#pragma once

#include "hints/Situation.h"

#include <span>

/// A hint: the trap that it tells, as the handbook calls it, where and when it stands, and its rule.
struct HintRule {
  const char *name;
  /// Object names, apart by blanks.
  const char *screens;
  const char *moment;
  Hint (*rule)(const Situation &);
};

/// All hints of the program. On a screen with several those of a moment go first, then the first of this list.
std::span<const HintRule> hintRules();

/// The hints that stand on a screen now. They change nothing and never end the program.
class HintBook {
public:
  explicit HintBook(const Store &store) : m_store(store) {}
  QList<Hint> of(const QString &screen, const ShownValues &shown);

private:
  const Store &m_store;
  RaceGlances m_races;
};
