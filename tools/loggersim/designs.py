"""The plants that can be played."""
import dataclasses


@dataclasses.dataclass(frozen=True)
class Side:
    """A secondary side: flow in m³/h; a liquid with its density and specific heat, or air."""
    flow: float
    inlet: float  # °C, at design
    rho_cp: float = 0.0  # kJ/(m³ K); 0 is air


@dataclasses.dataclass(frozen=True)
class Design:
    refrigerant: str
    swept_volume: float  # m³/h
    efficiency: float  # isentropic, with the motor
    evaporator: Side
    condenser: Side
    difference_low: float  # K between the inlet of the evaporator's side and evaporation
    difference_high: float  # K between the inlet of the condenser's side and condensing
    superheat: float  # K at the end of the evaporator
    suction_gain: float  # K from there to the compressor
    subcooling: float  # K
    auxiliary: float  # A of the single-phase consumers on L1
    orbiter: int  # remote units
    schedule: tuple  # phases of a cycle and their minutes
    high_pressure: float = 0.0  # bar gauge, where a controller holds it (transcritical)
    flash_pressure: float = 0.0  # bar gauge
    sensor_code_15: bool = False  # the pressures come as the standard sensor would give them


WATER = 999.0 * 4.19
DESIGNS = {
    # A deep-freeze store, air on both sides.
    "R404A": Design("R404A", 60, 0.63, Side(9000, -18), Side(11000, 24), 9, 13, 6, 5, 4, 1.6, 0,
                    (("start", 8), ("run", 70), ("defrost", 25), ("start", 8), ("run", 55), ("stop", 14))),
    # A water chiller with cooling tower; nothing freezes, so the defrost is a call-off pause.
    "R134A": Design("R134A", 260, 0.70, Side(24, 12, WATER), Side(30, 27, WATER), 9, 12, 5, 3, 4, 2.4, 1,
                    (("start", 6), ("run", 75), ("defrost", 9), ("start", 6), ("run", 45), ("stop", 9))),
    # Process cooling with ethylene glycol (34 %), condenser on river water.
    "R717": Design("R717", 320, 0.72, Side(32, -3, 1058 * 3.63), Side(36, 22, WATER), 9, 11, 4.5, 3, 2, 3.0, 2,
                   (("start", 10), ("run", 110), ("defrost", 20), ("start", 10), ("run", 60), ("stop", 15))),
    # A transcritical plant with gas cooler on the roof, cabinets on propylene glycol (38 %).
    "R744": Design("R744", 22, 0.66, Side(13, 0, 1045 * 3.66), Side(9500, 33), 9, 4, 7, 6, 0, 1.8, 1,
                   (("start", 8), ("run", 60), ("defrost", 20), ("start", 8), ("run", 40), ("stop", 14)),
                   high_pressure=90.0, flash_pressure=36.0, sensor_code_15=True),
}
