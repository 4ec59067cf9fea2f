#pragma once

/// What the start of the program has to settle with the operating system.
namespace vesk {

/// Call first. A limit on the size of files must let a save fail, not end the program with the data in it.
void SchreibgrenzenAlsFehler();
/// Call before the toolkit starts. Where the user has no session bus it would start one, and with it
/// processes that outlive the program.
void KeinenBusStarten();
/// Whether windows have somewhere to appear.
bool BildschirmVorhanden();

}  // namespace vesk
