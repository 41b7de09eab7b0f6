#!/usr/bin/env python3
"""The stand-in logger's plants: consistent over a whole cycle, and described by the settings that belong to them."""
import json
import math
import pathlib
import random
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))

from loggersim import air  # noqa: E402
from loggersim.bath import TEMPERATURE_ERRORS, Bath  # noqa: E402
from loggersim.channels import Channels  # noqa: E402
from loggersim.designs import DESIGNS  # noqa: E402
from loggersim.faults import Faults  # noqa: E402
from loggersim.memory import Memory  # noqa: E402
from loggersim.plant import VOLTAGE, Plant  # noqa: E402
from loggersim.recording import values_of  # noqa: E402
from loggersim.refrigerant import Refrigerant  # noqa: E402


def plant(name, phase="start"):
    return Plant(DESIGNS[name], Refrigerant(name, ROOT / "data"), phase)


def cycle(name):
    """The readings of a cycle, a minute apart, with the name of their phase."""
    p = plant(name)
    for _ in range(round(p.cycle() / 60)):
        p.advance(60)
        yield p.phase(), p.readings()


def settled(name):
    """Readings of a plant that has been running for half an hour."""
    return [r for (phase, since), r in cycle(name) if phase == "run" and since > 1800]


class RefrigerantTables(unittest.TestCase):
    def test_saturation_matches_the_tables(self):
        self.assertAlmostEqual(Refrigerant("R134A", ROOT / "data").pressure(0), 2.93, delta=0.02)
        self.assertAlmostEqual(Refrigerant("R717", ROOT / "data").pressure(0), 4.29, delta=0.02)
        self.assertAlmostEqual(Refrigerant("R744", ROOT / "data").pressure(0), 34.85, delta=0.1)

    def test_pressure_and_temperature_are_each_others_inverse(self):
        for name in DESIGNS:
            r = Refrigerant(name, ROOT / "data")
            for t in (-40, -23.4, 0, 17.8):
                self.assertAlmostEqual(r.temperature(r.pressure(t)), t, places=6)

    def test_ammonia_vapour_has_its_density(self):
        _, rho = Refrigerant("R717", ROOT / "data").suction(0, 0)
        self.assertAlmostEqual(rho, 3.457, delta=0.02)

    def test_hot_gas_is_read_back(self):
        hot = Refrigerant("R744", ROOT / "data").hot
        for p, t in ((90, 37), (91.3, 110), (75, 60)):
            self.assertAlmostEqual(hot.temperature(p, hot.enthalpy(p, t)), t, delta=0.6)


