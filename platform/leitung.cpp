#include "platform/leitung.h"

#include <fcntl.h>
#include <libserialport.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "shell/text.h"

namespace polarkreis {

namespace {

using Stunde = std::chrono::steady_clock;
constexpr std::chrono::milliseconds Schreibfrist{1000};
constexpr std::chrono::milliseconds Schlussfrist{200};
/// What one reading takes at most, so that a device that never stops doesn't hold the program.
constexpr std::size_t Leseportion = 1U << 18;

std::string systemgrund(const std::string& geraet, int fehler) {
  std::string text = geraet + ": " + std::strerror(fehler);
  if (fehler == EACCES) text += " (serial ports belong to a group, mostly dialout)";
  return text;
}

bool ganze_zahl(std::string_view text, int von, int bis, int& ziel) {
  int zahl = 0;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
  if (fehler != std::errc() || ende != text.data() + text.size()) return false;
  if (zahl < von || zahl > bis) return false;
  ziel = zahl;
  return true;
}

bool setze_feld(Leitungseinstellung& einstellung, int nummer, std::string_view feld) {
  switch (nummer) {
    case 0:
      return ganze_zahl(feld, 50, 4'000'000, einstellung.baud);
    case 1: {
      const std::string buchstabe = gross(feld);
      if (buchstabe.size() != 1 || !std::strchr("NEOMS", buchstabe[0])) return false;
      einstellung.paritaet = buchstabe[0];
      return true;
    }
    case 2:
      return ganze_zahl(feld, 5, 8, einstellung.datenbits);
    case 3:
      return ganze_zahl(feld, 1, 2, einstellung.stoppbits);
    default:
      return false;
  }
}

sp_parity paritaet(char buchstabe) {
  switch (buchstabe) {
    case 'E':
      return SP_PARITY_EVEN;
    case 'O':
      return SP_PARITY_ODD;
    case 'M':
      return SP_PARITY_MARK;
    case 'S':
      return SP_PARITY_SPACE;
    default:
      return SP_PARITY_NONE;
  }
}

bool stelle_ein(sp_port* port, const Leitungseinstellung& einstellung) {
  sp_port_config* werte = nullptr;
  if (::sp_new_config(&werte) != SP_OK) return false;
  ::sp_set_config_baudrate(werte, einstellung.baud);
  ::sp_set_config_bits(werte, einstellung.datenbits);
  ::sp_set_config_parity(werte, paritaet(einstellung.paritaet));
  ::sp_set_config_stopbits(werte, einstellung.stoppbits);
  ::sp_set_config_flowcontrol(werte, SP_FLOWCONTROL_NONE);
  const bool gelungen = ::sp_set_config(port, werte) == SP_OK;
  const int merker = errno;
  ::sp_free_config(werte);
  errno = merker;
  return gelungen;
}

/// The modem lines stay as they are when the port is closed: it is opened and closed around every
/// request, and some devices start afresh when the lines drop.
void halte_leitungen(int nummer) {
  termios art{};
  if (::tcgetattr(nummer, &art) != 0) return;
  art.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
  ::tcsetattr(nummer, TCSANOW, &art);
}

bool roh(int nummer) {
  termios art{};
  if (::tcgetattr(nummer, &art) != 0) return false;
  ::cfmakeraw(&art);
  art.c_cflag |= CLOCAL | CREAD;
  art.c_cflag &= ~static_cast<tcflag_t>(HUPCL | CRTSCTS);
  art.c_cc[VMIN] = 0;
  art.c_cc[VTIME] = 0;
  return ::tcsetattr(nummer, TCSANOW, &art) == 0;
}

/// Waits for the output buffer to empty; what a hung line keeps is dropped, because closing would
/// wait for it for half a minute.
void leere_ausgabe(int nummer) {
  const auto ende = Stunde::now() + Schlussfrist;
  int wartend = 0;
  while (::ioctl(nummer, TIOCOUTQ, &wartend) == 0 && wartend > 0) {
    if (Stunde::now() >= ende) {
      ::tcflush(nummer, TCOFLUSH);
      return;
    }
    ::poll(nullptr, 0, 2);
  }
}

}  // namespace

std::optional<Leitungseinstellung> Leitungseinstellung_lesen(std::string_view text) {
  Leitungseinstellung einstellung;
  for (int nummer = 0;; ++nummer) {
    const std::size_t komma = text.find(',');
    if (!setze_feld(einstellung, nummer, getrimmt(text.substr(0, komma)))) return {};
    if (komma == std::string_view::npos) return einstellung;
    text.remove_prefix(komma + 1);
  }
}

std::unique_ptr<Leitung> Leitung::oeffne(const std::string& geraet,
                                         const Leitungseinstellung& einstellung,
                                         std::string& grund) {
  namespace fs = std::filesystem;
  std::error_code fehler;
  // The library knows a device by its own name only, not by a link.
  const std::string echt = fs::canonical(geraet, fehler).string();
  if (fehler) {
    grund = systemgrund(geraet, fehler.value());
    return nullptr;
  }
  if (!fs::is_character_file(echt, fehler)) {
    grund = geraet + ": not a serial port";
    return nullptr;
  }
  std::unique_ptr<Leitung> leitung(new Leitung);
  if (!leitung->oeffne_port(echt, einstellung, grund) || !leitung->sperre(grund)) return nullptr;
  ::fcntl(leitung->nummer_, F_SETFD, FD_CLOEXEC);
  ::tcflush(leitung->nummer_, TCIFLUSH);
  return leitung;
}

bool Leitung::oeffne_port(const std::string& geraet, const Leitungseinstellung& einstellung,
                          std::string& grund) {
  // A pseudo terminal is unknown to the library, and a line without modem lines can't be opened by
  // it.
  if (::sp_get_port_by_name(geraet.c_str(), &port_) != SP_OK) return oeffne_terminal(geraet, grund);
  if (::sp_open(port_, SP_MODE_READ_WRITE) != SP_OK) {
    const int fehler = errno;
    ::sp_free_port(port_);
    port_ = nullptr;
    if (fehler == ENOTTY || fehler == EINVAL) return oeffne_terminal(geraet, grund);
    grund = systemgrund(geraet, fehler);
    return false;
  }
  ::sp_get_port_handle(port_, &nummer_);
  if (!stelle_ein(port_, einstellung)) {
    grund = geraet + ": the port doesn't take its settings (" + std::strerror(errno) + ")";
    return false;
  }
  halte_leitungen(nummer_);
  return true;
}

bool Leitung::oeffne_terminal(const std::string& geraet, std::string& grund) {
  nummer_ = ::open(geraet.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (nummer_ < 0) {
    grund = systemgrund(geraet, errno);
    return false;
  }
  if (::tcgetsid(nummer_) == ::getsid(0)) {
    grund = geraet + ": this is the terminal in which the program runs";
    return false;
  }
  if (roh(nummer_)) return true;
  grund = geraet + ": not a serial port";
  return false;
}

bool Leitung::sperre(std::string& grund) const {
  if (::flock(nummer_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return true;
  grund = "the port is in use by another program";
  return false;
}

Leitung::~Leitung() {
  if (nummer_ >= 0) leere_ausgabe(nummer_);
  if (port_ != nullptr) {
    ::sp_close(port_);
    ::sp_free_port(port_);
  } else if (nummer_ >= 0) {
    ::close(nummer_);
  }
}

bool Leitung::schreibe(std::string_view text, std::string& grund) {
  const auto ende = Stunde::now() + Schreibfrist;
  while (!text.empty()) {
    const ssize_t n = ::write(nummer_, text.data(), text.size());
    if (n > 0) {
      text.remove_prefix(static_cast<std::size_t>(n));
      continue;
    }
    if (n < 0 && errno == EINTR) continue;
    if (n < 0 && errno != EAGAIN) {
      grund = std::string("the line is gone: ") + std::strerror(errno);
      return false;
    }
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(ende - Stunde::now());
    if (rest.count() <= 0) {
      grund = "the line takes nothing";
      return false;
    }
    pollfd warten{nummer_, POLLOUT, 0};
    ::poll(&warten, 1, static_cast<int>(rest.count()));
  }
  return true;
}

bool Leitung::lies(std::string& text, std::string& grund) {
  std::array<char, 4096> puffer;
  for (std::size_t gelesen = 0; gelesen < Leseportion;) {
    const ssize_t n = ::read(nummer_, puffer.data(), puffer.size());
    if (n < 0 && errno == EINTR) continue;
    if (n > 0) {
      text.append(puffer.data(), static_cast<std::size_t>(n));
      gelesen += static_cast<std::size_t>(n);
      continue;
    }
    if (n < 0 && errno != EAGAIN) {
      grund = std::string("the line is gone: ") + std::strerror(errno);
      return false;
    }
    if (!abgerissen()) return true;
    grund = "the line is gone";
    return false;
  }
  return true;
}

bool Leitung::kommt_noch(int ms) const {
  pollfd warten{nummer_, POLLIN, 0};
  return ::poll(&warten, 1, ms) > 0 && (warten.revents & POLLIN) != 0;
}

/// A port that was unplugged reads as an empty one; only this tells.
bool Leitung::abgerissen() const {
  pollfd frage{nummer_, POLLIN, 0};
  return ::poll(&frage, 1, 0) > 0 && (frage.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

}  // namespace polarkreis
