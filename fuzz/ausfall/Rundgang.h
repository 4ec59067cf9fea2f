#pragma once

class QString;

namespace vesk::ausfall {

/// The program with its own boxes, dialogs and store: is started, takes up what a crash has left, calculates,
/// shows every window, draws and prints, saves to the directory and to files chosen in the one beside it
/// ("gewaehlt"), opens files of every kind from there, and ends. Returns its exit code; 1 also when something
/// of that has not come about.
int Rundgehen(const QString& verzeichnis);

}  // namespace vesk::ausfall