class Plants(unittest.TestCase):
    def test_every_phase_is_played(self):
        for name in DESIGNS:
            self.assertEqual({phase for (phase, _), _ in cycle(name)}, {"start", "run", "defrost", "stop"})

    def test_a_phase_can_be_begun_with(self):
        for name in DESIGNS:
            for phase in ("start", "run", "defrost", "stop"):
                self.assertEqual(plant(name, phase).phase(), (phase, 0))
            self.assertEqual(plant(name, "20").phase()[0], "run")
        self.assertRaises(ValueError, plant, "R717", "lunch")

    def test_a_running_plant_obeys_the_cycle(self):
        for name in DESIGNS:
            r = Refrigerant(name, ROOT / "data")
            for x in settled(name):
                t0 = r.temperature(x.p_low + 1.013)
                self.assertLess(t0, x.evaporator_out, name)
                self.assertTrue(2 < x.t_expansion - t0 < 11, f"{name}: superheat {x.t_expansion - t0}")
                self.assertGreater(x.t_suction, x.t_expansion)
                self.assertGreater(x.t_liquid, x.condenser_in)
                self.assertTrue(60 < x.t_discharge < 150 or name == "R134A" and x.t_discharge > 50, x.t_discharge)
                if name != "R744":
                    tc = r.temperature(x.p_high + 1.013)
                    self.assertTrue(1 < tc - x.t_liquid < 6, f"{name}: subcooling {tc - x.t_liquid}")
                    self.assertLess(x.condenser_out, tc)

    def test_efficiency_is_that_of_a_real_plant(self):
        expected = {"R404A": (1.3, 1.8), "R134A": (3.9, 4.7), "R717": (3.0, 3.8), "R744": (1.3, 1.8)}
        for name, (low, high) in expected.items():
            for x in settled(name):
                self.assertTrue(low < x.capacity / x.power < high, f"{name}: {x.capacity / x.power}")

    def test_liquids_carry_the_heat_of_the_cycle(self):
        for name, side in ((n, s) for n in DESIGNS for s in ("evaporator", "condenser")):
            fluid = getattr(DESIGNS[name], side)
            if fluid.rho_cp == 0:
                continue
            for x in settled(name):
                if side == "evaporator":
                    heat, drop = x.capacity, x.evaporator_in - x.evaporator_out
                else:
                    heat, drop = x.capacity + 0.93 * x.power, x.condenser_out - x.condenser_in
                self.assertAlmostEqual(fluid.flow * fluid.rho_cp * drop / 3600 / heat, 1, delta=0.05, msg=name)

    def test_air_carries_the_heat_of_the_cycle(self):
        for x in settled("R404A"):
            flow = DESIGNS["R404A"].evaporator.flow
            drop = air.enthalpy(x.evaporator_in, 0.9) - air.enthalpy(x.evaporator_out, 0.96)
            self.assertAlmostEqual(flow * air.density(x.evaporator_in) * drop / 3600 / x.capacity, 1, delta=0.05)

    def test_currents_make_the_power(self):
        for name in DESIGNS:
            x = settled(name)[0]
            factor = 0.87 - 2 / (9 * x.current)
            self.assertAlmostEqual(3 * VOLTAGE * x.current * factor / 1000, x.power, places=3)

    def test_a_plant_at_rest_draws_no_current_and_evens_out(self):
        for name in DESIGNS:
            running = settled(name)[0]
            resting = [r for (phase, since), r in cycle(name) if phase in ("defrost", "stop") and since > 300]
            for x in resting:
                self.assertEqual((x.current, x.auxiliary, x.power), (0, 0, 0))
                self.assertGreater(x.p_low, running.p_low)
                self.assertLess(x.p_high, running.p_high)
                self.assertGreater(x.p_high, x.p_low)

    def test_it_stays_in_bounds_for_days_and_at_any_speed(self):
        for name in DESIGNS:
            for stride in (1, 300, 40000):
                p = plant(name)
                for _ in range(200):
                    p.advance(stride)
                    x = p.readings()
                    self.assertTrue(all(map(math.isfinite, vars(x).values())), name)
                    self.assertAlmostEqual(x.evaporator_in, DESIGNS[name].evaporator.inlet, delta=6)
                    self.assertTrue(-0.5 < x.p_low < x.p_high < 95, f"{name}: {x.p_low}, {x.p_high}")

    def test_time_in_small_and_in_large_steps_comes_to_the_same(self):
        for name in DESIGNS:
            small, large = plant(name), plant(name)
            for _ in range(1800):
                small.advance(1)
            large.advance(1800)
            self.assertAlmostEqual(small.readings().p_low, large.readings().p_low, delta=0.5)
            self.assertAlmostEqual(small.readings().p_high, large.readings().p_high, delta=0.5)


