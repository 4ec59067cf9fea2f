#pragma once
#include <QObject>

namespace vesk {

/// Logging out, shutting down and Ctrl+C ask a program to end, by a signal or as the desktop does it. It
/// becomes an event here, so that the program can save first. Must be created before any other thread starts,
/// so before the application.
class Endesignal : public QObject {
  Q_OBJECT
 public:
  explicit Endesignal(QObject* eltern = nullptr);
  ~Endesignal() override;
  /// Call once when there is an event loop.
  void Lauschen();

 Q_SIGNALS:
  void verlangt();
  /// The desktop is about to end its programs and may do so without another word, or not at all.
  void angekuendigt();

 protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;

 private:
#ifndef _WIN32
  int kanal_;
#endif
};

}  // namespace vesk
