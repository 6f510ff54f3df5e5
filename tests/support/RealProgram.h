#pragma once

#include <QProcessEnvironment>

/// The environment in which tests run the real program as a process of its own: safety and settings lie in `home`, and
/// a person works the screens by `steps` (see Operator.cpp). No search for leaks: it dies itself where a thread of Qt,
/// which nobody joins, is just ending, and finds those of the X libraries.
inline QProcessEnvironment realProgram(const QString &home, const QString &steps) {
  auto environment = QProcessEnvironment::systemEnvironment();
  for (const auto &[name, value] : std::initializer_list<std::pair<const char *, QString>>{
           {"XDG_DATA_HOME", home},
           {"XDG_CONFIG_HOME", home},
           {"ASAN_OPTIONS", "detect_leaks=0:verify_asan_link_order=0"},
           {"QT_QPA_PLATFORM", "offscreen"},
           {"QT_QPA_GENERIC_PLUGINS", "operator"},
           {"QT_PLUGIN_PATH", VEXT_PLUGINS},
           {"OPERATOR_STEPS", steps}})
    environment.insert(name, value);
  return environment;
}
