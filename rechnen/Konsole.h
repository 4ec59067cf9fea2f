#pragma once
#ifdef _WIN32
#include <windows.h>
#endif

namespace vesk {

/// The terminal shows UTF-8 as long as this lives; on Windows it has to be told.
class Konsole {
#ifdef _WIN32
 public:
  Konsole() {
    SetConsoleOutputCP(CP_UTF8);
  }
  Konsole(const Konsole&) = delete;
  Konsole& operator=(const Konsole&) = delete;
  ~Konsole() {
    SetConsoleOutputCP(vorher_);
  }

 private:
  UINT vorher_ = GetConsoleOutputCP();
#endif
};

}  // namespace vesk
