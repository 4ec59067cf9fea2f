#pragma once

/// What the start of the program has to settle with the operating system.
namespace vesk {

/// Call first. A limit on the size of files must let a save fail, not end the program with the data in it.
void SchreibgrenzenAlsFehler();
/// Whether windows have somewhere to appear.
bool BildschirmVorhanden();

}  // namespace vesk
