"""A plant over time: start-up, steady running, defrost, stop."""
import dataclasses
import math

from . import air

ATMOSPHERE = 1.013  # bar
VOLTAGE = 231.0  # V between phase and neutral
STEP = 5.0  # s
MOST_STEPS = 150  # in one go
BEFORE = 2400.0  # s


@dataclasses.dataclass
class Readings:
    """What the sensors of a plant see: bar gauge, °C, kW, V, A, kg/h."""
    p_low: float
    p_high: float
    t_liquid: float
    t_expansion: float
    t_suction: float
    t_discharge: float
    evaporator_in: float
    evaporator_out: float
    condenser_in: float
    condenser_out: float
    current: float  # of each phase
    auxiliary: float  # A on L1
    mass_flow: float
    capacity: float
    power: float


class Plant:
    def __init__(self, design, refrigerant, phase="start"):
        self.design = design
        self.refrigerant = refrigerant
        self.seconds = self._begin(phase)  # since the beginning of the first cycle
        self.room = design.evaporator.inlet
        self._t0 = self.room - 2.0
        self._p_high = self._standing_pressure()
        self._t_expansion = self.room
        self._t_discharge = self.outside()
        self._capacity = self._power = self._mass_flow = 0.0
        self._felt_capacity = self._felt_heat = 0.0  # what the secondary sides have noticed of them
        self._settle()

    def _begin(self, phase):
        """The second of the cycle at which a phase begins; a number is that minute."""
        try:
            return 60.0 * float(phase) % self.cycle()
        except ValueError:
            pass
        before = 0.0
        for name, minutes in self.design.schedule:
            if name == phase:
                return before
            before += 60.0 * minutes
        raise ValueError(f"no phase {phase!r}: start, run, defrost, stop, or a minute of the cycle")

    def _settle(self):
        """A plant is met in the middle of its life: the last part of the cycle lies behind it."""
        self.seconds += self.cycle() - BEFORE
        for _ in range(round(BEFORE / STEP)):
            self._step(STEP)

    def cycle(self):
        return 60.0 * sum(minutes for _, minutes in self.design.schedule)

    def phase(self):
        """Name of the phase, and the seconds since it began."""
        rest = self.seconds % self.cycle()
        for name, minutes in self.design.schedule:
            if rest < 60.0 * minutes:
                return name, rest
            rest -= 60.0 * minutes
        return "stop", rest

    def advance(self, seconds):
        steps = min(max(math.ceil(seconds / STEP), 1), MOST_STEPS)
        for _ in range(steps if seconds > 0 else 0):
            self._step(seconds / steps)

    def outside(self):
        """Inlet of the condenser's side, over a day and with the weather's whims."""
        day = 2.0 * math.sin(2 * math.pi * self.seconds / 86400)
        return self.design.condenser.inlet + day + 0.4 * math.sin(2 * math.pi * self.seconds / 1900)

    def _standing_pressure(self):
        warmest = min(self.outside(), self.refrigerant.t_highest - 1)
        return self.refrigerant.pressure(warmest)

    def _step(self, dt):
        self.seconds += dt
        name, since = self.phase()
        running = name in ("start", "run")
        if running:
            self._run(dt, since if name == "start" else since + 480.0)
        else:
            self._stand(dt, name == "defrost")
        self._exchange(dt, running)

    @staticmethod
    def _approach(value, target, dt, lag):
        return target + (value - target) * math.exp(-dt / lag)

    def _run(self, dt, since):
        design = self.design
        hunting = math.sin(2 * math.pi * self.seconds / 95)
        frost = 1.5 * min(since / 4200, 1) if design.evaporator.rho_cp == 0 else 0.0
        pull_down = 5.0 * math.exp(-since / 150)
        t0 = self.room - design.difference_low - frost - pull_down + 0.25 * hunting
        self._t0 = self._approach(self._t0, t0, dt, 40)
        self._p_high = self._approach(self._p_high, self._running_pressure(), dt, 70)
        superheat = design.superheat + 0.6 * hunting + 9.0 * math.exp(-since / 120)
        self._t_expansion = self._approach(self._t_expansion, self._t0 + superheat, dt, 25)
        self._compress(dt)

    def _running_pressure(self):
        fans = math.sin(2 * math.pi * self.seconds / 310)
        if self.design.high_pressure > 0:
            return self.design.high_pressure + ATMOSPHERE + 0.8 * fans
        return self.refrigerant.pressure(self.outside() + self.design.difference_high + 0.5 * fans)

    def _compress(self, dt):
        """Mass flow, capacity and power of the moment."""
        r, design = self.refrigerant, self.design
        p_low = r.pressure(self._t0)
        h_suction, rho = r.suction(self._t0, self._t_expansion + design.suction_gain)
        ratio = max(self._p_high / p_low, 1.0)
        self._mass_flow = design.swept_volume * rho * max(0.92 - 0.035 * ratio, 0.3)  # kg/h
        work = r.compression(p_low, self._p_high, rho) / design.efficiency
        h_evaporator, _ = r.suction(self._t0, self._t_expansion)
        self._capacity = self._mass_flow / 3600 * (h_evaporator - self._h_liquid())
        self._power = self._mass_flow / 3600 * work
        # A part of the losses leaves through the shell.
        hot = r.discharge(self._p_high, h_suction + 0.93 * work)
        self._t_discharge = self._approach(self._t_discharge, hot, dt, 150)

    def _h_liquid(self):
        if self.design.high_pressure > 0:
            return self.refrigerant.hot.enthalpy(self._p_high, self._t_liquid())
        return self.refrigerant.h_liquid(self._t_liquid())

    def _t_liquid(self):
        if self.design.high_pressure > 0:
            return self.outside() + self.design.difference_high
        return max(self.refrigerant.temperature(self._p_high) - self.design.subcooling, self.outside())

    def _stand(self, dt, defrost):
        coil = max(self.room, 4.0) if defrost else self.room
        self._t0 = self._approach(self._t0, min(coil, self.outside()) - 1.0, dt, 260)
        self._p_high = self._approach(self._p_high, self._standing_pressure(), dt, 300)
        self._t_expansion = self._approach(self._t_expansion, coil, dt, 300)
        self._t_discharge = self._approach(self._t_discharge, self.outside(), dt, 1500)
        self._mass_flow = self._capacity = self._power = 0.0

    def _exchange(self, dt, running):
        """The secondary sides follow with a lag; the room warms and cools around its set point."""
        self._felt_capacity = self._approach(self._felt_capacity, self._capacity, dt, 45)
        self._felt_heat = self._approach(self._felt_heat, self._capacity + 0.93 * self._power, dt, 60)
        drift = -0.9 if running else 4.0  # K/h
        self.room += drift * dt / 3600
        self.room = self._approach(self.room, self.design.evaporator.inlet, dt, 7200)

    def _evaporator_out(self):
        side = self.design.evaporator
        if side.rho_cp > 0:
            return self.room - self._felt_capacity * 3600 / (side.flow * side.rho_cp)
        return air.behind_cooler(self.room, self._felt_capacity, side.flow)

    def _condenser_out(self):
        side = self.design.condenser
        if side.rho_cp > 0:
            return self.outside() + self._felt_heat * 3600 / (side.flow * side.rho_cp)
        return air.behind_condenser(self.outside(), self._felt_heat, side.flow)

    def _current(self):
        """Of each phase, from power and power factor, which falls at small currents."""
        current = self._power * 1000 / (3 * VOLTAGE * 0.87)
        for _ in range(20):
            if current <= 0.1:
                return 0.0
            factor = max(0.87 - 2 / (9 * current), 0.3)
            current = self._power * 1000 / (3 * VOLTAGE * factor)
        return current

    def readings(self):
        gain = self.design.suction_gain
        return Readings(
            p_low=self.refrigerant.pressure(self._t0) - ATMOSPHERE, p_high=self._p_high - ATMOSPHERE,
            t_liquid=self._t_liquid(), t_expansion=self._t_expansion, t_suction=self._t_expansion + gain,
            t_discharge=self._t_discharge,
            evaporator_in=self.room, evaporator_out=self._evaporator_out(),
            condenser_in=self.outside(), condenser_out=self._condenser_out(),
            current=self._current(), auxiliary=self.design.auxiliary if self._power > 0 else 0.0,
            mass_flow=self._mass_flow, capacity=self._capacity, power=self._power)
