#include "shell/warten.h"

#include <array>
#include <cstdio>

namespace polarkreis {

namespace {

template <class... Zahlen>
std::string formatiert(const char* form, Zahlen... zahlen) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), form, zahlen...);
  return text.data();
}

}  // namespace

std::string Uhrzeit_Text(const Zeitpunkt& z) {
  return formatiert("%02d:%02d:%02d", z.Stunde, z.Minute, z.Sekunde);
}

std::string Datum_Text(const Zeitpunkt& z) {
  return formatiert("%02d.%02d.%04d", z.Tag, z.Monat, z.Jahr);
}

std::string Zeitstempel_Dateiname(const Zeitpunkt& z) {
  return formatiert("%04d-%02d-%02d %02d-%02d-%02d", z.Jahr, z.Monat, z.Tag, z.Stunde, z.Minute,
                    z.Sekunde);
}

}  // namespace polarkreis
