"""All sensors of the base unit in one bath, for a calibration."""

TEST_PRESSURE = 5.0  # bar gauge, at both pressure sensors
PRESSURE_ERRORS = [0.06, 0.0]  # bar
# What the eight inputs read too much, K; the first one is the reference of a calibration.
TEMPERATURE_ERRORS = [0.0, 0.3, -0.2, 0.1, -0.4, 0.2, -0.1, 0.6]


class Bath:
    def __init__(self, temperature, random):
        self.temperature = temperature
        self.random = random

    def advance(self, seconds):
        pass

    def texts(self):
        noise = self.random.gauss(0, 0.02)  # the bath itself is not quite steady
        values = ["231.0", "231.0", "231.0", "0", "0", "0"]
        values += [f"{TEST_PRESSURE + error:.3f}" for error in PRESSURE_ERRORS]
        return values + [f"{self.temperature + noise + error:.1f}" for error in TEMPERATURE_ERRORS]
