#include "platform/seriell.h"

#include <libserialport.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/leitung.h"

namespace polarkreis {

namespace {

constexpr std::chrono::seconds Laengste_Antwort{1};
constexpr std::size_t Groesste_Antwort = 1 << 16;  // a line that babbles has no end

bool ziffer(char zeichen) {
  return zeichen >= '0' && zeichen <= '9';
}

/// Takes the number at the text's beginning off, without its leading zeros.
std::string_view nimm_zahl(std::string_view& text) {
  while (text.size() > 1 && text[0] == '0' && ziffer(text[1])) text.remove_prefix(1);
  std::size_t n = 0;
  while (n < text.size() && ziffer(text[n])) ++n;
  const std::string_view zahl = text.substr(0, n);
  text.remove_prefix(n);
  return zahl;
}

std::vector<Seriellgeraet> systemliste() {
  std::vector<Seriellgeraet> alle;
  sp_port** ports = nullptr;
  if (::sp_list_ports(&ports) != SP_OK) return alle;
  for (sp_port** port = ports; *port != nullptr; ++port) {
    Seriellgeraet eintrag;
    eintrag.geraet = ::sp_get_port_name(*port);
    if (const char* text = ::sp_get_port_description(*port)) eintrag.beschreibung = text;
    // Without better knowledge the library describes a port by its name.
    if (eintrag.geraet.ends_with("/" + eintrag.beschreibung)) eintrag.beschreibung.clear();
    alle.push_back(std::move(eintrag));
  }
  ::sp_free_port_list(ports);
  std::sort(alle.begin(), alle.end(), [](const Seriellgeraet& a, const Seriellgeraet& b) {
    return Geraet_vor(a.geraet, b.geraet);
  });
  for (std::size_t i = 0; i < alle.size(); ++i) alle[i].nummer = static_cast<int>(i) + 1;
  return alle;
}

}  // namespace

bool Geraet_vor(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (ziffer(a[0]) && ziffer(b[0])) {
      const std::string_view x = nimm_zahl(a), y = nimm_zahl(b);
      if (x.size() != y.size()) return x.size() < y.size();
      if (x != y) return x < y;
      continue;
    }
    if (a[0] != b[0]) return a[0] < b[0];
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  return a.empty() && !b.empty();
}

Seriellschnittstelle::Seriellschnittstelle() = default;
Seriellschnittstelle::~Seriellschnittstelle() = default;

void Seriellschnittstelle::zuweisen(int nummer, std::string geraet) {
  if (geraet.empty())
    zugewiesen_.erase(nummer);
  else
    zugewiesen_[nummer] = std::move(geraet);
}

std::vector<Seriellgeraet> Seriellschnittstelle::liste() const {
  std::vector<Seriellgeraet> alle = systemliste();
  std::erase_if(alle, [&](const Seriellgeraet& e) { return zugewiesen_.contains(e.nummer); });
  for (const auto& [nummer, geraet] : zugewiesen_) alle.push_back({nummer, geraet, "", true});
  std::sort(alle.begin(), alle.end(),
            [](const Seriellgeraet& a, const Seriellgeraet& b) { return a.nummer < b.nummer; });
  return alle;
}

/// The device of a number; empty if it has none.
std::string Seriellschnittstelle::geraet_von(int nummer) {
  if (const auto ort = zugewiesen_.find(nummer); ort != zugewiesen_.end()) return ort->second;
  std::error_code fehler;
  if (nummer == zuletzt_ && std::filesystem::exists(zuletzt_offen_, fehler)) return zuletzt_offen_;
  const std::vector<Seriellgeraet> alle = systemliste();
  if (nummer < 1 || nummer > static_cast<int>(alle.size())) return {};
  return alle[static_cast<std::size_t>(nummer) - 1].geraet;
}

void Seriellschnittstelle::misslungen(std::string grund) {
  fehler_ = true;
  grund_ = "COM" + std::to_string(nummer_) + ": " + std::move(grund);
}

void Seriellschnittstelle::Oeffnen() {
  Schliessen();
  fehler_ = false;
  grund_.clear();
  const auto einstellung = Leitungseinstellung_lesen(einstellungen_);
  if (!einstellung) return misslungen("\"" + einstellungen_ + "\" is no setting of a line");
  const std::string geraet = geraet_von(nummer_);
  if (geraet.empty()) return misslungen("this system has no such serial port");
  std::string grund;
  leitung_ = Leitung::oeffne(geraet, *einstellung, grund);
  zuletzt_ = nummer_;
  zuletzt_offen_ = geraet;
  if (!leitung_) misslungen(std::move(grund));
}

void Seriellschnittstelle::Schliessen() {
  leitung_.reset();
}

void Seriellschnittstelle::Schreiben(std::string_view text) {
  std::string grund = "the port is closed";
  if (leitung_ && leitung_->schreibe(text, grund)) return;
  if (leitung_ || !fehler_) misslungen(std::move(grund));
}

// A slow line has sent the beginning of a reply only (25 ms are 24 characters at 9600 baud), and
// the rest would be lost with the next opening: what has begun is read to its end.
std::string Seriellschnittstelle::Lesen() {
  std::string text, grund = "the port is closed";
  const auto ende = std::chrono::steady_clock::now() + Laengste_Antwort;
  bool gut = leitung_ && leitung_->lies(text, grund);
  if (gut && text.empty() && Geduld_ms > 0 && leitung_->kommt_noch(Geduld_ms))
    gut = leitung_->lies(text, grund);
  while (gut && !text.empty() && text.size() < Groesste_Antwort &&
         std::chrono::steady_clock::now() < ende && leitung_->kommt_noch(Ruhe_ms))
    gut = leitung_->lies(text, grund);
  if (!gut && (leitung_ || !fehler_)) misslungen(std::move(grund));
  return text;
}

}  // namespace polarkreis
