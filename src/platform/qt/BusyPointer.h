#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the busy pointer as long as it lives.
struct BusyPointer {
  BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
  Q_DISABLE_COPY(BusyPointer)
};