class Replies(unittest.TestCase):
    def channels(self, name, orbiter=2):
        return Channels(plant(name, "run"), orbiter, False, random.Random(1))

    def test_length_stays_in_the_bounds_of_a_reply(self):
        for name in DESIGNS:
            for orbiter, tokens in ((0, 16), (1, 32), (2, 53)):
                texts = self.channels(name, orbiter).texts()
                self.assertEqual(len(texts), tokens)
                self.assertTrue(25 <= len(" ".join(texts)) <= 560)
                self.assertTrue(all(text and " " not in text for text in texts))

    def test_no_plant_is_refused_by_the_limits_of_a_reply(self):
        for name in DESIGNS:
            channels = self.channels(name)
            for _ in range(300):
                channels.advance(60)
                values = [float(text) for text in channels.texts()]
                self.assertTrue(all(200 < v < 250 for v in values[:3]))
                self.assertLess(values[6], 17)
                self.assertLess(values[7], 86)
                self.assertTrue(values[6] > 0 or values[7] > 0)
                self.assertTrue(all(v >= 0 for v in values[3:6]))

    def test_transcritical_pressures_come_out_of_the_conversions(self):
        channels = self.channels("R744")
        values, x = [float(text) for text in channels.texts()], channels.plant.readings()
        up_to_50 = (values[6] / 2.5 + 0.5 - 0.5) * 12.5
        up_to_100 = (values[7] / 12.5 + 0.5 - 0.5) * 25
        self.assertAlmostEqual(up_to_50, x.p_low, delta=0.1)
        self.assertAlmostEqual(up_to_100, x.p_high, delta=0.1)
        self.assertAlmostEqual((values[22] / 2.5) * 12.5, x.p_low, delta=0.1)

    def test_faults_keep_their_rates(self):
        reply = b"1 2 3 4 5 6 7 8 9 10 T08:00:00 ok\r\n"
        for fault in ("noise", "short", "long", "echo_only"):
            faults, rng = Faults(**{fault: 0.3}), random.Random(5)
            spoilt = sum(faults.reply(b"ec %*", reply, rng) != reply for _ in range(1000))
            self.assertTrue(250 < spoilt < 350, f"{fault}: {spoilt}")
        self.assertEqual(Faults().reply(b"ec %*", reply, random.Random(5)), reply)

    def test_bath_gives_each_sensor_its_own_error(self):
        texts = Bath(20, random.Random(2)).texts()
        self.assertEqual(len(texts), 16)
        for text, error in zip(texts[8:], TEMPERATURE_ERRORS):
            self.assertAlmostEqual(float(text) - float(texts[8]), error, delta=0.11)

    def test_recorded_lines_skip_runs_of_tabs(self):
        self.assertEqual(values_of("01.03.2026 08:00:00\t\t1.5\t \t2\t\r\n"), ["1.5", "2"])

    def test_listing_is_cut_into_its_names(self):
        """As the program cuts it: a name ends with its extension, the directory fields with the second colon."""
        memory = Memory()
        wanted = ["A.adc", "LONG NAME.txt", "b1.adc"]
        for name in wanted:
            memory.put(name, "")
        import datetime
        text, names = memory.listing(datetime.datetime(2026, 3, 1, 8, 0)), []
        while ".adc" in text or ".txt" in text:
            at = min(i for i in (text.find(".adc"), text.find(".txt")) if i >= 0) + 4
            names.append(text[:at].strip(" "))
            text = text[at:].split(":", 2)[2]
        self.assertEqual(names, wanted)

    def test_transfer_name_can_be_asked_for(self):
        memory = Memory()
        memory.put("A.adc", "a")
        self.assertFalse(memory.rename("aaaa.adc", "aaaa.adc"))
        self.assertTrue(memory.rename("A.adc", "aaaa.adc"))
        self.assertTrue(memory.rename("aaaa.adc", "aaaa.adc"))
        self.assertEqual(memory.get("aaaa.adc"), "a")


class Settings(unittest.TestCase):
    def test_settings_belong_to_their_plant(self):
        for name, design in DESIGNS.items():
            with open(ROOT / "data" / f"logger {name}.json", encoding="utf-8") as file:
                s = json.load(file)
            rows = s["OrbiN_spread"]
            self.assertEqual([len(row) for row in rows], [6] * 7)
            self.assertEqual(s["KaelteM"], name)
            self.assertEqual(s["Hub_Volumen"], design.swept_volume)
            self.assertEqual(float(rows[1][4]), design.condenser.flow)
            self.assertEqual(float(rows[2][4]), design.evaporator.flow)
            units = [row[3] for row in rows if row[3].startswith("Orbiter")]
            self.assertEqual(units, [f"Orbiter {i + 1}" for i in range(design.orbiter)])
            for side, medium in ((design.evaporator, s["Medium_Verd"]), (design.condenser, s["Medium_Verfl"])):
                self.assertEqual(medium == "air", side.rho_cp == 0)

    def test_transcritical_settings_carry_the_function(self):
        with open(ROOT / "data" / "logger R744.json", encoding="utf-8") as file:
            s = json.load(file)
        functions = {row[3]: row[1] for row in s["OrbiN_spread"]}
        self.assertEqual(functions["Orbiter 1"], "CO2 Transkritisch")
        self.assertTrue(s["Combo3"].endswith("- CO2 Transkritisch"))


if __name__ == "__main__":
    unittest.main()
