"""The pseudo terminal and the commands that the logger understands on it."""
import datetime
import os
import select
import termios
import time
import tty

TICK = 0.05  # s between two looks at the plant
LONGEST_COMMAND = 300
LAST_WORDS = 0.1  # s in which a dying line's last bytes can still be read; its end drops them


class Device:
    """One base unit on a pseudo terminal."""

    def __init__(self, source, memory, faults, random, *, letter="T", echo=False, speed=1.0, step=0.0):
        self.source, self.memory, self.faults, self.random = source, memory, faults, random
        self.letter, self.echo, self.speed, self.step = letter, echo, speed, step
        # Held open on both sides, so that the line stays while the program opens and closes it.
        self.line, self._far_end = os.openpty()
        tty.setraw(self._far_end)
        os.set_blocking(self.line, False)
        self.path = os.ttyname(self._far_end)
        self.clock = datetime.datetime.now() if step == 0 else datetime.datetime(2026, 3, 1, 8, 0, 0)
        self._input, self._output, self._later = b"", b"", []
        self._samples = 0
        self._transfer = False  # the last reply was a file
        self._seen = time.monotonic()
        self._alive = True

    def run(self):
        """Serves until it dies in the middle of a reply."""
        while self._alive or self._later or self._output:
            wait = [due - time.monotonic() for due, _ in self._later]
            writable = [self.line] if self._output else []
            ready, _, _ = select.select([self.line], writable, [], max(0.0, min([TICK] + wait)))
            if ready:
                self._receive()
            self._send_later_ones()
            self._send()
            if self.step == 0:
                self._pass_time()
        time.sleep(LAST_WORDS)

    def close(self):
        for end in (self.line, self._far_end):
            os.close(end)

    def _pass_time(self):
        now = time.monotonic()
        self._advance((now - self._seen) * self.speed)
        self._seen = now

    def _advance(self, seconds):
        self.source.advance(seconds)
        self.clock += datetime.timedelta(seconds=seconds)

    def _receive(self):
        self._input += os.read(self.line, 4096)
        while b"\r" in self._input:
            command, self._input = self._input.split(b"\r", 1)
            self._serve(command.strip())
        self._input = self._input[-LONGEST_COMMAND:]

    def _serve(self, command):
        if self.faults.dead or not command:
            return
        self._end_transfer()
        reply = command + b"\r" if self.echo else b""
        text = command.decode("ascii", "replace")
        if text == "ec %*":
            reply = self._die(reply) if self._samples == self.faults.die_after else self._sample(command, reply)
        else:
            reply += self._file_command(text).encode("cp1252", "replace")
        self._later.append((time.monotonic() + self.faults.delay(self.random), reply))

    def _end_transfer(self):
        """A new command ends the sending of a file: what its reader left lying is no reply to this one."""
        if self._transfer:
            self._output = b""
            termios.tcflush(self._far_end, termios.TCIFLUSH)
        self._transfer = False

    def _reply(self):
        values = self.faults.values(self.source.texts(), self.random)
        return (" ".join(values) + f" {self.letter}{self.clock:%H:%M:%S} ok\r\n").encode("ascii", "replace")

    def _sample(self, command, echo):
        if self.step > 0:
            self._advance(self.step)
        self._samples += 1
        return self.faults.reply(command, echo + self._reply(), self.random)

    def _die(self, echo):
        self._alive = False
        reply = self._reply()
        return echo + reply[:len(reply) // 2]

    def _file_command(self, text):
        verb, *names = text.split(" ")
        if verb == "ls" and not names:
            return self.memory.listing(self.clock)
        if verb == "mv" and len(names) >= 2:
            return self._renamed(" ".join(names[:-1]), names[-1])
        if verb in ("up", "up-c") and names:
            content = self.memory.get(" ".join(names))
            self._transfer = content is not None
            return content if self._transfer else "error: no such file\r\n"
        return "error: unknown command\r\n"

    def _renamed(self, name, to):
        return "" if self.memory.rename(name, to) else "error: no such file\r\n"

    def _send_later_ones(self):
        now = time.monotonic()
        for entry in [entry for entry in self._later if entry[0] <= now]:
            self._output += entry[1]
            self._later.remove(entry)

    def _send(self):
        while self._output:
            try:
                sent = os.write(self.line, self._output)
            except BlockingIOError:
                return
            self._output = self._output[sent:]
