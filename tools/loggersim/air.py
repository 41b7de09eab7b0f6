"""Moist air at 1.013 bar: kJ/kg and kg/m³ of dry air, and the fluids of the secondary sides."""
import math

PRESSURE = 1.013  # bar


def vapour_pressure(t):
    """Saturation pressure in bar over water or ice (Magnus)."""
    a, b = (17.62, 243.12) if t >= 0 else (22.46, 272.62)
    return 0.006112 * math.exp(a * t / (b + t))


def water_content(t, humidity):
    p = humidity * vapour_pressure(t)
    return 0.622 * p / (PRESSURE - p)


def enthalpy(t, humidity):
    return 1.006 * t + water_content(t, humidity) * (2501 + 1.86 * t)


def density(t):
    return PRESSURE * 100 / (0.287 * (t + 273.15))


def behind_cooler(t, heat, flow):
    """Temperature behind an air cooler: `heat` kW taken from `flow` m³/h that come in at 90 % humidity and leave, the
    colder the damper, at most at 96 %."""
    wanted = enthalpy(t, 0.9) - heat * 3600 / (flow * density(t))
    low, high = t - 40, t + 40
    for _ in range(40):
        middle = (low + high) / 2
        humidity = min(0.8 - 1.1 * middle / 100, 0.96)
        low, high = (middle, high) if enthalpy(middle, max(humidity, 0.05)) < wanted else (low, middle)
    return (low + high) / 2


def behind_condenser(t, heat, flow):
    x = water_content(t, 0.9)
    return t + heat * 3600 / (flow * density(t) * (1.00327 + 2.08 * x) / (1 + x))
