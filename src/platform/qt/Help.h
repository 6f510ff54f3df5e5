#pragma once

#include "platform/qt/AboutDialog.h"

#include <memory>

class HelpWindow;

/// F1: opens the handbook at the page of the window that has the focus, in a window of its own beside all screens.
class Help : public QObject {
  Q_OBJECT

public:
  explicit Help(AboutDialog::Facts facts);
  ~Help() override;

  /// Opens it at the page for a screen, by its object name.
  void open(const QString &screen);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  HelpWindow &window();

  AboutDialog::Facts m_facts;
  std::unique_ptr<HelpWindow> m_window;
};
