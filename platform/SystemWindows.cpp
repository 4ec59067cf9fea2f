#include "platform/System.h"

namespace vesk {

void SchreibgrenzenAlsFehler() {}  // They are errors.

bool BildschirmVorhanden() {
  return true;
}

}  // namespace vesk
