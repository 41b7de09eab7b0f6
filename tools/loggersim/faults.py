"""How the device misbehaves."""
import dataclasses

SPIKES = (
    {0: "900.0"},  # a voltage
    {7: "95.000"},  # the high side pressure
    {6: "25.000"},  # the low side pressure
    {6: "0", 7: "0"},  # both sensors gone
    {12: "850.0"},  # an open temperature input
)


@dataclasses.dataclass
class Faults:
    """Probabilities of a sample reply, 0 to 1, and what holds for the device as a whole."""
    noise: float = 0.0
    short: float = 0.0
    long: float = 0.0
    echo_only: float = 0.0
    spike: float = 0.0
    late: float = 0.0  # s
    late_rate: float = 1.0
    dead: bool = False
    die_after: int = -1  # good samples; -1 never

    def values(self, values, random):
        """A reading that no plant can have, now and then."""
        if random.random() < self.spike:
            for i, text in random.choice(SPIKES).items():
                if i < len(values):
                    values[i] = text
        return values

    def reply(self, command, reply, random):
        """What becomes of a sample reply on its way."""
        if random.random() < self.echo_only:
            return command + b"\r"
        if random.random() < self.short:
            return reply[:random.randrange(1, 25)]
        if random.random() < self.long:
            return (reply[:-5] + b" ") * (600 // len(reply) + 2) + b"ok\r\n"
        if random.random() < self.noise:
            return bytes(random.randrange(256) if random.random() < 0.2 else byte for byte in reply)
        return reply

    def delay(self, random):
        return self.late if self.late > 0 and random.random() < self.late_rate else 0.0
