"""The files in the logger's memory."""


class Memory:
    def __init__(self):
        self._files = {}
        self._moved = ("", "")  # transfer name and the name before

    def put(self, name, content):
        self._files[name] = content

    def listing(self, stamp):
        """A name, its date and its time, each time ended by a colon: "RECORD01.adc 2026-03-01 08:00: "."""
        return "".join(f"{name} {stamp:%Y-%m-%d %H:%M}: " for name in self._files) + "\r\n"

    def rename(self, name, to):
        """False for a name that isn't there. A file that had the transfer name gets its own one back."""
        if self._moved == (to, name) and to in self._files:
            return True
        if name == to:
            return name in self._files
        if name not in self._files:
            return False
        if self._moved[0] == to and to in self._files:
            self._files[self._moved[1]] = self._files.pop(to)
        self._files[to] = self._files.pop(name)
        self._moved = (to, name)
        return True

    def get(self, name):
        return self._files.get(name)
