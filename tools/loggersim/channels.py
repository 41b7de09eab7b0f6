"""A plant's state as the logger's channels: position 1 is the first of the list."""

UNIT = 16  # positions of a unit: 6 electrical, 2 pressures, 8 temperatures
GAP = 2  # positions behind the second remote unit that mean nothing
FREE_INPUT = 10.0 / 4000  # V for each kg/h, at inX7
FAN_SPEED = 6.5  # V, at inX8

DECIMALS = ["1"] * 3 + ["2"] * 3 + ["3"] * 2 + ["1"] * 8
NOISE = [0.2] * 3 + [0.002] * 3 + [0.004] * 2 + [0.05] * 8


class Channels:
    """The values of a reply, of the base unit and its remote units."""

    def __init__(self, plant, orbiter, monitoring, random):
        self.plant = plant
        self.orbiter = orbiter
        self.monitoring = monitoring
        self.random = random

    def advance(self, seconds):
        self.plant.advance(seconds)

    def texts(self):
        """The tokens of the present moment."""
        readings = self.plant.readings()
        units = [self._base(readings)] + [self._remote(readings, i) for i in range(1, self.orbiter + 1)]
        values = [self._text(value, i) for unit in units for i, value in enumerate(unit)]
        if self.orbiter == 2:
            # The second unit's third voltage and first two currents share their columns with the base unit's currents:
            # sent once more at the end, the base unit's stand.
            values += ["0"] * GAP + values[3:6]
        return values

    def _text(self, value, i):
        noise = self.random.gauss(0, 1)
        # A current's noise goes with the current, so that a plant at rest draws none.
        value += noise * NOISE[i] * (value if 3 <= i < 6 else 1)
        text = f"{value:.{DECIMALS[i]}f}"
        return "0" if float(text) == 0 else text

    def _pressures(self, low, high, scale_high):
        """As the standard sensor would give them: the real one has another range."""
        if not self.plant.design.sensor_code_15:
            return [low, high]
        return [low / 5, high / scale_high]

    def _base(self, r):
        voltages = [231.4, 230.2, 232.0]
        currents = [r.current + r.auxiliary, r.current, r.current * 1.004]
        temperatures = [r.t_liquid, r.evaporator_in, r.evaporator_out, r.t_expansion, r.t_suction,
                        r.condenser_in, r.condenser_out, r.t_discharge]
        if self.monitoring:
            flow = self.plant.design.condenser.flow if r.power > 0 else 0.0
            temperatures[1], temperatures[2] = r.t_expansion, flow
        return voltages + currents + self._pressures(r.p_low, r.p_high, 2) + temperatures

    def _remote(self, r, number):
        """A machine of its own on the same circuit, half and a third of the base unit's size."""
        share = 1 / (number + 1)
        voltages = [231.0, 230.6, 231.7]
        middle = self.plant.design.flash_pressure or r.p_high
        temperatures = [r.t_liquid + 0.2, r.evaporator_in, r.evaporator_out + 0.1, r.condenser_in,
                        r.condenser_out - 0.2, r.t_expansion + 0.1, r.mass_flow * FREE_INPUT, FAN_SPEED]
        return voltages + [r.current * share] * 3 + self._pressures(r.p_low, middle, 5) + temperatures
