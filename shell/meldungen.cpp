#include "shell/meldungen.h"

#include <sys/stat.h>
#include <time.h>

#include <array>
#include <cstdio>

#include "shell/platte.h"

namespace polarkreis {

namespace {

constexpr std::size_t Zeilen_hoechstens = 1000;
constexpr off_t Dateigroesse_hoechstens = 1'000'000;

std::string zeitpunkt() {
  const time_t jetzt = ::time(nullptr);
  tm lokal{};
  ::localtime_r(&jetzt, &lokal);
  std::array<char, 40> text{};
  const std::size_t n = ::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &lokal);
  return {text.data(), n};
}

/// Appends a part of the line; a line end in it would make two lines of one.
void teil_anhaengen(std::string& zeile, std::string_view teil) {
  for (char c : teil) zeile += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
}

void in_datei(const std::string& datenordner, const std::string& zeile) {
  const std::string ordner = datenordner + "/log";
  ::mkdir(ordner.c_str(), 0777);
  const std::string datei = ordner + "/polarkreis.log";
  struct stat stand {};
  if (::stat(datei.c_str(), &stand) == 0 && S_ISREG(stand.st_mode) &&
      stand.st_size + static_cast<off_t>(zeile.size()) >= Dateigroesse_hoechstens)
    std::rename(datei.c_str(), (datei + ".1").c_str());
  platte::haenge_an(datei, zeile + "\n");
}

}  // namespace

void Meldungen::melde(std::string_view ort, std::string_view datei, std::string_view text) {
  std::string zeile = zeitpunkt() + " ";
  teil_anhaengen(zeile, ort);
  zeile += ": ";
  if (!datei.empty()) {
    teil_anhaengen(zeile, datei);
    zeile += ": ";
  }
  teil_anhaengen(zeile, text);
  if (!ordner_.empty()) in_datei(ordner_, zeile);
  if (hoerer_) hoerer_(zeile);
  zeilen_.push_back(std::move(zeile));
  if (zeilen_.size() > Zeilen_hoechstens) zeilen_.pop_front();
}

void Meldungen::zaehler_melden() {
  // The same place may stand at several addresses, one for each translation unit.
  std::map<std::string_view, std::size_t> nach_ort;
  for (const auto& [ort, anzahl] : zaehler_) nach_ort[ort] += anzahl;
  for (const auto& [ort, anzahl] : nach_ort)
    melde(ort, {},
          std::to_string(anzahl) + (anzahl == 1 ? " statement" : " statements") +
              " failed, the target stayed as it was");
  zaehler_.clear();
}

}  // namespace polarkreis
