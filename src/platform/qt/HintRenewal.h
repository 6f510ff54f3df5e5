#pragma once

#include "platform/Hint.h"

#include <QObject>
#include <QTimer>

#include <functional>

/// Renews the hints of all visible screens when the program is idle after the operator has done something: once for any
/// number of keys and clicks, and never between a key and the picture that answers it.
class HintRenewal : public QObject {
  Q_OBJECT

public:
  HintRenewal();

  /// The hints of a screen, by its object name; the most pressing first. They change nothing.
  std::function<QList<Hint>(const QString &screen, const ShownValues &shown)> rules;
  /// At once.
  void renew();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  QTimer m_idle;
};

/// What the controls of a screen show now.
ShownValues shownValues(const QWidget &screen);
