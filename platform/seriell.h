#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/serieller_port.h"

namespace polarkreis {

class Leitung;

/// Order of device names: letters by letters, numbers by their value ("ttyS2" before "ttyS10").
bool Geraet_vor(std::string_view a, std::string_view b);

/// A serial port and the number by which "COM" names it.
struct Seriellgeraet {
  int nummer = 0;
  std::string geraet;        ///< such as "/dev/ttyUSB0"
  std::string beschreibung;  ///< what the system tells of it; may be empty
  bool zugewiesen = false;   ///< by `zuweisen`, not by the system's list
};

/// The system's serial ports: number n is the n-th that the system lists, in the order of
/// `Geraet_vor`, unless a device has been assigned to it. A number that is opened again and again
/// keeps its device as long as that is there, whatever is plugged in beside it.
class Seriellschnittstelle : public SeriellerPort {
 public:
  Seriellschnittstelle();
  ~Seriellschnittstelle() override;
  Seriellschnittstelle(const Seriellschnittstelle&) = delete;
  Seriellschnittstelle& operator=(const Seriellschnittstelle&) = delete;

  /// The device of a number, ahead of the system's list: a serial port, a link to one or a pseudo
  /// terminal. An empty name takes an assignment back.
  void zuweisen(int nummer, std::string geraet);
  /// Every number that has a device, in rising order.
  std::vector<Seriellgeraet> liste() const;
  /// Why the last failed operation failed; empty if none did since the last opening.
  const std::string& Grund() const { return grund_; }

  /// A reply that has begun is read until no character comes for so long, and for a second at most.
  int Ruhe_ms = 20;
  /// How long `Lesen` waits for a reply to begin: 0 not at all, more for slow adapters.
  int Geduld_ms = 0;

  void Port(int nummer) override { nummer_ = nummer; }
  void Einstellungen(std::string_view text) override { einstellungen_ = text; }
  void Oeffnen() override;
  void Schliessen() override;
  void Schreiben(std::string_view text) override;
  std::string Lesen() override;
  bool Fehler() const override { return fehler_; }

 private:
  std::string geraet_von(int nummer);
  void misslungen(std::string grund);

  std::map<int, std::string> zugewiesen_;
  int nummer_ = 0;
  int zuletzt_ = 0;            // the number that was opened last,
  std::string zuletzt_offen_;  // and its device
  std::string einstellungen_ = "9600,N,8,1";
  std::unique_ptr<Leitung> leitung_;
  bool fehler_ = false;
  std::string grund_;
};

}  // namespace polarkreis
