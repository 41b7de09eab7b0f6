#include "konsole.h"

#include <unistd.h>

#include <cstdio>
#include <string>

#include "shell/text.h"

namespace polarkreis::cli {

namespace {

constexpr const char* kZeile_loeschen = "\r\x1b[K";
constexpr std::string_view kAuslassung = "...";

/// How much is kept of a text that is too long: from its beginning, and from its end.
struct Laenge {
  std::size_t vorn, hinten;
};
constexpr Laenge kWort{50, 7}, kZeile{700, 297};

std::string_view letzte_zeichen(std::string_view text, std::size_t n) {
  constexpr unsigned char Folgebyte = 0x80, Maske = 0xc0;
  std::size_t ort = text.size();
  while (n > 0 && ort > 0)
    if ((static_cast<unsigned char>(text[--ort]) & Maske) != Folgebyte) --n;
  return text.substr(ort);
}

std::string mitte_gekuerzt(std::string_view text, Laenge bleibt) {
  if (zeichenzahl(text) <= bleibt.vorn + kAuslassung.size() + bleibt.hinten)
    return std::string(text);
  std::string kurz(erste_zeichen(text, bleibt.vorn));
  kurz += kAuslassung;
  kurz += letzte_zeichen(text, bleibt.hinten);
  return kurz;
}

// A path is left whole: it must be found.
std::string woerter_gekuerzt(std::string_view zeile) {
  std::string kurz;
  while (!zeile.empty()) {
    const std::string_view wort = zeile.substr(0, zeile.find(' '));
    const bool pfad = wort.find_first_of("/\\") != std::string_view::npos;
    kurz += pfad ? std::string(wort) : mitte_gekuerzt(wort, kWort);
    zeile.remove_prefix(wort.size());
    if (zeile.empty()) break;
    kurz += ' ';
    zeile.remove_prefix(1);
  }
  return kurz;
}

// Line ends around and inside a box's text would tear the message apart.
std::string einzeilig(std::string_view text) {
  std::string zeile;
  for (char c : text) {
    const bool leerraum = c == '\r' || c == '\n' || c == '\t' || c == ' ';
    if (!leerraum)
      zeile += c;
    else if (!zeile.empty() && zeile.back() != ' ')
      zeile += ' ';
  }
  return std::string(rechts_getrimmt(zeile));
}

}  // namespace

std::string sichtbar(std::string_view text) {
  constexpr unsigned char Loeschzeichen = 0x7f, Vorbyte = 0xc2, Ende_C1 = 0xa0;
  const std::string utf8 = als_utf8(std::string(text));
  std::string ergebnis;
  ergebnis.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    const auto naechstes = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : ' ');
    // The control characters above ASCII have two bytes.
    const bool C1 = c == Vorbyte && naechstes < Ende_C1;
    if (C1) ++i;
    ergebnis += C1 || c < ' ' || c == Loeschzeichen ? '?' : static_cast<char>(c);
  }
  return ergebnis;
}

std::string gekuerzt(std::string_view text, std::size_t zeichen) {
  if (zeichenzahl(text) <= zeichen) return std::string(text);
  return std::string(erste_zeichen(text, zeichen - kAuslassung.size())).append(kAuslassung);
}

void melde(std::string_view text) {
  const std::string ganz = woerter_gekuerzt(sichtbar(einzeilig(text)));
  const std::string zeile = "polarkreis-cli: " + mitte_gekuerzt(ganz, kZeile) + "\n";
  std::fputs(zeile.c_str(), stderr);
}

void Konsolendialog::zeige(std::string_view text, std::string_view /*titel*/, Symbol /*symbol*/) {
  melde(text);
}

namespace {

// Only a line that begins with "y" (or "j") is a yes.
bool am_terminal_gefragt(std::string_view text) {
  std::fprintf(stderr, "%s [y/N] ", sichtbar(einzeilig(text)).c_str());
  std::fflush(stderr);
  bool ja = false;
  for (int zeichen = std::getchar(), ort = 0; zeichen != EOF && zeichen != '\n';
       zeichen = std::getchar(), ++ort)
    if (ort == 0) ja = zeichen == 'y' || zeichen == 'Y' || zeichen == 'j' || zeichen == 'J';
  return ja;
}

}  // namespace

bool Konsolendialog::frage(std::string_view text, std::string_view /*titel*/) {
  const bool terminal = ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
  if (antwort == Antwortweise::fragen && terminal) return am_terminal_gefragt(text);
  const bool ja = antwort == Antwortweise::ja;
  melde(std::string(text) + (ja ? " (answered: yes)" : " (answered: no)"));
  return ja;
}

Terminalfortschritt::Terminalfortschritt() : terminal_(::isatty(STDERR_FILENO) == 1) {}

Terminalfortschritt::~Terminalfortschritt() {
  loeschen();
}

bool Terminalfortschritt::schritt(std::string_view text, int nummer, int anzahl) {
  if (!terminal_) return true;
  const int prozent = anzahl > 0 ? nummer * 100 / anzahl : 0;
  std::fprintf(stderr, "%s%s  %d %%", kZeile_loeschen, sichtbar(einzeilig(text)).c_str(), prozent);
  std::fflush(stderr);
  gezeigt_ = true;
  return true;
}

void Terminalfortschritt::loeschen() {
  if (!gezeigt_) return;
  std::fputs(kZeile_loeschen, stderr);
  gezeigt_ = false;
}

}  // namespace polarkreis::cli
