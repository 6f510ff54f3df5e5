#pragma once

#include "platform/DiskWorker.h"
#include "platform/System.h"
#include "safety/Journal.h"
#include "safety/RunningCopy.h"
#include "safety/SafetyCopies.h"
#include "safety/SafetyFolder.h"

#include <QTimer>

#include <atomic>

/// What saves the work beside the data folder, in the user's data location under VEXT/Sicherung with one subfolder for
/// each data folder: the running copy of the work, its rescue after a fault or a death of the program, and the safety
/// copies of all files; and the journal, which lies in the data folder. It writes in threads of disk workers. Nothing
/// of it ever stops the work: what fails becomes a line for the screens.
class Safety {
public:
  /// A question before the menu: what was found, and what each answer does. Without a second answer it only tells.
  struct Offer {
    QString text, accept, decline;
    /// A FileFault leaves the offer standing.
    std::function<void()> accepted, declined;
  };

  /// Touches nothing yet.
  Safety(Store &store, DiskWorker &worker);
  /// Waits for the worker.
  ~Safety();
  Q_DISABLE_COPY(Safety)

  /// To be called first: takes the data folder for this run. False if VEXT runs in it already; then all below does
  /// nothing but tell so.
  bool claim();
  /// What runs that did not end well have left behind and the files do not hold; it lies in a folder "Rettung …" now.
  /// An offer comes again at each start until it is answered; each is made after the answer to the one before it.
  void offerLeftBehind(const std::function<void(const Offer &)> &ask);
  /// Where Vext.dat was cut off: the counts of the newest safety copy.
  std::optional<Offer> lostCounts();

  /// Starts the running copy (every two seconds and before each save) and the safety copies (when the menu stands and
  /// after each save).
  void start();
  /// A clean end: what was written is brought to the disk, then no rescue will be offered. A Fault if the disk refuses.
  void finish();
  /// At a fault: puts the work into a folder "Rettung …" at once and says in German what lies where. Stops the timers
  /// and the lines for the screens; never throws.
  QString rescue() noexcept;

  /// Renews the running copy and adds to the journal if the work has changed since; called by the timer.
  void tick();
  /// Makes a safety copy; called by the timer.
  void copyAll();
  /// Waits for the disk worker and tells what came of its work.
  void wait();

  /// Called with each new line for the screens; empty when all is well again.
  std::function<void(const QString &)> hint = [](const QString &) {};
  /// The same of the journal, which only the menu tells.
  std::function<void(const QString &)> journalHint = [](const QString &) {};
  /// Waits for the disk worker before a save; the program shows the busy pointer meanwhile.
  std::function<void()> waitAtSave;
  /// What open screens would write if they closed now, and the note of fields not yet left.
  std::function<QList<SavedFile>()> screens = [] { return QList<SavedFile>(); };

private:
  /// Trouble of one kind of copy: written by the worker, told by the screens.
  struct Trouble {
    std::mutex guard;
    QString text;
    void set(const QString &now);
    QString get();
  };

  void listenToWrites();
  void addToJournal();
  void finishJournal() noexcept;
  void copyBeforeSave();
  void beginReplacing(const RaceImage &image);
  void endReplacing();
  void write(const RaceImage &image);
  void keepCopying(DiskWorker &worker, std::atomic<bool> &inWork, Trouble &trouble, const QString &what,
                   std::function<void()> copy);
  QList<RunningCopy::Found> leftBehind();
  std::optional<Offer> offerFor(const RunningCopy::Found &found);
  Offer offerReplaced(const RunningCopy::Found &found);
  Offer offerWork(const RunningCopy::Found &found, const QList<SavedFile> &news);
  void settle(const RunningCopy::Found &found);
  void stopBefore(const Fault &fault);
  void stopRunning(const QString &reason);
  QString putIntoRescue(const RunningCopy::Found &found);
  QString rescueWork();
  QString rescueImage(const RaceImage &image);
  void clearRunning();
  void forgetFailures();
  void tell();
  static void tellOnce(const QString &line, QString &told, const std::function<void(const QString &)> &hint);

  Store &m_store;
  DiskWorker &m_worker;
  /// Makes the safety copies, which may take long, and keeps no running copy waiting.
  DiskWorker m_copier;
  /// Writes the journal, so that it keeps nobody waiting.
  DiskWorker m_writer;
  Journal m_journal;
  SafetyFolder m_folder;
  RunningCopy m_running;
  SafetyCopies m_copies;
  System::Lock m_lock;
  /// Whether no other VEXT runs in the data folder.
  bool m_alone = true;
  /// Whether the running copy is this run's to write.
  bool m_active = true;
  /// Whether a race is being written as a whole new one; its copy must stand until that is done.
  bool m_replacing = false;
  /// The image handed to the worker last; nothing after a failure.
  std::optional<RaceImage> m_handed;
  std::atomic<bool> m_runningInWork = false, m_copyInWork = false, m_journalInWork = false;
  /// What the program does with written files, while the journal hears of them too.
  std::function<void(const QStringList &)> m_syncSoon;
  QTimer m_ticks, m_copySoon;
  Trouble m_runningTrouble, m_copyTrouble, m_journalTrouble;
  QString m_refusal, m_told, m_journalTold;
};
