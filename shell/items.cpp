#include "shell/items.h"

#include "shell/text.h"

namespace polarkreis {

namespace {

/// Place of the next separator (comma or line end), or the text's end.
std::size_t naechster_trenner(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && text[i] != ',' && text[i] != '\n') ++i;
  return i;
}

/// Takes a quoted text off `rest` that begins behind the opening quote. A text without a doubled
/// quote is a view of `rest`, any other one is put together in `puffer`.
std::string_view in_anfuehrung(std::string_view& rest, std::string& puffer) {
  bool kopiert = false;
  for (;;) {
    const std::size_t schluss = rest.find('"');
    const std::string_view stueck = rest.substr(0, schluss);
    const bool offen = schluss == std::string_view::npos;
    rest.remove_prefix(offen ? rest.size() : schluss + 1);
    const bool doppelt = !offen && rest.starts_with('"');
    if (!doppelt && !kopiert) return stueck;
    if (!kopiert) puffer.clear();
    kopiert = true;
    puffer += stueck;
    if (!doppelt) return puffer;
    puffer += '"';
    rest.remove_prefix(1);
  }
}

}  // namespace

bool ItemLeser::lies_blick(std::string_view& target) {
  if (ende()) return false;
  komma_ = false;
  rest_ = links_getrimmt(rest_);
  if (rest_.starts_with('"')) {
    rest_.remove_prefix(1);
    target = in_anfuehrung(rest_, puffer_);
    rest_.remove_prefix(naechster_trenner(rest_));
  } else {
    const std::size_t trenner = naechster_trenner(rest_);
    std::string_view item = rest_.substr(0, trenner);
    rest_.remove_prefix(trenner);
    if (item.ends_with('\r') && rest_.starts_with('\n')) item.remove_suffix(1);
    target = rechts_getrimmt(item);
  }
  if (!rest_.empty()) {
    komma_ = rest_.front() == ',';
    rest_.remove_prefix(1);
  }
  return true;
}

bool ItemLeser::lies(std::string& target) {
  std::string_view item;
  if (!lies_blick(item)) return false;
  target.assign(item);
  return true;
}

std::string ItemLeser::lies() {
  std::string item;
  lies(item);
  return item;
}

void zeile_anhaengen(std::string& target, std::span<const std::string_view> items) {
  bool weitere = false;
  for (std::string_view item : items) {
    if (weitere) target += ',';
    weitere = true;
    target += '"';
    for (std::size_t zeichen; (zeichen = item.find('"')) != std::string_view::npos;) {
      target += item.substr(0, zeichen + 1);
      target += '"';
      item.remove_prefix(zeichen + 1);
    }
    target += item;
    target += '"';
  }
  target += "\r\n";
}

void zeile_anhaengen(std::string& target, std::initializer_list<std::string_view> items) {
  zeile_anhaengen(target, std::span<const std::string_view>(items.begin(), items.size()));
}

}  // namespace polarkreis
