#pragma once

#include <functional>

class Printers;
class QWidget;

/// Runs the printing of documents with the busy pointer. A printer that fails ends the run and is reported to the
/// operator, who may then try another one; every other fault goes on.
void runPrinting(QWidget *screen, Printers &printers, const std::function<void()> &documents);
