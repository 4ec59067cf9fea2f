#pragma once

class QString;

namespace vesk::ausfall {

/// Types and saves in `verzeichnis` until the process is killed.
[[noreturn]] void Sichern(const QString& verzeichnis);

/// Kills such a process `anzahl` times, each at a random moment, and looks at the file and at the copy for a
/// crash. False: one was not whole.
bool Toeten(const char* programm, int anzahl, unsigned int seed);

}  // namespace vesk::ausfall
