#pragma once

#include "platform/qt/BusyPointer.h"

/// Long work: shows the busy pointer as long as it lives, and drops the clicks and keys that were gathered meanwhile,
/// as the operator did not see what they would hit.
struct BusyTime {
  BusyTime() = default;
  ~BusyTime();
  Q_DISABLE_COPY(BusyTime)

private:
  BusyPointer m_pointer;
};
