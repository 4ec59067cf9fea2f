#pragma once

class QString;

namespace vesk::ausfall {

/// The program with its own boxes, dialogs and store: is started, calculates, shows every window, saves to
/// the directory and to files chosen in the one beside it ("gewaehlt"), and ends. Returns its exit code; 1
/// also when a file is missing.
int Rundgehen(const QString& verzeichnis);

}  // namespace vesk::ausfall
