#pragma once

#include "core/RunningCopy.h"
#include "core/SafetyCopies.h"

#include <QLockFile>
#include <QTimer>

/// What saves the work beside the data folder, in the user's data location under VEXT/Sicherung with one subfolder for
/// each data folder: the running copy of the open race, its rescue after a fault or a death of the program, and the
/// safety copies of all files. Nothing of it ever stops the work: what fails becomes a line for the menu.
class Safety {
public:
  /// What a run that did not end well has left behind and the files of the race do not hold.
  struct Rescue {
    RaceImage image;
    /// Where it lies as ordinary race files.
    QString folder;
    /// German: what happened, where it lies, what the operator can do.
    QString text;
  };

  /// Touches nothing yet.
  explicit Safety(Store &store);

  /// To be called once, before the menu: puts what the last run left into a folder "Rettung …" and gives it; nothing if
  /// there is no news in it. It is offered again at each start until `settle`.
  std::optional<Rescue> findRescue();
  /// Puts the rescued files over those of the race; a FileFault leaves the offer standing.
  void takeOver(const Rescue &rescue);
  /// The operator has decided; the rescue folder stays, the offer does not come again.
  void settle();

  /// Starts the running copy (every two seconds and before each save) and the safety copies (when the menu stands and
  /// after each save).
  void start();
  /// A clean end: no rescue will be offered.
  void finish();
  /// At a fault: puts the open race into a folder "Rettung …" at once and says in German what lies where. Stops the
  /// timers and the lines for the menu; never throws.
  QString rescue() noexcept;

  /// Renews the running copy if the open race has changed since; called by the timer.
  void tick();
  /// Makes a safety copy; called by the timer.
  void copyAll();

  /// Called with each new line for the menu; empty when all is well again.
  std::function<void(const QString &)> hint = [](const QString &) {};

private:
  std::optional<Rescue> lastRun();
  void stopRunning(const QString &reason);
  QString rescueFolder(const QString &parent) const;
  QString putIntoRescue(const RunningCopy::Found &found);
  QString rescueImage(const RaceImage &image);
  void tell();

  Store &m_store;
  QString m_dataFolder, m_folder;
  RunningCopy m_running;
  SafetyCopies m_copies;
  QLockFile m_lock;
  /// Whether the running copy is this run's to write.
  bool m_active = true;
  QTimer m_ticks, m_copySoon;
  QString m_runningTrouble, m_copyTrouble, m_told;
};
