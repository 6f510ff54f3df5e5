#pragma once

#include <QString>

#include <functional>

/// How the program ends on a fault: what lives only in memory is rescued, a German report says what happened and what
/// was saved where (on the screen and on stderr), and the process ends at once with a code that is not 0, without
/// destructors or closing steps, which would save a broken state.
namespace FaultReport {

/// Exit codes: a fault; a fault while reporting one; an exception that nothing could catch.
enum Code { Reported = 70, WhileReporting = 71, Terminated = 72 };

/// Sets the last resort (std::terminate) and what saves the work: `rescue` says in German what lies where; it must not
/// throw and must outlive the program's screens. A file that reaches a size limit is from now on an error of the write,
/// not a signal.
void install(std::function<QString()> rescue);

/// Reports the exception being handled; to be called inside a catch block.
[[noreturn]] void reportCurrent();

} // namespace FaultReport
