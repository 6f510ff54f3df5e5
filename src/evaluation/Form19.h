#pragma once

#include "core/Store.h"
#include "platform/qt/Screen.h"

#include <memory>

namespace Ui {
class Form19;
}

/// Generates a race out of the summed times of several.
///
/// `Label3` tells the rule. In `List1` the races are marked; `Label2` is the number of the race to be generated,
/// `Command2` generates it from two marked races on and closes, `Command1` closes without doing anything.
class Form19 : public Screen {
  Q_OBJECT

public:
  Form19(Desk &desk, Store &store);
  ~Form19() override;

Q_SIGNALS:
  /// Form13 is to be shown as a sign of work, and taken away again.
  void workBegun();
  void workEnded();
  /// The race is generated and is the open one; the race register is to be closed together with this screen.
  void raceGenerated();

private:
  void generate();

  Store &m_store;
  std::unique_ptr<Ui::Form19> ui;
};
