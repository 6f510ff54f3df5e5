#include "platform/CommandLine.h"

CommandLine CommandLine::read(const QStringList &arguments) {
  CommandLine line;
  for (int i = 0; i < arguments.size(); ++i) {
    const QString &argument = arguments[i];
    if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h"))
      line.wantsHelp = true;
    else if (argument == QStringLiteral("--version"))
      line.wantsVersion = true;
    else if (argument == QStringLiteral("--auswahl"))
      line.choose = true;
    else if (argument == QStringLiteral("--organisation") && i + 1 < arguments.size())
      line.organisation = arguments[++i];
    else if (!argument.startsWith(QLatin1Char('-')) && line.folder.isEmpty())
      line.folder = argument;
    else if (line.mistake.isEmpty())
      line.mistake = argument;
  }
  return line;
}

QString CommandLine::help() {
  return QStringLiteral("Aufruf: vext [Optionen] [Mappe]\n\n"
                        "Das Rennbüro für Vereinsrennen. Ohne Mappe arbeitet VEXT in dem Ordner, in dem es gestartet "
                        "wird.\n\n"
                        "  --auswahl            fragt, mit welcher Veranstaltungsmappe gearbeitet wird\n"
                        "  --organisation NAME  Name des Veranstalters, für diese Mappe gemerkt\n"
                        "  --version            zeigt die Version und endet\n"
                        "  -h, --help           zeigt diese Hilfe und endet\n");
}
