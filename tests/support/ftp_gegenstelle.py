#!/usr/bin/python3
"""A real FTP server on loopback for the tests: one account, one folder, and a protocol of what it was told.

The first line of its output is its port. It ends with the process that started it.
"""
import argparse
import ctypes
import logging
import os
import signal
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import DTPHandler, FTPHandler
from pyftpdlib.servers import FTPServer

PR_SET_PDEATHSIG = 1


def options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("folder", help="the folder that it serves")
    parser.add_argument("protocol", help="the file that takes every command, one a line")
    parser.add_argument("--user", required=True)
    parser.add_argument("--password", required=True)
    parser.add_argument("--read-only", action="store_true", help="refuse to store anything")
    parser.add_argument("--raw", action="store_true", help="store what comes over the wire, whatever its type")
    parser.add_argument("--answer", nargs=2, action="append", default=[], metavar=("VERB", "REPLY"),
                        help="give this reply to a command instead of carrying it out")
    parser.add_argument("--mute", action="append", default=[], metavar="VERB", help="never answer this command")
    parser.add_argument("--stall", action="store_true", help="accept connections and never say a word")
    parser.add_argument("--stall-after", type=int, metavar="N", help="stop after N bytes of a transfer")
    parser.add_argument("--die-after", type=int, metavar="N",
                        help="drop both connections after N bytes of a transfer")
    parser.add_argument("--times", type=int, metavar="K", help="let only the first K transfers stop or die")
    return parser.parse_args()


class Data(DTPHandler):
    """A data connection that may break off or stop."""

    options = None
    spoilt = 0

    def __init__(self, *args, **kwargs):
        super().__init__(*args, **kwargs)
        o = self.options
        self.limit = o.stall_after if o.die_after is None else o.die_after
        self.over = False
        if self.limit is not None and o.times is not None and Data.spoilt >= o.times:
            self.limit = None
        if self.limit is not None:
            Data.spoilt += 1

    def end(self):
        self.over = True
        self.del_channel()
        if self.options.die_after is not None:
            self.ioloop.call_later(0, self.cmd_channel.close)

    def send(self, data):
        if self.limit is None:
            return super().send(data)
        if self.over:
            return 0
        left = self.limit - self.tot_bytes_sent
        sent = super().send(data[:left]) if left > 0 else 0
        if self.tot_bytes_sent >= self.limit:
            self.end()
        return sent

    def recv(self, size):
        if self.limit is None:
            return super().recv(size)
        left = self.limit - self.tot_bytes_received
        chunk = super().recv(min(size, left)) if left > 0 else b""
        if self.tot_bytes_received + len(chunk) >= self.limit:
            self.end()
        return chunk

    def enable_receiving(self, type, cmd):
        super().enable_receiving("i" if self.options.raw else type, cmd)


class Control(FTPHandler):
    """A control connection that writes down what it is told before it answers."""

    dtp_handler = Data
    use_sendfile = False
    auth_failed_timeout = 0
    unicode_errors = "surrogateescape"
    banner = "ready"
    options = None
    protocol = None

    def handle(self):
        if self.options.stall:
            self.del_channel()
        else:
            super().handle()

    def pre_process_command(self, line, cmd, arg):
        self.protocol.write(os.fsencode(line + "\n"))
        if cmd in self.options.mute:
            return
        for verb, reply in self.options.answer:
            if verb == cmd:
                self.respond(reply)
                return
        super().pre_process_command(line, cmd, arg)


def main():
    parent = os.getppid()
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
    if os.getppid() != parent:
        return 1
    o = options()
    logging.getLogger("pyftpdlib").addHandler(logging.NullHandler())
    logging.getLogger("pyftpdlib").propagate = False
    accounts = DummyAuthorizer()
    accounts.add_user(o.user, o.password, o.folder, perm="elr" if o.read_only else "elradfmwMT")
    Control.authorizer = accounts
    Control.options = Data.options = o
    Control.protocol = open(o.protocol, "ab", buffering=0)
    server = FTPServer(("127.0.0.1", 0), Control)
    print(server.socket.getsockname()[1], flush=True)
    server.serve_forever(handle_exit=False)
    return 0


if __name__ == "__main__":
    sys.exit(main())
