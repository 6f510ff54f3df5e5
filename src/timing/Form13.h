#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form13;
}

/// "vorläufiges Ergebnis": the listing that the last ranking left, beside the timing screen and, as a sign of work,
/// while the ranking runs for others. `List2` holds the listing, a click does nothing; `Command1` closes.
class Form13 : public Screen {
  Q_OBJECT

public:
  Form13(Desk &desk, const Store &store);
  ~Form13() override;

  /// Shows the listing as the ranking left it now.
  void showListing();

private:
  std::unique_ptr<Ui::Form13> ui;
  const Store &m_store;
};
