#include "loggerlauf.h"

#include <signal.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>

#include "konsole.h"

namespace polarkreis::cli {

namespace {

constexpr std::array<int, 2> kSignale{SIGINT, SIGTERM};
constexpr const char* kZeile_loeschen = "\r\x1b[K";

sigset_t endesignale() {
  sigset_t menge{};
  sigemptyset(&menge);
  for (int signal : kSignale) sigaddset(&menge, signal);
  // A run that was started to outlive its terminal does so: a blocked signal would reach it.
  struct sigaction stand {};
  if (::sigaction(SIGHUP, nullptr, &stand) == 0 && stand.sa_handler != SIG_IGN)
    sigaddset(&menge, SIGHUP);
  return menge;
}

struct Wert_mit_Name {
  int spalte;
  const char* name;
  const char* einheit;
};
constexpr std::array<Wert_mit_Name, 9> kLebend{{{Spalte::p0, "p0 ", " bar"},
                                                {Spalte::t0, "t0 ", " °C"},
                                                {Spalte::pc, "pc ", " bar"},
                                                {Spalte::tc, "tc ", " °C"},
                                                {Spalte::dT_sh, "sh ", " K"},
                                                {Spalte::dT_sc, "sc ", " K"},
                                                {Spalte::P_el, "P ", " kW"},
                                                {Spalte::Qo_COP, "Qo ", " kW"},
                                                {Spalte::EER_1, "EER ", ""}}};

std::string zeile_von(const Messtabelle& tabelle) {
  std::string text = tabelle.text(Messtabelle::Erste, Spalte::Zeit);
  for (const Wert_mit_Name& w : kLebend)
    text += "  " + std::string(w.name) + tabelle.text(Messtabelle::Erste, w.spalte) + w.einheit;
  return sichtbar(text);
}

}  // namespace

Loggerlauf::Loggerlauf(bool still) : still_(still), terminal_(::isatty(STDERR_FILENO) == 1) {}

Loggerlauf::~Loggerlauf() {
  beenden();
}

void Loggerlauf::beginnen(DiaGnostic& diagnose, Messuhr& uhr) {
  diagnose_ = &diagnose;
  uhr_ = &uhr;
  const sigset_t signale = endesignale();
  ::pthread_sigmask(SIG_BLOCK, &signale, nullptr);
}

void Loggerlauf::beenden() {
  if (diagnose_ == nullptr) return;
  diagnose_ = nullptr;
  uhr_->eilig = false;
  signale_freigeben();
  if (gezeigt_) std::fputs(kZeile_loeschen, stderr);
  gezeigt_ = false;
}

void Loggerlauf::signale_freigeben() {
  const sigset_t signale = endesignale();
  ::pthread_sigmask(SIG_UNBLOCK, &signale, nullptr);
}

// A signal waits until it is asked for here; from then on the next one ends the program.
void Loggerlauf::Ereignisse() {
  if (diagnose_ == nullptr || diagnose_->logger.Mess_laeuft == 0) return;
  const sigset_t signale = endesignale();
  const timespec sofort{};
  if (::sigtimedwait(&signale, nullptr, &sofort) < 0) return;
  diagnose_->logger.Start_Butt1(Logger::Messen);
  uhr_->eilig = true;
  signale_freigeben();
}

// On a terminal one line is rewritten; elsewhere each row is a line of its own.
void Loggerlauf::Messwert() {
  ++messwerte_;
  const std::string zeile = zeile_von(diagnose_->messung.DiaSpread);
  if (terminal_) {
    std::fprintf(stderr, "%s%s", kZeile_loeschen, zeile.c_str());
    std::fflush(stderr);
    gezeigt_ = true;
  } else if (!still_) {
    std::printf("%s\n", zeile.c_str());
    std::fflush(stdout);
  }
}

}  // namespace polarkreis::cli
