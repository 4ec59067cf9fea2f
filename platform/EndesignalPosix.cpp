#include <sys/signalfd.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <csignal>

#include "platform/Endesignal.h"

namespace vesk {

namespace {

sigset_t Endesignale() {
  sigset_t signale;
  sigemptyset(&signale);
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaddset(&signale, signal);
  return signale;
}

}  // namespace

Endesignal::Endesignal(QObject* eltern) : QObject(eltern) {
  const sigset_t signale = Endesignale();
  sigprocmask(SIG_BLOCK, &signale, nullptr);
  kanal_ = signalfd(-1, &signale, SFD_CLOEXEC | SFD_NONBLOCK);
  if (kanal_ < 0) {
    sigprocmask(SIG_UNBLOCK, &signale, nullptr);
  }
}

void Endesignal::Lauschen() {
  qGuiApp->installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Endesignal::angekuendigt,
          Qt::DirectConnection);
  if (kanal_ < 0) return;
  auto* melder = new QSocketNotifier(kanal_, QSocketNotifier::Read, this);
  connect(melder, &QSocketNotifier::activated, this, [this] {
    signalfd_siginfo signal{};
    while (read(kanal_, &signal, sizeof signal) == sizeof signal) Q_EMIT verlangt();
  });
}

Endesignal::~Endesignal() {
  if (kanal_ >= 0) close(kanal_);
  const sigset_t signale = Endesignale();
  sigprocmask(SIG_UNBLOCK, &signale, nullptr);
}

}  // namespace vesk
