#pragma once

#include <QApplication>

/// The application of the program: an exception out of any event handler ends in the fault report.
class Application : public QApplication {
public:
  using QApplication::QApplication;

  bool notify(QObject *receiver, QEvent *event) override;
};
