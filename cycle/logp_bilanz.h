#pragma once

#include <string_view>
#include <vector>

namespace polarkreis {

/// The balance of one component: what enters and what leaves it by the state points and flows of
/// the cycle. The formulas are fitted, so that not every balance closes; the rest shows by how
/// much.
struct Bilanz {
  /// Work isn't balanced, but compared: what is spent against a loss-free compression of an ideal
  /// gas.
  enum class Art { Energie, Masse, Arbeit };
  std::string_view Bauteil;  ///< such as "evaporator"
  Art Groesse = Art::Energie;
  double zu = 0, ab = 0;  ///< kW, or kg/s

  double Rest() const { return zu - ab; }
  /// What enters leaves again, but for the last digits of the numbers; of work nine tenths of the
  /// ideal's at least are spent: so near an ideal gas comes to vapour near saturation.
  bool schliesst() const;
};

}  // namespace polarkreis
