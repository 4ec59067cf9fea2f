#pragma once

/// The library that lets system calls fail: linked into a program or preloaded. A preloaded one reads its
/// order from the environment: AUSFALL="kind number error", AUSFALL_ORT the directory; the file
/// AUSFALL_BERICHT comes into being when the call has been reached.
///
/// Kinds: oeffnen, schreiben, fsync, umbenennen, schliessen, verzeichnis (reading it) fail once; kurz writes
/// half of what it was given, as it may; voll does so and from then on writes nothing.
extern "C" {
/// The call number `nummer` (from 1) of this kind on something below the directory `ort` fails with this
/// errno number. An empty kind: none does.
void AusfallStellen(const char* ruf, int nummer, int fehler, const char* ort);
/// Calls of the kind since then.
int AusfallGezaehlt();
}
