#pragma once

#include "platform/qt/ElidedLabel.h"

/// The quiet line at the foot of a screen. It keeps its room when it is empty, so that nothing moves when it fills.
class HintLine : public ElidedLabel {
  Q_OBJECT

public:
  explicit HintLine(QWidget *parent = nullptr);
  /// An empty text leaves the line blank.
  void setHint(const QString &text);
};
